// SPDX-License-Identifier: MIT
// Gives every file of the folders named on the command line to the fuzz target once. It stands in
// for the fuzzer, so that any compiler checks what the fuzzer has found before.
#include <cstddef>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void Replay(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + path.string());
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    // Named before the call, so that a crash stands behind the input that made it.
    std::cout << path.string() << " (" << bytes.size() << " bytes)" << std::endl;
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

int ReplayFolder(const std::filesystem::path& folder) {
    int files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file()) continue;
        Replay(entry.path());
        ++files;
    }
    return files;
}

}  // namespace

int main(int argc, char** argv) {
    int files = 0;
    try {
        for (int i = 1; i < argc; ++i) files += ReplayFolder(argv[i]);
    } catch (const std::exception& error) {
        std::cerr << "replay: " << error.what() << "\n";
        return 1;
    }
    std::cout << files << " inputs replayed" << std::endl;
    if (files == 0) std::cerr << "replay: no input, so nothing was checked\n";
    return files == 0 ? 1 : 0;
}

// SPDX-License-Identifier: MIT
// Gives every file of the folders named on the command line to the fuzz target once. It stands in
// for the fuzzer, so that any compiler checks what the fuzzer has found before.
#include <cstdint>
#include <iostream>

#include "files/work_folder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    int files = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(argv[i])) {
            if (!entry.is_regular_file()) continue;
            const auto bytes = quorvane::testing::ReadAll(entry.path());
            // Named before the call, so that a crash follows the input that caused it.
            std::cout << entry.path().string() << " (" << bytes.size() << " bytes)" << std::endl;
            if (bytes.size() != entry.file_size()) throw std::runtime_error("it can't be read");
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                   bytes.size());
            ++files;
        }
    }
    std::cout << files << " inputs replayed" << std::endl;
    if (files == 0) std::cerr << "replay: no input, so nothing was checked\n";
    return files == 0 ? 1 : 0;
}

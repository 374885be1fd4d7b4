// SPDX-License-Identifier: MIT
#include "platform/file_table.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <random>

#include "platform/numbers.h"
#include "platform/runtime_error.h"

#if __has_include(<unistd.h>)
#include <unistd.h>
#define QUORVANE_HAS_FSYNC 1
#endif

namespace quorvane {

namespace fs = std::filesystem;

namespace {

constexpr int HighestNumber = 511;

enum class Use { Input, Output };

struct StreamCloser {
    void operator()(std::FILE* stream) const { std::fclose(stream); }
};

struct OpenFile {
    Use For = Use::Input;
    fs::path Path;          ///< Absolute, so that a change of folder doesn't hide it
    fs::path WrittenAside;  ///< Output: the new file until it is closed; empty for a device
    bool Failed = false;    ///< Output: a write failed, the new file must not replace the old one
    std::unique_ptr<std::FILE, StreamCloser> Stream;
    std::array<char, 16384> Buffer;
    std::size_t Next = 0;  ///< Input: the first byte of Buffer that is not read yet
    std::size_t Filled = 0;
};

std::array<std::unique_ptr<OpenFile>, HighestNumber + 1> openFiles;
std::string currentLine;

OpenFile& Opened(int number, Use use) {
    if (number < 1 || number > HighestNumber) throw RuntimeError(52);
    auto& file = openFiles[static_cast<std::size_t>(number)];
    if (!file) throw RuntimeError(52);
    if (file->For != use) throw RuntimeError(54);
    return *file;
}

/// The absolute path behind all links, also behind one whose target is missing: what is written
/// goes where the link points.
fs::path Resolved(const std::string& path) {
    std::error_code error;
    auto resolved = fs::absolute(path, error);
    if (error) return path;
    constexpr int longestChain = 40;
    for (int i = 0; i < longestChain && fs::is_symlink(fs::symlink_status(resolved, error)); ++i) {
        const auto target = fs::read_symlink(resolved, error);
        if (error) break;
        resolved = resolved.parent_path() / target;
    }
    auto canonical = fs::weakly_canonical(resolved, error);
    return error ? resolved : canonical;
}

void RefuseIfOpen(int number, const fs::path& path, Use use) {
    if (number < 1 || number > HighestNumber) throw RuntimeError(52);
    if (openFiles[static_cast<std::size_t>(number)]) throw RuntimeError(55);
    for (const auto& file : openFiles) {
        if (file && file->Path == path && (file->For == Use::Output || use == Use::Output)) {
            throw RuntimeError(55);
        }
    }
}

/// Reads on; false at the end of the file.
bool Fill(OpenFile& file) {
    if (file.Next < file.Filled) return true;
    file.Next = 0;
    file.Filled = std::fread(file.Buffer.data(), 1, file.Buffer.size(), file.Stream.get());
    if (file.Filled == 0 && std::ferror(file.Stream.get())) throw RuntimeError(57);
    return file.Filled > 0;
}

/// A file beside `path` that nobody else has, opened for writing, as private as the one at `path`.
std::unique_ptr<std::FILE, StreamCloser> CreateAside(const fs::path& path, fs::path& aside) {
    std::random_device random;
    for (int attempt = 1; attempt <= 100; ++attempt) {
        const auto name = "." + path.filename().string() + "." + NumberText(random());
        aside = path.parent_path() / name;
        if (auto* stream = std::fopen(aside.string().c_str(), "wbx")) {
            std::error_code error;
            const auto old = fs::status(path, error);
            if (fs::exists(old)) fs::permissions(aside, old.permissions(), error);
            return std::unique_ptr<std::FILE, StreamCloser>(stream);
        }
        if (errno != EEXIST) break;
    }
    throw RuntimeError(75);
}

/// Replacing a file would go round its write protection, so the protection is looked at first.
void RefuseIfReadOnly(const fs::path& path, const fs::file_status& status) {
    if (!fs::exists(status)) return;
    std::unique_ptr<std::FILE, StreamCloser> probe(std::fopen(path.string().c_str(), "r+b"));
    if (!probe) throw RuntimeError(75);
}

bool FlushToDisk(std::FILE* stream) {
    if (std::fflush(stream) != 0) return false;
#ifdef QUORVANE_HAS_FSYNC
    // Some file systems have no such thing; only a real failure to store counts.
    if (fsync(fileno(stream)) != 0 && errno != EINVAL && errno != EROFS) return false;
#endif
    return true;
}

void TakePlace(OpenFile& file) {
    std::error_code error;
    bool stored = !file.Failed && FlushToDisk(file.Stream.get());
    file.Stream.reset();
    if (file.WrittenAside.empty()) {
        if (!stored) throw RuntimeError(61);
        return;
    }
    if (!stored) {
        fs::remove(file.WrittenAside, error);
        throw RuntimeError(61);
    }
    fs::rename(file.WrittenAside, file.Path, error);
    if (error) {
        fs::remove(file.WrittenAside, error);
        throw RuntimeError(75);
    }
}

}  // namespace

int FreeFile() {
    for (int number = 1; number <= HighestNumber; ++number) {
        if (!openFiles[static_cast<std::size_t>(number)]) return number;
    }
    throw RuntimeError(67);
}

void OpenForInput(int number, const std::string& path) {
    const auto resolved = Resolved(path);
    RefuseIfOpen(number, resolved, Use::Input);
    std::error_code error;
    const auto status = fs::status(resolved, error);
    if (!fs::exists(status)) throw RuntimeError(53);
    if (!fs::is_regular_file(status)) throw RuntimeError(75);
    auto file = std::make_unique<OpenFile>();
    file->For = Use::Input;
    file->Path = resolved;
    file->Stream.reset(std::fopen(resolved.string().c_str(), "rb"));
    if (!file->Stream) throw RuntimeError(75);
    std::setvbuf(file->Stream.get(), nullptr, _IONBF, 0);
    openFiles[static_cast<std::size_t>(number)] = std::move(file);
}

bool EndOfFile(int number) { return !Fill(Opened(number, Use::Input)); }

namespace {

/// Reads up to one of `ends` and past it, CR LF counting as one.
std::string_view ReadUpTo(int number, const char* ends) {
    auto& file = Opened(number, Use::Input);
    if (!Fill(file)) throw RuntimeError(62);
    currentLine.clear();
    while (Fill(file)) {
        const std::string_view rest(file.Buffer.data() + file.Next, file.Filled - file.Next);
        const auto end = rest.find_first_of(ends);
        const auto part = rest.substr(0, end);
        if (currentLine.size() + part.size() > MaxLineLength) throw RuntimeError(14);
        currentLine += part;
        file.Next += part.size();
        if (end == std::string_view::npos) continue;
        const bool carriageReturn = rest[end] == '\r';
        ++file.Next;
        if (carriageReturn && Fill(file) && file.Buffer[file.Next] == '\n') ++file.Next;
        break;
    }
    return currentLine;
}

}  // namespace

std::string_view LineInput(int number) { return ReadUpTo(number, "\r\n"); }

std::string_view InputField(int number) { return ReadUpTo(number, "\r\n,"); }

void OpenForOutput(int number, const std::string& path) {
    const auto resolved = Resolved(path);
    RefuseIfOpen(number, resolved, Use::Output);
    std::error_code error;
    const auto status = fs::status(resolved, error);
    if (fs::is_directory(status)) throw RuntimeError(75);
    auto file = std::make_unique<OpenFile>();
    file->For = Use::Output;
    file->Path = resolved;
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        // A device or pipe is written to; it is not a file to be replaced.
        file->Stream.reset(std::fopen(resolved.string().c_str(), "wb"));
        if (!file->Stream) throw RuntimeError(75);
    } else {
        RefuseIfReadOnly(resolved, status);
        file->Stream = CreateAside(resolved, file->WrittenAside);
    }
    openFiles[static_cast<std::size_t>(number)] = std::move(file);
}

void Print(int number, std::string_view text) {
    auto& file = Opened(number, Use::Output);
    if (file.Failed) throw RuntimeError(61);
    if (std::fwrite(text.data(), 1, text.size(), file.Stream.get()) != text.size()) {
        file.Failed = true;
        throw RuntimeError(errno == ENOSPC ? 61 : 57);
    }
}

void CloseFile(int number) {
    if (number < 1 || number > HighestNumber) return;
    const auto file = std::move(openFiles[static_cast<std::size_t>(number)]);
    if (file && file->For == Use::Output) TakePlace(*file);
}

void CloseAllFiles() {
    for (int number = 1; number <= HighestNumber; ++number) {
        Attempt([&] { CloseFile(number); });
    }
}

}  // namespace quorvane

// SPDX-License-Identifier: MIT
#include "platform/file_table.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <random>

#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#else
#include <unistd.h>
#endif

namespace quorvane {

namespace fs = std::filesystem;

namespace {

constexpr int HighestNumber = 511;

struct StreamCloser {
    void operator()(std::FILE* stream) const {
        if (stream != stdin) std::fclose(stream);
    }
};
using Stream = std::unique_ptr<std::FILE, StreamCloser>;

struct OpenFile {
    Stream Source;  ///< None for a text, which is in the buffer as a whole
    std::unique_ptr<char[]> Buffer;
    std::size_t Next = 0;  ///< The first byte of Buffer that is not read yet
    std::size_t Filled = 0;
    bool EndedAtComma = false;  ///< The last read
};

std::array<std::unique_ptr<OpenFile>, HighestNumber + 1> openFiles;
std::string currentLine;

std::unique_ptr<OpenFile>& Element(int number) {
    if (number < 1 || number > HighestNumber) Raise(52);
    return openFiles[static_cast<std::size_t>(number)];
}

OpenFile& Opened(int number) {
    auto& file = Element(number);
    if (!file) Raise(52);
    return *file;
}

/// The absolute path behind all links, also behind one whose target is missing: what is written
/// goes where the link points.
fs::path Resolved(const std::string& path) {
    std::error_code error;
    auto resolved = fs::absolute(SystemPath(path), error);
    if (error) return SystemPath(path);
    constexpr int longestChain = 40;
    for (int i = 0; i < longestChain && fs::is_symlink(fs::symlink_status(resolved, error)); ++i) {
        const auto target = fs::read_symlink(resolved, error);
        if (error) break;
        resolved = resolved.parent_path() / target;
    }
    auto canonical = fs::weakly_canonical(resolved, error);
    return error ? resolved : canonical;
}

/// Fills the buffer anew; false at the end of the file.
bool ReadOn(OpenFile& file) {
    if (!file.Source) return false;
    // Most diagrams are read at once.
    constexpr std::size_t blockSize = 65536;
    if (!file.Buffer) file.Buffer = std::make_unique_for_overwrite<char[]>(blockSize);
    file.Next = 0;
    file.Filled = std::fread(file.Buffer.get(), 1, blockSize, file.Source.get());
    if (file.Filled == 0 && std::ferror(file.Source.get())) throw RuntimeError(57);
    return file.Filled > 0;
}

/// True when there is a byte to read, which is then in the buffer.
inline bool HasMore(OpenFile& file) { return file.Next < file.Filled || ReadOn(file); }

// What the standard library doesn't have on both systems: a file that must not be there yet, opened
// for writing, and the wait for the disk.
#ifdef _WIN32
std::FILE* OpenNew(const std::string& path) {
    constexpr int flags = _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT;
    const int file = _open(path.c_str(), flags, _S_IREAD | _S_IWRITE);
    return file < 0 ? nullptr : _fdopen(file, "wb");
}
bool Sync(std::FILE* stream) { return _commit(_fileno(stream)) == 0; }
#else
std::FILE* OpenNew(const std::string& path) { return std::fopen(path.c_str(), "wbx"); }
/// Some file systems do not support this; only a real failure to store counts.
bool Sync(std::FILE* stream) {
    return fsync(fileno(stream)) == 0 || errno == EINVAL || errno == EROFS;
}
#endif

/// Creates a temporary file beside `path`, with the permissions of the one there, for writing.
Stream CreateAside(const fs::path& path, fs::path& aside) {
    std::random_device random;
    for (int attempt = 1; attempt <= 100; ++attempt) {
        const auto name = "." + path.filename().string() + "." + NumberText(random());
        aside = path.parent_path() / SystemPath(name);
        if (auto* stream = OpenNew(aside.string())) {
            std::error_code error;
            const auto old = fs::status(path, error);
            if (fs::exists(old)) fs::permissions(aside, old.permissions(), error);
            return Stream(stream);
        }
        if (errno != EEXIST) break;
    }
    throw RuntimeError(75);
}

/// Renaming over a file ignores its write protection, so that is checked first.
void RefuseIfReadOnly(const fs::path& path, const fs::file_status& status) {
    if (!fs::exists(status)) return;
    const Stream probe(std::fopen(path.string().c_str(), "r+b"));
    if (!probe) throw RuntimeError(75);
}

bool FlushToDisk(std::FILE* stream, bool synced) {
    return std::fflush(stream) == 0 && (!synced || Sync(stream));
}

void Store(std::FILE* stream, std::string_view text, bool synced) {
    const bool stored = std::fwrite(text.data(), 1, text.size(), stream) == text.size() &&
                        FlushToDisk(stream, synced);
    if (!stored) throw RuntimeError(errno == ENOSPC || errno == EFBIG ? 61 : 57);
}

}  // namespace

void KeepStandardBytes() {
#ifdef _WIN32
    for (auto* const stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
#endif
}

int FreeFile() {
    for (int number = 1; number <= HighestNumber; ++number) {
        if (!openFiles[static_cast<std::size_t>(number)]) return number;
    }
    throw RuntimeError(67);
}

void OpenForInput(int number, const std::string& path) {
    auto& element = Element(number);
    if (element) throw RuntimeError(55);
    std::error_code error;
    const auto status = fs::status(SystemPath(path), error);
    if (!fs::exists(status)) throw RuntimeError(53);
    if (!fs::is_regular_file(status)) throw RuntimeError(75);
    auto file = std::make_unique<OpenFile>();
    file->Source.reset(std::fopen(path.c_str(), "rb"));
    if (!file->Source) throw RuntimeError(75);
    std::setvbuf(file->Source.get(), nullptr, _IONBF, 0);
    element = std::move(file);
}

void OpenStandardInput(int number) {
    auto& element = Element(number);
    if (element) throw RuntimeError(55);
    element = std::make_unique<OpenFile>();
    element->Source.reset(stdin);
}

void OpenText(int number, std::string_view text) {
    auto& element = Element(number);
    if (element) throw RuntimeError(55);
    element = std::make_unique<OpenFile>();
    element->Buffer = std::make_unique_for_overwrite<char[]>(text.size());
    text.copy(element->Buffer.get(), text.size());
    element->Filled = text.size();
}

bool EndOfFile(int number) { return !HasMore(Opened(number)); }

namespace {

/// The first `mark` between the two, or `end`.
const char* Find(const char* begin, const char* end, char mark) {
    const auto* at = std::memchr(begin, mark, static_cast<std::size_t>(end - begin));
    return at ? static_cast<const char*>(at) : end;
}

/// What is in the buffer up to the end of a line or, for a field, to a comma.
std::string_view PartInBuffer(const OpenFile& file, bool isField) {
    const char* const begin = file.Buffer.get() + file.Next;
    const char* end = Find(begin, file.Buffer.get() + file.Filled, '\n');
    end = Find(begin, end, '\r');
    if (isField) end = Find(begin, end, ',');
    return {begin, static_cast<std::size_t>(end - begin)};
}

/// Steps over the end of a line or field; CR LF counts as one.
void SkipEnd(OpenFile& file) {
    const char ended = file.Buffer[file.Next++];
    file.EndedAtComma = ended == ',';
    if (ended == '\r' && HasMore(file) && file.Buffer[file.Next] == '\n') ++file.Next;
}

/// Reads a line or field that the buffer doesn't hold as a whole.
std::string_view ReadInPieces(OpenFile& file, bool isField) {
    currentLine.clear();
    file.EndedAtComma = false;
    while (HasMore(file)) {
        const auto part = PartInBuffer(file, isField);
        if (currentLine.size() + part.size() > MaxLineLength) throw RuntimeError(14);
        currentLine += part;
        file.Next += part.size();
        if (file.Next == file.Filled) continue;
        SkipEnd(file);
        break;
    }
    return currentLine;
}

/// Reads up to and including the end of a line or field. What lies in the buffer as a whole, with a
/// byte behind its end, isn't copied.
std::string_view ReadUpTo(int number, bool isField) {
    auto& file = Opened(number);
    if (!HasMore(file)) throw RuntimeError(62);
    const auto part = PartInBuffer(file, isField);
    const bool isWhole = file.Filled - file.Next > part.size() + 1;
    if (!isWhole || part.size() > MaxLineLength) return ReadInPieces(file, isField);
    file.Next += part.size();
    SkipEnd(file);
    return part;
}

}  // namespace

std::string_view LineInput(int number) { return ReadUpTo(number, false); }

std::string_view InputField(int number) { return ReadUpTo(number, true); }

bool LineGoesOn(int number) { return Opened(number).EndedAtComma; }

void CloseFile(int number) {
    if (number >= 1 && number <= HighestNumber) Element(number).reset();
}

void CloseAllFiles() { openFiles = {}; }

void ReplaceFile(const std::string& path, std::string_view text, bool synced) {
    const auto resolved = Resolved(path);
    std::error_code error;
    const auto status = fs::status(resolved, error);
    if (fs::is_directory(status)) throw RuntimeError(75);
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        // A device or pipe is written to; it is not a file to be replaced.
        const Stream device(std::fopen(resolved.string().c_str(), "wb"));
        if (!device) throw RuntimeError(75);
        return Store(device.get(), text, synced);
    }
    RefuseIfReadOnly(resolved, status);
    fs::path aside;
    auto stream = CreateAside(resolved, aside);
    try {
        Store(stream.get(), text, synced);
        stream.reset();
        fs::rename(aside, resolved, error);
        if (error) throw RuntimeError(75);
    } catch (const RuntimeError&) {
        stream.reset();
        fs::remove(aside, error);
        throw;
    }
}

}  // namespace quorvane

// SPDX-License-Identifier: MIT
#include "platform/file_table.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <string>
#include <vector>

#include "files/work_folder.h"
#include "platform/raised_error.h"

using namespace quorvane;
using namespace quorvane::testing;
namespace fs = std::filesystem;

namespace {

class FileTable : public ::testing::Test {
protected:
    void TearDown() override { CloseAllFiles(); }

    static std::vector<std::string> LinesOf(const std::string& path) {
        std::vector<std::string> lines;
        OpenForInput(1, path);
        while (!EndOfFile(1)) lines.emplace_back(LineInput(1));
        EXPECT_EQ(RaisedError([] { LineInput(1); }), 62);
        CloseFile(1);
        return lines;
    }

    static void Replace(const std::string& path, const std::string& text) {
        OpenForOutput(1, path);
        Print(1, text);
        CloseFile(1);
    }

    /// Runs a check in a child process and gives its result; -1 when the child was killed.
    template <class Check>
    static int InChild(Check check) {
        const auto child = fork();
        if (child == 0) _exit(check());
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    WorkFolder folder;
};

TEST_F(FileTable, EveryLineEndEndsALine) {
    const std::string block(
        16383, 'x');  // the CR is the last byte of a buffer, the LF the next one's first
    struct Row {
        std::string Bytes;
        std::vector<std::string> Lines;
    };
    const Row rows[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\r\n", {"a"}},
        {"a\n", {"a"}},
        {"a\r", {"a"}},
        {"a\r\nb\nc\rd", {"a", "b", "c", "d"}},
        {"\r\n", {""}},
        {"\n\n\r\r\n", {"", "", "", ""}},
        {"a\n\rb", {"a", "", "b"}},
        {block + "\r\nb\r\n", {block, "b"}},
        {block + "\rb", {block, "b"}},
        {block + "xx\r\n\r\n", {block + "xx", ""}},
        {std::string("a\0b\r\n\xFF", 6), {std::string("a\0b", 3), "\xFF"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Bytes.substr(0, 20));
        WriteAll(folder / "f", row.Bytes);
        EXPECT_EQ(LinesOf(folder / "f"), row.Lines);
    }
}

TEST_F(FileTable, AFieldEndsAtACommaOrWithItsLine) {
    const std::string block(16384, 'x');  // the comma is the next buffer's first byte
    WriteAll(folder / "f", "a, b \r\n\"c,d\"\n,\r\n" + block + ",e\rlast");
    const std::vector<std::string> fields = {"a", " b ", "\"c", "d\"", "", "", block, "e", "last"};
    OpenForInput(1, folder / "f");
    for (const auto& field : fields) EXPECT_EQ(InputField(1), field);
    EXPECT_TRUE(EndOfFile(1));
    EXPECT_EQ(RaisedError([] { InputField(1); }), 62);
    CloseFile(1);
    WriteAll(folder / "f", "a,b\r\nc,");
    OpenForInput(1, folder / "f");
    EXPECT_EQ(InputField(1), "a");
    EXPECT_EQ(LineInput(1), "b") << "a line goes on where a field has ended";
    EXPECT_EQ(InputField(1), "c");
    EXPECT_TRUE(EndOfFile(1)) << "nothing stands behind the last comma";
}

TEST_F(FileTable, ALineMayFillTheLimitAndNoMore) {
    const std::string line(MaxLineLength, 'x');
    WriteAll(folder / "f", line + "\r\n" + line + "y");
    OpenForInput(1, folder / "f");
    EXPECT_EQ(LineInput(1), line);
    EXPECT_EQ(RaisedError([] { LineInput(1); }), 14);
}

TEST_F(FileTable, NumbersArePassedOutFromTheLowest) {
    WriteAll(folder / "f", "");
    EXPECT_EQ(FreeFile(), 1);
    OpenForInput(1, folder / "f");
    OpenForInput(2, folder / "f");
    EXPECT_EQ(FreeFile(), 3);
    CloseFile(1);
    EXPECT_EQ(FreeFile(), 1);
    for (int number = 0; RaisedError([&] { number = FreeFile(); }) == 0;) {
        OpenForInput(number, folder / "f");
    }
    EXPECT_EQ(RaisedError([&] { OpenForInput(511, folder / "f"); }), 55)
        << "511 was never given out";
    EXPECT_EQ(RaisedError([] { FreeFile(); }), 67);
    CloseAllFiles();
    EXPECT_EQ(FreeFile(), 1);
}

TEST_F(FileTable, WrongUsesHaveTheirNumbers) {
    WriteAll(folder / "f", "a\r\n");
    fs::create_symlink("f", folder / "link");
    const std::string twin = folder / "../" + folder.Path.filename().string() + "/f";
    for (const int number : {-1, 0, 1, 512}) {
        SCOPED_TRACE(number);
        EXPECT_EQ(RaisedError([&] { EndOfFile(number); }), 52);
        EXPECT_EQ(RaisedError([&] { LineInput(number); }), 52);
        EXPECT_EQ(RaisedError([&] { Print(number, ""); }), 52);
        EXPECT_EQ(RaisedError([&] { CloseFile(number); }), 0);
        if (number == 1) continue;
        EXPECT_EQ(RaisedError([&] { OpenForInput(number, folder / "f"); }), 52);
        EXPECT_EQ(RaisedError([&] { OpenForOutput(number, folder / "f"); }), 52);
    }
    EXPECT_EQ(RaisedError([&] { OpenForInput(1, folder / "none"); }), 53);
    EXPECT_EQ(RaisedError([&] { OpenForInput(1, folder / "f/inside"); }), 53);
    EXPECT_EQ(RaisedError([&] { OpenForInput(1, ""); }), 53);
    EXPECT_EQ(RaisedError([&] { OpenForInput(1, folder.Path.string()); }), 75);
    EXPECT_EQ(RaisedError([&] { OpenForInput(1, "/dev/null"); }), 75);
    EXPECT_EQ(RaisedError([&] { OpenForOutput(1, folder.Path.string()); }), 75);
    EXPECT_EQ(RaisedError([&] { OpenForOutput(1, folder / "none/f"); }), 75);
    EXPECT_EQ(FreeFile(), 1) << "a failed opening kept its number";

    OpenForInput(1, folder / "f");
    EXPECT_EQ(RaisedError([] { Print(1, "x"); }), 54);
    EXPECT_EQ(RaisedError([&] { OpenForInput(1, folder / "none"); }), 55);
    for (const auto& path : {folder / "f", twin, folder / "link"}) {
        EXPECT_EQ(RaisedError([&] { OpenForOutput(2, path); }), 55) << path;
    }
    EXPECT_EQ(RaisedError([&] { OpenForInput(2, folder / "f"); }), 0) << "two readers";
    CloseAllFiles();
    OpenForOutput(1, folder / "f");
    EXPECT_EQ(RaisedError([] { LineInput(1); }), 54);
    EXPECT_EQ(RaisedError([] { EndOfFile(1); }), 54);
    for (const auto& path : {folder / "f", twin, folder / "link"}) {
        EXPECT_EQ(RaisedError([&] { OpenForInput(2, path); }), 55) << path;
        EXPECT_EQ(RaisedError([&] { OpenForOutput(2, path); }), 55) << path;
    }
}

TEST_F(FileTable, TheOldFileStaysUntilTheNewOneIsClosed) {
    WriteAll(folder / "f", "old");
    OpenForOutput(1, folder / "f");
    Print(1, "new\n");
    Print(1, std::string(100000, 'x'));
    EXPECT_EQ(ReadAll(folder / "f"), "old");
    CloseFile(1);
    EXPECT_EQ(ReadAll(folder / "f"), "new\n" + std::string(100000, 'x'));
    Replace(folder / "f", "");
    EXPECT_EQ(ReadAll(folder / "f"), "");
    Replace(folder / "made", "text");
    EXPECT_EQ(ReadAll(folder / "made"), "text");
    EXPECT_EQ(NamesIn(folder.Path), (std::set<std::string>{"f", "made"}));
}

TEST_F(FileTable, AKilledWriterLeavesTheOldFileWhole) {
    WriteAll(folder / "f", "old");
    for (const bool killed : {false, true}) {
        InChild([&] {
            OpenForOutput(1, folder / "f");
            Print(1, std::string(100000, 'x'));
            if (killed) raise(SIGKILL);
            return 0;
        });
        EXPECT_EQ(ReadAll(folder / "f"), "old");
    }
    Replace(folder / "f", "new");
    EXPECT_EQ(ReadAll(folder / "f"), "new");
}

/// Makes `place` a disk with 16 KB, or where that is forbidden lets no file of this process grow so
/// far.
bool FillDisk(const std::string& place) {
    if (unshare(CLONE_NEWNS) == 0 &&
        mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
        mount("none", place.c_str(), "tmpfs", 0, "size=16k") == 0) {
        return true;
    }
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit = {12288, 12288};
    setrlimit(RLIMIT_FSIZE, &limit);
    return false;
}

TEST_F(FileTable, AFullDiskLeavesTheOldFileWhole) {
    const std::string old(3000, 'o');
    for (const std::size_t size :
         {14000U, 100000U}) {  // fails when it is closed, and while printing
        SCOPED_TRACE(size);
        const int fault = InChild([&] {
            const bool disk = FillDisk(folder.Path.string());
            WriteAll(folder / "f", old);
            OpenForOutput(1, folder / "f");
            const int printing = RaisedError([&] { Print(1, std::string(size, 'x')); });
            const int closing = RaisedError([] { CloseFile(1); });
            if (size > 50000 && printing == 0) return 1;
            if (size > 50000 && disk && printing != 61) return 2;
            if (closing != 61) return 3;
            if (ReadAll(folder / "f") != old) return 4;
            if (NamesIn(folder.Path).size() != 1) return 5;
            if (FreeFile() != 1) return 6;
            Replace(folder / "f", "small");
            return ReadAll(folder / "f") == "small" ? 0 : 7;
        });
        EXPECT_EQ(fault, 0);
    }
}

TEST_F(FileTable, APrintThatFailedGivesTheFileUp) {
    for (const std::size_t size : {10U, 100000U}) {
        SCOPED_TRACE(size);
        OpenForOutput(1, "/dev/full");
        const int printing = RaisedError([&] { Print(1, std::string(size, 'x')); });
        EXPECT_EQ(printing, size > 50000 ? 61 : 0);
        EXPECT_EQ(RaisedError([] { Print(1, "y"); }), printing);
        EXPECT_EQ(RaisedError([] { CloseFile(1); }), 61);
        EXPECT_EQ(FreeFile(), 1);
    }
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    const auto reader = fork();
    if (reader == 0) _exit(ReadAll(folder / "pipe") == "through" ? 0 : 1);
    Replace(folder / "pipe", "through");
    int status = 0;
    waitpid(reader, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
}

mode_t ModeOf(const std::string& path) {
    struct stat status = {};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status.st_mode & 07777;
}

TEST_F(FileTable, TheNewFileTakesPermissionsOver) {
    for (const mode_t mode : {0600U, 0640U, 0755U}) {
        WriteAll(folder / "f", "old");
        ASSERT_EQ(chmod((folder / "f").c_str(), mode), 0);
        Replace(folder / "f", "new");
        EXPECT_EQ(ModeOf(folder / "f"), mode);
        EXPECT_EQ(ReadAll(folder / "f"), "new");
    }
}

TEST_F(FileTable, APrivateFileIsPrivateWhileItIsWritten) {
    WriteAll(folder / "f", "old");
    ASSERT_EQ(chmod((folder / "f").c_str(), 0600), 0);
    OpenForOutput(1, folder / "f");
    for (const auto& name : NamesIn(folder.Path)) EXPECT_EQ(ModeOf(folder / name), 0600U) << name;
}

TEST_F(FileTable, ALinkStaysAndItsTargetIsWritten) {
    fs::create_directory(folder / "d");
    WriteAll(folder / "d/target", "old");
    fs::create_symlink("d/target", folder / "link");
    fs::create_symlink("link", folder / "chain");
    fs::create_symlink("d/missing", folder / "dangling");
    const std::pair<const char*, const char*> rows[] = {
        {"link", "d/target"}, {"chain", "d/target"}, {"dangling", "d/missing"}};
    for (const auto& [link, target] : rows) {
        SCOPED_TRACE(link);
        Replace(folder / link, link);
        EXPECT_TRUE(fs::is_symlink(folder / link));
        EXPECT_EQ(ReadAll(folder / target), link);
    }
}

TEST_F(FileTable, WriteProtectionHolds) {
    WriteAll(folder / "f", "old");
    ASSERT_EQ(chmod((folder / "f").c_str(), 0444), 0);
    fs::create_directory(folder / "locked");
    WriteAll(folder / "locked/f", "old");
    ASSERT_EQ(chmod((folder / "locked/f").c_str(), 0666), 0);
    ASSERT_EQ(chmod((folder / "locked").c_str(), 0555), 0);
    const int fault = InChild([&] {
        if (geteuid() == 0 && setuid(65534) != 0) return 1;
        if (RaisedError([&] { OpenForOutput(1, folder / "f"); }) != 75) return 2;
        if (RaisedError([&] { OpenForOutput(1, folder / "locked/new"); }) != 75) return 3;
        return FreeFile() == 1 ? 0 : 4;
    });
    EXPECT_EQ(fault, 0);
    EXPECT_EQ(ReadAll(folder / "f"), "old");
    ASSERT_EQ(chmod((folder / "locked").c_str(), 0755), 0);
    EXPECT_EQ(NamesIn(folder / "locked"), (std::set<std::string>{"f"}));
}

TEST_F(FileTable, AChangeOfFolderDoesNotMoveAnOpenFile) {
    const auto before = fs::current_path();
    fs::current_path(folder.Path);
    OpenForOutput(1, "f");
    fs::current_path("/");
    Print(1, "text");
    CloseFile(1);
    fs::current_path(before);
    EXPECT_EQ(ReadAll(folder / "f"), "text");
}

}  // namespace

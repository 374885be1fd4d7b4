// SPDX-License-Identifier: MIT
#include "platform/file_table.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/child_process.h"
#include "support/step_test.h"

namespace quorvane::testing {

namespace fs = std::filesystem;

/// What every test prints that wants to fill a buffer, or a disk.
static const std::string Flood(100000, 'x');

/// Reads a text by lines, or by fields, each followed by "|".
static std::string PartsOf(const std::string& text, std::string_view read(int) = LineInput) {
    std::string parts;
    WriteAll("f", text);
    OpenForInput(1, "f");
    while (!EndOfFile(1)) parts += std::string(read(1)) + "|";
    CloseFile(1);
    return parts;
}

static std::string NamesHere(const std::function<std::string(const std::string&)>& shown) {
    std::string names;
    for (const auto& name : NamesIn(".")) names += (names.empty() ? "" : " ") + shown(name);
    return names;
}

/// The permissions of a file as octal digits.
static std::string ModeOf(const std::string& path) {
    const auto mode = static_cast<unsigned>(fs::status(path).permissions());
    return std::to_string(mode / 64) + std::to_string(mode / 8 % 8) + std::to_string(mode % 8);
}

/// Plays the table of the files by number and of what is on the disk.
class FileTable : public StepTest {
protected:
    FileTable() {
        Know({
            {"input", Step([](A a) { OpenForInput(a[0], a.Text); })},
            {"line", Seen([](A a) { return std::string(LineInput(a[0])); })},
            {"field", Seen([](A a) { return std::string(InputField(a[0])); })},
            {"close", Step([](A a) { CloseFile(a[0]); })},
            {"lines", Seen([](A a) { return PartsOf(a.Text); })},
            {"fields", Seen([](A a) { return PartsOf(a.Text, InputField); })},
            {"replace", OfFile([](auto& file, auto& text) { ReplaceFile(file, text); })},
            {"target", Seen([](A a) { return fs::read_symlink(a.Text).string(); })},
            {"allow", OfFile([](auto& file, auto& mode) {
                 chmod(file.c_str(), static_cast<mode_t>(std::stoi(mode, nullptr, 8)));
             })},
            {"modes", Seen([](A) { return NamesHere(ModeOf); })},
        });
    }
    /// A step with a file and what stands behind its name.
    static Word OfFile(const std::function<void(const std::string&, const std::string&)>& step) {
        return Step([step](A a) {
            auto rest = a.Text;
            const auto file = TakeWord(rest);
            step(file, rest);
        });
    }
};

TEST_F(FileTable, Table) { PlayTable("platform/file_table.tsv"); }

TEST_F(FileTable, Limits) {
    // The CR is the last byte of a buffer, the LF the next one's first.
    const std::string block(65535, 'x');
    EXPECT_EQ(PartsOf(block + "\r\nb\r\n"), block + "|b|");
    EXPECT_EQ(PartsOf(block + "\rb"), block + "|b|");
    EXPECT_EQ(PartsOf(block + "x,e\rlast", InputField), block + "x|e|last|");
    EXPECT_EQ(PartsOf(block + "xx\r\n\r\n"), block + "xx||");
    EXPECT_EQ(PartsOf(std::string("a\0b\r\n\xFF", 6)), std::string("a\0b|\xFF|", 6));
    const std::string line(MaxLineLength, 'x');
    WriteAll("f", line + "\r\n" + line + "y");
    OpenForInput(1, "f");
    EXPECT_EQ(LineInput(1), line);
    EXPECT_EQ(RaisedError([] { LineInput(1); }), 14);
    for (int number = 2; number <= 511; ++number) {
        ASSERT_EQ(FreeFile(), number);
        OpenForInput(number, "f");
    }
    EXPECT_EQ(RaisedError([] { FreeFile(); }), 67);
    CloseAllFiles();
    EXPECT_EQ(FreeFile(), 1);
}

TEST_F(FileTable, AKilledWriterLeavesTheOldFileWhole) {
    WriteAll("f", "old");
    ASSERT_EQ(chmod("f", 0600), 0);
    const int killed = InChild([] {
        LimitFiles(12288);
        std::signal(SIGXFSZ, SIG_DFL);
        ReplaceFile("f", Flood);
        return 0;
    });
    EXPECT_EQ(killed, -1);
    EXPECT_EQ(ReadAll("f"), "old");
    EXPECT_EQ(NamesHere(ModeOf), "600 600") << "what is written is as private as the old file";
}

TEST_F(FileTable, AFullDiskLeavesTheOldFileWholeAndNothingElse) {
    const std::string old(3000, 'o');
    const int fault = InChild([&] {
        LimitFiles(12288);
        WriteAll("f", old);
        if (RaisedError([] { ReplaceFile("f", Flood); }) != 61) return 1;
        if (RaisedError([] { ReplaceFile("new", Flood); }) != 61) return 2;
        if (ReadAll("f") != old || NamesIn(".").size() != 1 || FreeFile() != 1) return 3;
        ReplaceFile("f", "small");
        return ReadAll("f") == "small" ? 0 : 4;
    });
    EXPECT_EQ(fault, 0);
}

TEST_F(FileTable, ADeviceIsWrittenToAndStays) {
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    const int reader = open("pipe", O_RDWR | O_NONBLOCK);
    ReplaceFile("pipe", "through");
    char read[8] = "";
    EXPECT_EQ(::read(reader, read, 7), 7);
    close(reader);
    EXPECT_STREQ(read, "through");
    ASSERT_TRUE(fs::is_fifo("pipe")) << "what follows would do the same to the machine's device";
    for (const auto& text : {std::string("short"), Flood}) {
        EXPECT_EQ(RaisedError([&] { ReplaceFile("/dev/full", text); }), 61);
    }
}

TEST_F(FileTable, WriteProtectionHolds) {
    fs::create_directory("locked");
    WriteAll("f", "old");
    ASSERT_EQ(chmod("f", 0444), 0);
    ASSERT_EQ(chmod("locked", 0555), 0);
    const int fault = InChild([] {
        BecomeNobody();
        if (RaisedError([] { ReplaceFile("f", "new"); }) != 75) return 2;
        return RaisedError([] { ReplaceFile("locked/new", "new"); }) == 75 ? 0 : 3;
    });
    EXPECT_EQ(fault, 0);
    EXPECT_EQ(ReadAll("f"), "old");
}

}  // namespace quorvane::testing

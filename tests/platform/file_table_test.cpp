// SPDX-License-Identifier: MIT
#include "platform/file_table.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <functional>
#include <map>

#include "files/work_folder.h"
#include "platform/child_process.h"
#include "platform/raised_error.h"
#include "support/table_file.h"

using namespace quorvane;
using namespace quorvane::testing;
namespace fs = std::filesystem;

namespace {

/// What every test prints that wants to fill a buffer, or a disk.
const std::string Flood(100000, 'x');

/// Files by their plain names, in a work folder.
class FileTable : public ::testing::Test {
protected:
    void SetUp() override { fs::current_path(folder.Path); }
    void TearDown() override {
        CloseAllFiles();
        fs::current_path(before);
    }

    const fs::path before = fs::current_path();
    WorkFolder folder;
};

/// Reads a text by lines, or by fields, each followed by "|".
std::string PartsOf(const std::string& text, std::string_view read(int) = LineInput) {
    std::string parts;
    WriteAll("f", text);
    OpenForInput(1, "f");
    while (!EndOfFile(1)) parts += std::string(read(1)) + "|";
    CloseFile(1);
    return parts;
}

std::string NamesHere(const std::function<std::string(const std::string&)>& shown) {
    std::string names;
    for (const auto& name : NamesIn(".")) names += (names.empty() ? "" : " ") + shown(name);
    return names;
}

/// The permissions of a file as octal digits.
std::string ModeOf(const std::string& path) {
    const auto mode = static_cast<unsigned>(fs::status(path).permissions());
    return std::to_string(mode / 64) + std::to_string(mode / 8 % 8) + std::to_string(mode % 8);
}

/// Does a step of the table and tells what it gives.
std::string Done(const std::string& step, int number, const std::string& file,
                 const std::string& text) {
    std::string gives;
    const std::map<std::string, std::function<void()>> steps = {
        {"input", [&] { OpenForInput(number, file); }},
        {"line", [&] { gives = LineInput(number); }},
        {"field", [&] { gives = InputField(number); }},
        {"ended", [&] { gives = EndOfFile(number) ? "yes" : "no"; }},
        {"close", [&] { CloseFile(number); }},
        {"free", [&] { gives = std::to_string(FreeFile()); }},
        {"lines", [&] { gives = PartsOf(text); }},
        {"fields", [&] { gives = PartsOf(text, InputField); }},
        {"replace", [&] { ReplaceFile(file, text); }},
        {"put", [&] { WriteAll(file, text); }},
        {"get", [&] { gives = ReadAll(file); }},
        {"names", [&] { gives = NamesHere([](auto& name) { return name; }); }},
        {"folder", [&] { fs::create_directory(file); }},
        {"link", [&] { fs::create_symlink(text, file); }},
        {"target", [&] { gives = fs::read_symlink(file); }},
        {"allow", [&] { chmod(file.c_str(), static_cast<mode_t>(std::stoi(text, nullptr, 8))); }},
        {"modes", [&] { gives = NamesHere(ModeOf); }},
        {"enter", [&] { fs::current_path(file); }},
    };
    const int error = RaisedError(steps.at(step));
    return error == 0 ? gives : "error " + std::to_string(error);
}

TEST_F(FileTable, StepByStep) {
    for (const auto& row : ReadTable("platform/file_table.tsv")) {
        for (const auto& number : Split(row[1], ' ')) {
            for (const auto& file : Split(row[2], ' ')) {
                EXPECT_EQ(Done(row[0], std::atoi(number.c_str()), file, row[3]), row[4])
                    << row.back() << ": " << row[0] << " " << number << " " << file;
            }
        }
    }
}

TEST_F(FileTable, Limits) {
    // The CR is the last byte of a buffer, the LF the next one's first.
    const std::string block(16383, 'x');
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

}  // namespace

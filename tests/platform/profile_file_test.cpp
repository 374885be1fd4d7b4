// SPDX-License-Identifier: MIT
#include "platform/profile_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "files/work_folder.h"
#include "platform/child_process.h"
#include "platform/file_table.h"
#include "platform/paths.h"
#include "platform/raised_error.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

TEST(Paths, AFileIsFoundWithoutRegardToCase) {
    const WorkFolder folder;
    std::filesystem::create_directory(folder / "Sub");
    for (const char* name : {"Quorvane.INI", "b.txt", "B.TXT", "B.txt"}) {
        WriteAll(folder / name, "");
    }
    const std::pair<const char*, const char*> rows[] = {
        {"quorvane.ini", "Quorvane.INI"}, {"b.txt", "b.txt"}, {"b.Txt", "B.TXT"},
        {"none.txt", "none.txt"},         {"SUB", "Sub"},     {"none/b.txt", "none/b.txt"},
    };
    for (const auto& [asked, found] : rows) {
        EXPECT_EQ(FindInFolder(folder.Path.string(), asked), folder / found);
    }
    EXPECT_EQ(FileAttributes(folder / "QUORVANE.ini"), 32);
    for (const char* name : {"sub", "none", "", "b.txt/c"}) {
        EXPECT_EQ(RaisedError([&] { FileAttributes(folder / name); }), 53) << name;
    }
    const auto before = CurrentDirectory();
    ChangeDirectory(folder.Path.string());
    EXPECT_EQ(FindFile("quorvane.ini"), "Quorvane.INI");
    ChangeDirectory(before);
}

TEST(ProfileFile, ValuesAreReadByKeyAndSection) {
    struct Row {
        std::string Bytes, Value;
    };
    const Row rows[] = {
        {"", "none"},
        {"[s]\r\nk=v\r\n", "v"},
        {"[s]\nk=v", "v"},
        {"[s]\rk=v\r", "v"},
        {"\xEF\xBB\xBF[S]\n K \t=  a b  \n", "a b"},
        {"[ s ] ; tail\n; k=1\n#k=2\nk=3\nk=4", "3"},
        {"k=0\n[t]\nk=1\n[s]\nx=2\n[u]\nk=3\n[s]\nk=4", "4"},
        {"[s]\nk=", ""},
        {"[s]\nk", "none"},
        {"[s]\n=v\nk v\n[k=v\nk=<<<E\nx\nE\n", "<<<E"},
        {"[s\nk=v", "none"},
        {"s]\nk=v", "none"},
        {"[s]\nk=\"a\"=b;c", "\"a\"=b;c"},
        {std::string("[s]\nk=a\0b\nx=c", 14), "a"},
        {std::string("\0\0[s]\n\0\nk=v", 11), "none"},
        {std::string("[s]\n\0\nk=v", 9), "v"},
        {"[s]\n" + std::string(5000000, 'x') + "\nk=v", "v"},
        {"[s]\nk=" + std::string(17 * 1024 * 1024, 'x'), "none"},
    };
    const WorkFolder folder;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Bytes.substr(0, 60));
        WriteAll(folder / "f", row.Bytes);
        EXPECT_EQ(GetPrivateProfileString("s", "k", "none", folder / "F"), row.Value);
    }
    for (const char* name : {"missing", ".", "f/f"}) {
        EXPECT_EQ(GetPrivateProfileString("s", "k", "none", folder / name), "none") << name;
    }
}

TEST(ProfileFile, AWriteChangesOneLine) {
    struct Row {
        std::string Before, After;
    };
    const Row rows[] = {
        {"", "[s]\r\nk=v\r\n"},
        {"; mine\n[t]\nk=1", "; mine\r\n[t]\r\nk=1\r\n[s]\r\nk=v\r\n"},
        {"[S]\r\n K = 1\r\nk=2\r\n", "[S]\r\nk=v\r\nk=2\r\n"},
        {"[s] ;tail\r\n\r\na b\r\nx = 1\r\n\r\n; end\r\n[t]\r\n",
         "[s] ;tail\r\n\r\na b\r\nx = 1\r\nk=v\r\n\r\n; end\r\n[t]\r\n"},
        {"[s]\n[t]\nk=1\n[s]\nx=1\n", "[s]\r\n[t]\r\nk=1\r\n[s]\r\nx=1\r\nk=v\r\n"},
        {"[s\n\xFF\x01=\n=\n[]\n[s]\n", "[s\r\n\xFF\x01=\r\n=\r\n[]\r\n[s]\r\nk=v\r\n"},
        {std::string("\0x\n[s]", 6), std::string("\0x\r\n[s]\r\nk=v\r\n", 14)},
    };
    const WorkFolder folder;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Before);
        WriteAll(folder / "File.Ini", row.Before);
        for (int times = 1; times <= 2; ++times) {
            WritePrivateProfileString("s", "k", "v", folder / "file.ini");
            EXPECT_EQ(ReadAll(folder / "File.Ini"), row.After);
        }
        EXPECT_EQ(GetPrivateProfileString("s", "k", "none", folder / "file.ini"), "v");
    }
    EXPECT_EQ(NamesIn(folder.Path), std::set<std::string>{"File.Ini"});
    WritePrivateProfileString("s", "k", "a\r\n[t]", folder / "new.ini");
    EXPECT_EQ(ReadAll(folder / "new.ini"), "[s]\r\nk=a\r\n");
}

TEST(ProfileFile, AFailedWriteIsSilentAndLeavesTheOldFile) {
    const WorkFolder folder;
    const std::string old = "[s]\r\nk=old\r\n";
    const std::string huge(17 * 1024 * 1024, 'x');
    WriteAll(folder / "huge", huge);
    std::filesystem::create_directory(folder / "locked");
    WriteAll(folder / "locked/f", old);
    ASSERT_EQ(chmod((folder / "locked").c_str(), 0555), 0);
    const int numbersLeft = InChild([&] {
        for (const char* name : {"huge", "none/f", "locked"}) {
            WritePrivateProfileString("s", "k", "new", folder / name);
        }
        LimitFiles(8);
        WritePrivateProfileString("s", "k", "new", folder / "locked/f");
        BecomeNobody();
        WritePrivateProfileString("s", "k", "new", folder / "locked/f");
        WritePrivateProfileString("s", "k", "new", folder / "locked/g");
        return FreeFile() - 1;
    });
    EXPECT_EQ(numbersLeft, 0);
    ASSERT_EQ(chmod((folder / "locked").c_str(), 0755), 0);
    EXPECT_EQ(ReadAll(folder / "locked/f"), old);
    EXPECT_EQ(NamesIn(folder / "locked"), std::set<std::string>{"f"});
    EXPECT_EQ(std::filesystem::file_size(folder / "huge"), huge.size());
}

}  // namespace

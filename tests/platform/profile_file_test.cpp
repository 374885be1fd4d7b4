// SPDX-License-Identifier: MIT
#include "platform/profile_file.h"

#include "platform/child_process.h"
#include "support/step_test.h"

namespace quorvane::testing {

/// Plays the table of what a file gives for a key, and of what a write makes of it.
class ProfileFile : public StepTest {
protected:
    ProfileFile() {
        Know({
            {"found", Seen([](A a) { return FindInFolder(".", a.Text); })},
            {"FindFile", Seen([](A a) { return FindFile(a.Text); })},
            {"attributes", Seen([](A a) { return FileAttributes(a.Text); })},
            {"value", Seen([](A a) {
                 WriteAll("f", Bytes(a.Text));
                 return GetPrivateProfileString("s", "k", "none", "F");
             })},
            {"written", Seen([](A a) {
                 WriteAll("File.Ini", Bytes(a.Text));
                 WritePrivateProfileString("s", "k", "v", "file.ini");
                 const auto once = ReadAll("File.Ini");
                 WritePrivateProfileString("s", "k", "v", "file.ini");
                 EXPECT_EQ(ReadAll("File.Ini"), once);
                 EXPECT_EQ(GetPrivateProfileString("s", "k", "none", "file.ini"), "v");
                 return once;
             })},
        });
    }
    /// What stands behind ":", with NUL for "@".
    static std::string Bytes(std::string text) {
        std::replace(text.begin(), text.end(), '@', '\0');
        return text.substr(1);
    }
};

TEST_F(ProfileFile, Table) { PlayTable("platform/profile_file.tsv"); }

TEST_F(ProfileFile, LongLinesAndWhatIsNoFile) {
    WriteAll("f", "[s]\n" + std::string(5000000, 'x') + "\nk=v");
    EXPECT_EQ(GetPrivateProfileString("s", "k", "none", "f"), "v");
    WriteAll("f", "[s]\nk=" + std::string(17 * 1024 * 1024, 'x'));
    for (const char* name : {"f", "missing", ".", "f/f"}) {
        EXPECT_EQ(GetPrivateProfileString("s", "k", "none", name), "none") << name;
    }
    WritePrivateProfileString("s", "k", "a\r\n[t]", "new.ini");
    EXPECT_EQ(ReadAll("new.ini"), "[s]\r\nk=a\r\n");
}

TEST_F(ProfileFile, AFailedWriteIsSilentAndLeavesTheOldFile) {
    const std::string old = "[s]\r\nk=old\r\n", huge(17 * 1024 * 1024, 'x');
    WriteAll("f", old);
    WriteAll("huge", huge);
    EXPECT_EQ(InChild([] {
                  WritePrivateProfileString("s", "k", "new", "huge");
                  WritePrivateProfileString("s", "k", "new", "none/f");
                  LimitFiles(8);
                  WritePrivateProfileString("s", "k", "new", "f");
                  return FreeFile() - 1;
              }),
              0);
    EXPECT_EQ(ReadAll("f"), old);
    EXPECT_EQ(NamesIn("."), (std::set<std::string>{"f", "huge"}));
    EXPECT_EQ(std::filesystem::file_size("huge"), huge.size());
}

}  // namespace quorvane::testing

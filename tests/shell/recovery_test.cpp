// SPDX-License-Identifier: MIT
#include "shell/recovery.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <csignal>
#include <cstdlib>

#include "files/document_fixture.h"
#include "platform/file_table.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

class Recovery : public DocumentTest {
protected:
    void SetUp() override {
        DocumentTest::SetUp();
        NewDocument();
        Draw({{"Comment", "small"}}, 1);
        Draw({{"Comment", std::string(100000, 'x')}}, 2);
        NewDocument();
        DocumentStates[1].Modified = DocumentStates[2].Modified = -1;
    }
    /// Writes the files in a child process with this data folder, after `prepare`: how many were
    /// written, 100 more when a file number or a name in the folder was left behind, -1 for a
    /// crash.
    template <class Prepare>
    int FilesWritten(const std::string& data, Prepare prepare) {
        const auto child = fork();
        if (child == 0) {
            setenv("XDG_DATA_HOME", data.c_str(), 1);
            prepare();
            const auto files = WriteRecoveryFiles();
            std::size_t names = 0;
            Attempt([&] {
                std::error_code error;
                const std::filesystem::directory_iterator in(data + "/quorvane", error);
                if (!error) names = static_cast<std::size_t>(std::distance(begin(in), end(in)));
            });
            const bool clean = FreeFile() == 1 && names == files.size();
            _exit(static_cast<int>(files.size()) + (clean ? 0 : 100));
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    static void BecomeNobody() {
        if (geteuid() == 0 && setuid(65534) != 0) _exit(99);
    }
};

TEST_F(Recovery, ChangedDocumentsAreSavedUnderFreeNames) {
    const char* const before = std::getenv("XDG_DATA_HOME");
    const std::string kept = before ? before : "";
    setenv("XDG_DATA_HOME", folder.Path.c_str(), 1);
    std::filesystem::create_directory(folder / "quorvane");
    WriteAll(folder / "quorvane/recovered-1.qvm", "old");
    const std::vector<std::string> names = {folder / "quorvane/recovered-2.qvm",
                                            folder / "quorvane/recovered-3.qvm"};
    EXPECT_EQ(WriteRecoveryFiles(), names);
    before ? setenv("XDG_DATA_HOME", kept.c_str(), 1) : unsetenv("XDG_DATA_HOME");
    EXPECT_EQ(ReadAll(folder / "quorvane/recovered-1.qvm"), "old");
    for (int i = 1; i <= 2; ++i) {
        EXPECT_EQ(ReadAll(names[static_cast<std::size_t>(i) - 1]),
                  DocumentText(static_cast<std::int16_t>(i)) + "\r\n");
    }
}

TEST_F(Recovery, NoDataFolderIsTooBad) {
    WriteAll(folder / "file", "");
    std::filesystem::create_directories(folder / "read_only/quorvane");
    std::filesystem::create_directories(folder / "shut/quorvane");
    std::filesystem::create_directory_symlink("loop", folder / "loop");
    ASSERT_EQ(chmod((folder / "read_only/quorvane").c_str(), 0555), 0);
    ASSERT_EQ(chmod((folder / "shut/quorvane").c_str(), 0), 0);
    const auto none = [] {};
    EXPECT_EQ(FilesWritten(folder / "file", none), 0);
    EXPECT_EQ(FilesWritten(folder / "loop", none), 0);
    EXPECT_EQ(FilesWritten(folder / std::string(300, 'n'), none), 0);
    EXPECT_EQ(FilesWritten(folder / "read_only", BecomeNobody), 0);
    EXPECT_EQ(FilesWritten(folder / "shut", BecomeNobody), 0);
    EXPECT_EQ(FilesWritten("", [] { unsetenv("HOME"); }), 0);
    ASSERT_EQ(chmod((folder / "shut/quorvane").c_str(), 0755), 0);
    EXPECT_EQ(FilesWritten(folder / "new/deep", none), 2);
}

TEST_F(Recovery, AFullDataFolderTakesWhatStillFits) {
    const auto tooSmall = [] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {20000, 20000};
        setrlimit(RLIMIT_FSIZE, &limit);
    };
    EXPECT_EQ(FilesWritten(folder / "limited", tooSmall), 1);
    std::filesystem::create_directory(folder / "disk");
    const auto disk = [this] {
        if (unshare(CLONE_NEWNS) != 0 ||
            mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            mount("none", (folder / "disk").c_str(), "tmpfs", 0, "size=16k") != 0) {
            _exit(1);  // Mounting is forbidden here: the limit above has to do
        }
    };
    EXPECT_EQ(FilesWritten(folder / "disk", disk), 1);
}

}  // namespace

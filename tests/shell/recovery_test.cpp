// SPDX-License-Identifier: MIT
#include "shell/recovery.h"

#include <sys/stat.h>

#include "files/document_fixture.h"
#include "platform/child_process.h"
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
        screen.Data = data;
        return InChild([&] {
            prepare();
            const auto written = WriteRecoveryFiles();
            std::error_code error;
            const std::filesystem::directory_iterator in(data, error);
            const auto names = error ? 0 : std::distance(begin(in), end(in));
            bool clean = FreeFile() == 1 && names == std::ssize(written);
            for (const auto& file : written) clean &= std::filesystem::exists(file);
            return static_cast<int>(written.size()) + (clean ? 0 : 100);
        });
    }
};

TEST_F(Recovery, ChangedDocumentsAreSavedUnderFreeNames) {
    std::filesystem::create_directory("data");
    WriteAll("data/recovered-1.qvm", "old");
    EXPECT_EQ(FilesWritten(folder / "data", [] {}), 102) << "beside the one that was there";
    EXPECT_EQ(ReadAll("data/recovered-1.qvm"), "old");
    for (std::int16_t i = 1; i <= 2; ++i) {
        const auto name = "data/recovered-" + std::to_string(i + 1) + ".qvm";
        EXPECT_EQ(ReadAll(name), DocumentText(i) + "\r\n");
    }
}

TEST_F(Recovery, NoDataFolderIsTooBad) {
    WriteAll(folder / "file", "");
    std::filesystem::create_directories(folder / "read_only");
    std::filesystem::create_directories(folder / "shut");
    std::filesystem::create_directory_symlink("loop", folder / "loop");
    ASSERT_EQ(chmod((folder / "read_only").c_str(), 0555), 0);
    ASSERT_EQ(chmod((folder / "shut").c_str(), 0), 0);
    const auto none = [] {};
    EXPECT_EQ(FilesWritten(folder / "file", none), 0);
    EXPECT_EQ(FilesWritten(folder / "loop", none), 0);
    EXPECT_EQ(FilesWritten(folder / std::string(300, 'n'), none), 0);
    EXPECT_EQ(FilesWritten(folder / "read_only", BecomeNobody), 0);
    EXPECT_EQ(FilesWritten(folder / "shut", BecomeNobody), 0);
    EXPECT_EQ(FilesWritten("", none), 0);
    ASSERT_EQ(chmod((folder / "shut").c_str(), 0755), 0);
    EXPECT_EQ(FilesWritten(folder / "new/deep", none), 2);
}

TEST_F(Recovery, AFullDataFolderTakesWhatStillFits) {
    EXPECT_EQ(FilesWritten(folder / "limited", [] { LimitFiles(20000); }), 1);
}

}  // namespace

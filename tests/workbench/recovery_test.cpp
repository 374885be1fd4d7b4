// SPDX-License-Identifier: MIT
#include "workbench/recovery.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include <regex>
#include <sstream>

#include "files/close_document.h"
#include "files/document_fixture.h"
#include "platform/child_process.h"
#include "support/random_user.h"
#include "support/table_file.h"
#include "workbench/after_event.h"
#include "workbench/history.h"
#include "workbench/recovery_offer.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

namespace fs = std::filesystem;

/// Runs a check in a child process, which is killed when it is through.
template <class Child>
void InKilledChild(Child child) {
    EXPECT_EQ(InChild([&] {
                  child();
                  std::raise(SIGKILL);
                  return 0;
              }),
              -1);
}

/// From here on the folder has room for 64 KB. Where that takes more rights than we have, no file
/// gets larger than 20.
void FillDisk(const std::string& folder) {
    fs::create_directories(folder);
    const bool isFull = unshare(CLONE_NEWNS) == 0 &&
                        mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                        mount("none", folder.c_str(), "tmpfs", 0, "size=64k") == 0;
    if (!isFull) LimitFiles(20000);
}

class RecoveryTest : public DocumentTest {
protected:
    void SetUp() override {
        DocumentTest::SetUp();
        screen.State = folder / "state";
        NewDocument();
        AfterEvent();
    }
    /// The files in all folders, by their names, and what they hold.
    std::map<std::string, std::string> Files() const {
        std::map<std::string, std::string> files;
        if (!fs::exists(screen.State)) return files;
        for (const auto& entry : fs::recursive_directory_iterator(screen.State)) {
            if (entry.is_regular_file()) {
                files[entry.path().filename().string()] = ReadAll(entry.path());
            }
        }
        return files;
    }
    /// Offers what is there. Returns the lines of the dialog without the time, each followed by
    /// "|".
    std::string Offered(void (*press)()) {
        std::string lines;
        screen.Forms["recovery"] = [&] {
            const std::regex time(R"(  \d{4}-\d\d-\d\d \d\d:\d\d)");
            for (const auto& line : recovery.diagrams.List) {
                lines += std::regex_replace(line, time, "") + "|";
            }
            press();
        };
        OfferRecovery();
        AfterEvent();
        return lines;
    }
};

/// A random user whose worksheets each have a file of their own.
struct Editor : RandomUser {
    using RandomUser::RandomUser;
    std::string State;
    int Saved = 0;

    std::string NextName() { return "s" + std::to_string(++Saved) + ".qvm"; }
    std::string StateFolder() override { return State; }
    std::string SaveFileDialog(const std::string&, const std::string&) override {
        return NextName();
    }
    std::string OpenFileDialog(const std::string&, const std::string&) override {
        if (Saved == 0) throw RuntimeError(32755);
        const auto last = "s" + std::to_string(Saved) + ".qvm";
        fs::copy_file(last, NextName());
        return "s" + std::to_string(Saved) + ".qvm";
    }
};

std::string HashOf(const std::string& text) {
    return std::to_string(std::hash<std::string>()(text));
}

/// Notes what each worksheet holds before it counts as written, and that it is written. What an
/// armed box has changed isn't known before it is placed.
[[noreturn]] void EditForEver(unsigned seed, const std::string& state) {
    Editor user(seed);
    user.State = state;
    desktop = &user;
    ResetApplication();
    std::ofstream log("log");
    for (;;) {
        user.Operate();
        log << "\n";
        ForEachOpenDocument([&](Worksheet&, int i) {
            if (EditMode != 2) log << i << " " << HashOf(DocumentText(std::int16_t(i))) << " ";
        });
        log.flush();
        AfterEvent();
        WriteRecovery();
        log << "done" << std::flush;
    }
}

using Texts = std::map<int, std::string>;

Texts TextsOf(const std::string& line) {
    std::istringstream in(line);
    Texts texts;
    for (int document = 0; in >> document;) in >> texts[document];
    return texts;
}

/// Each text that was there at the last write is in a recovery file or in a saved one, unless the
/// kill came between the next texts and their write.
TEST_F(RecoveryTest, WhatWasWrittenOutlivesAKillAtAnyMoment) {
    int compared = 0;
    const auto steps = [] {
        return fs::exists("log") ? Split(ReadAll("log"), '\n').size() : std::size_t(0);
    };
    for (unsigned seed = 1; seed <= 20; ++seed) {
        for (const auto& name : NamesIn(".")) fs::remove_all(name);
        fs::remove_all(screen.State);
        const auto process = fork();
        if (process == 0) EditForEver(seed, screen.State);
        int status = 0;
        while (waitpid(process, &status, WNOHANG) == 0 && steps() < 10 * seed) usleep(1000);
        usleep(std::random_device()() % 10000);
        kill(process, SIGKILL);
        waitpid(process, &status, 0);
        EXPECT_EQ(WTERMSIG(status), SIGKILL) << "the editor ended by itself, seed " << seed;
        std::set<std::string> found = {HashOf("0\r\n")};
        auto files = Files();
        for (const auto& name : NamesIn(".")) {
            if (name.ends_with(".qvm")) files[name] = ReadAll(name);
        }
        for (const auto& [name, text] : files)
            found.insert(HashOf(text.substr(0, text.size() - 2)));
        auto lines = Split(ReadAll("log"), '\n');
        const bool isDone = lines.back().ends_with("done");
        const auto last = TextsOf(lines.back());
        const auto written = isDone || lines.size() < 2 ? last : TextsOf(lines[lines.size() - 2]);
        for (const auto& [document, text] : written) {
            const auto next = last.find(document);
            if (next == last.end()) continue;
            EXPECT_TRUE(found.contains(text) || (!isDone && found.contains(next->second)))
                << "seed " << seed << ", document " << document;
            ++compared;
        }
        const auto offered = Offered(recovery_later_Click);
        InKilledChild([&] { Offered(recovery_openAll_Click); });
        EXPECT_EQ(Offered(recovery_throwAway_Click).size(), offered.size()) << "opened and killed";
        EXPECT_TRUE(fs::is_empty(screen.State + "/recovery") || offered.empty());
    }
    EXPECT_GT(compared, 0);
}

TEST_F(RecoveryTest, WhatAProgramLeftIsOfferedUntilItIsSavedOrClosed) {
    Documents[1]->Caption = "some/one.qvm";
    Draw({{"If", "box1~=2"}}, 1);
    InKilledChild([] {
        Draw({{"Comment", "two", {}, {3}}, {"Sin", "", {2}}}, 2);
        AfterEvent();
        WriteRecovery();
    });
    const auto left = Files();
    EXPECT_EQ(left.at("1.name") + left.at("2.name"), "some/one.qvm\r\nUntitled:2\r\n");
    EXPECT_EQ(left.at("1.qvm"), DocumentText(1) + "\r\n");
    AfterEvent();
    WriteRecovery();
    const std::string lines = "Untitled:2  2 boxes|one.qvm     1 box  |";
    EXPECT_EQ(Offered(recovery_later_Click), lines) << "not those of this program, which runs";
    const auto inNewProgram = [&](void (*press)()) {
        InKilledChild([&] {
            ResetApplication();
            Offered(press);
        });
    };
    inNewProgram(recovery_later_Click);
    inNewProgram(recovery_openAll_Click);
    EXPECT_EQ(Offered(recovery_openAll_Click), lines) << "after a second kill";
    const int one = Documents[3]->Caption == "some/one.qvm" ? 3 : 4, two = 7 - one;
    EXPECT_EQ(DocumentText(one) + "\r\n", left.at("1.qvm"));
    EXPECT_EQ(DocumentText(two) + "\r\n", left.at("2.qvm"));
    EXPECT_EQ(Boxes[one == 3 ? 2 : 4].BoxText, "box1~=2") << "the file parts its fields by ~";
    EXPECT_EQ(Documents[two]->Caption, "Untitled:2");
    EXPECT_EQ(DocumentStates[one].Modified, -1);
    EXPECT_EQ(UndoName(), "") << "an undo would throw them away";
    EXPECT_EQ(Files().size(), 7U) << "three captions, three diagrams and a lock";
    for (const int document : {1, 2, 3, 4}) {
        DocumentStates[document].Modified = 0;
        CloseDocument(document);
    }
    AfterEvent();
    EndRecovery();
    EXPECT_TRUE(fs::is_empty(screen.State + "/recovery"));
}

struct BrokenFile {
    std::string File;
    int Boxes;          ///< How many can be opened
    std::string Saved;  ///< What they are saved as
};

TEST_F(RecoveryTest, ABrokenFileIsOpenedAsFarAsItReadsAndKept) {
    const std::string none = "0\r\n", sin = "Sin~\r\n0~0~-1~2~0~0~5~0~0~0~0~0~0\r\n480~960~\r\n",
                      alone = "Sin~\r\n0~0~-1~0~0~0~5~0~0~0~0~0~0\r\n480~960~\r\n",
                      cos = "Cos~x\r\n1~0~-1~0~0~0~0~0~0~0~0~0~0\r\n0~15~\r\n";
    const BrokenFile cases[] = {
        {"", 0, none},
        {"\x7f"
         "ELF\0\n\n\n",
         0, none},
        {"2\r\n" + sin, 1, "1\r\n" + alone},
        {"2\r\n" + sin + cos.substr(0, cos.size() - 4), 1, "1\r\n" + alone},
        {"2\r\n" + sin + "Cos~x\r\n1~0~x~0~0~0~0~0~0~0~0~0~0\r\n0~15~\r\n\r\n", 1, "1\r\n" + alone},
        {"7\r\n" + sin + cos + "\r\n", 2, "2\r\n" + sin + cos},
        {"2\r\n" + sin + cos + "\r\nshape~3\r\n", 2, "2\r\n" + sin + cos},
        {"1\r\nSin~\r\n0~0~-1~0~0~0~5~0~0~0~0~0~0~new\r\n480~960~7\r\n\r\n", 1, "1\r\n" + alone},
    };
    const auto root = screen.State + "/recovery";
    for (const auto& row : cases) {
        Restart();
        fs::remove_all(root);
        for (const auto* name : {"/old", "/v2/more", "/v3"}) fs::create_directories(root + name);
        for (const auto* name : {"/new", "/v2/lock", "/v2/data", "/v3/1.qvm2", "/old/1.seal"}) {
            WriteAll(root + name, "unknown");
        }
        WriteAll(root + "/old/1.qvm", row.File);
        const auto count = std::to_string(row.Boxes) + (row.Boxes == 1 ? " box  " : " boxes");
        EXPECT_EQ(Offered(recovery_openAll_Click), "Untitled  " + count + "  damaged|");
        EXPECT_EQ(DocumentText(row.Boxes == 0 ? 1 : 3), row.Saved) << row.File;
        EXPECT_EQ(screen.Messages.size(), 1U);
        EXPECT_EQ(ReadAll(root + "/old/1.qvm.damaged"), row.File);
        for (const auto* name : {"/new", "/v2/lock", "/v2/data", "/v2/more", "/v3/1.qvm2"}) {
            EXPECT_TRUE(fs::exists(root + name)) << name;
        }
        EXPECT_TRUE(fs::exists(root + "/old/1.seal"));
        EXPECT_EQ(Offered(recovery_openAll_Click), "") << "once is enough";
    }
}

TEST_F(RecoveryTest, WhatHasNoRoomStaysAndIsOfferedAgain) {
    InKilledChild([] {
        Draw({{"Sin", ""}, {"Sin", ""}});
        AfterEvent();
        WriteRecovery();
    });
    for (int i = 1; i < MaxBoxes; ++i) Draw({{"Cos", ""}});
    const std::string line = "Untitled:1  2 boxes|";
    EXPECT_EQ(Offered(recovery_openAll_Click), line);
    EXPECT_EQ(
        TakeTold(),
        "!Not everything could be opened.\n\nUntitled:1: There is no room for its 2 boxes. It "
        "will be offered again.");
    EXPECT_EQ(Offered(recovery_throwAway_Click), line);
    EXPECT_EQ(Files().size(), 3U) << "the copy of what is open";
}

TEST_F(RecoveryTest, AFolderThatTakesNothingIsToldUntilItDoes) {
    const std::string told = "recovery files can't be written: ";
    EXPECT_EQ(InChild([&] {
                  Draw({{"Comment", std::string(100000, 'x')}}, 1);
                  Draw({{"Comment", "small"}}, 2);
                  FillDisk(screen.State);
                  AfterEvent();
                  if (WriteRecovery() || RecoveryProblem() != told + "Disk full") return 1;
                  if (!HasRecoveryFile(2) || !RecoveryIsDue()) return 2;
                  Boxes[1].BoxText = "x";
                  AfterEvent();
                  return WriteRecovery() && RecoveryProblem().empty() && HasRecoveryFile(1) ? 0 : 3;
              }),
              0);
    fs::remove_all(screen.State);
    fs::create_directory(screen.State);
    ASSERT_EQ(chmod(screen.State.c_str(), 0555), 0);
    Draw({{"Comment", ""}});
    EXPECT_EQ(InChild([&] {
                  BecomeNobody();
                  AfterEvent();
                  return WriteRecovery() || RecoveryProblem() != told + "Permission denied";
              }),
              0);
    screen.State = "";
    AfterEvent();
    EXPECT_FALSE(WriteRecovery());
    screen.State = folder / "new";
    EXPECT_TRUE(WriteRecovery());
    EXPECT_EQ(RecoveryProblem(), "");
    fs::remove_all(screen.State);
    Draw({{"Comment", ""}});
    AfterEvent();
    EXPECT_TRUE(WriteRecovery()) << "the folder was removed by somebody";
}

TEST_F(RecoveryTest, AFileIsThereAsLongAsTheWorksheetIsNotStored) {
    const auto after = [&](const auto& event) {
        event();
        AfterEvent();
        WriteRecovery();
        std::string names;
        for (const auto& [name, text] : Files()) names += name + " ";
        return names;
    };
    const std::string lock = "lock ", first = "1.name 1.qvm lock ", second = "2.name 2.qvm lock ",
                      third = "3.name 3.qvm lock ";
    const auto save = [](const std::string& name) {
        return [name] {
            Documents[1]->Caption = name;
            SaveDocument(1, 1);
        };
    };
    Draw({{"Sin", "", {0}}, {"Cos", "", {0}}});
    EXPECT_EQ(after([] {}), first);
    EXPECT_EQ(after(save("a.qvm")), lock);
    EXPECT_EQ(after([] { Boxes[1].BoxOut[1] = 2, Boxes[2].BoxIn[1] = 1; }), second)
        << "though an arrow doesn't count as a change";
    EXPECT_EQ(after([] { Undo(); }), lock);
    const auto arm = [] {
        EditMode = 2;
        Draw({{"Tan", ""}});
    };
    EXPECT_EQ(after(arm), lock);
    EXPECT_EQ(after([] { Boxes[2].BoxText = "x"; }), third);
    EXPECT_TRUE(Files()["3.qvm"].starts_with("2\r\n")) << "an armed box is no part of it";
    EXPECT_EQ(after([] { EditMode = 1; }), third);
    EXPECT_TRUE(Files()["3.qvm"].starts_with("3\r\n")) << "it is placed";
    EXPECT_EQ(after(save("none/a.qvm")), third) << "not saved";
    EXPECT_EQ(Files()["3.name"], "none/a.qvm\r\n");
    EXPECT_EQ(SaveProblem(), "not saved: a.qvm");
    EXPECT_EQ(after([] { CloseDocument(1); }), third) << "and the user believes it is";
    EXPECT_EQ(SaveProblem(), "");
    EXPECT_EQ(after([] { Undo(); }), third);
    EXPECT_EQ(after(save("b.qvm")), lock);
    EXPECT_EQ(after([] { Boxes[1].BoxOut[1] = 2, Boxes[2].BoxIn[1] = 1; }), "4.name 4.qvm lock ");
    EXPECT_EQ(after([] { CloseDocument(1); }), lock);
    EndRecovery();
    EXPECT_TRUE(fs::is_empty(screen.State + "/recovery"));
}

}  // namespace

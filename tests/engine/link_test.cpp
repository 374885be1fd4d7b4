// SPDX-License-Identifier: MIT
// The link to a living engine, a real GNU Octave.
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>
#include <deque>

#include "diagram/box_table.h"
#include "engine/examples.h"
#include "files/document_file.h"
#include "generator/send_to_matlab.h"
#include "matlab_link/link.h"
#include "matlab_link/run_report.h"
#include "platform/runtime_error.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/qt_desktop.h"
#include "qt/frame/frame_view.h"
#include "support/step_test.h"

namespace quorvane::testing {
namespace {

/// A desktop whose user answers from a list.
struct LinkDesktop : QtDesktop {
    std::deque<std::string> Answers;
    std::vector<std::string> Asked;
    bool Ended = false;

    std::string InputBox(const std::string& prompt, const std::string&,
                         const std::string&) override {
        Asked.push_back(prompt);
        if (Answers.empty()) return "";
        auto answer = Answers.front();
        Answers.pop_front();
        return answer;
    }
    void EndProgram() override { Ended = true; }
    /// Questions are answered from a list too, "y" and all else.
    Answer MsgBox(const Message& message) override {
        if (message.Choice == Buttons::Ok) return Answer::Ok;
        return InputBox(message.Text, "", "") == "y" ? Answer::Yes : Answer::No;
    }
};

struct LinkTest : StepTest {
    LinkDesktop screen;
    QWidget window;

    LinkTest() {
        Know({
            {"engine", {[](A a) { StartLink(a.Text.empty() ? QUORVANE_OCTAVE : a.Text); }, {}, {}}},
            {"send", Seen([this](A a) { return Send(a.Text.substr(1)); })},
            {"stopped", Seen([this](A a) {
                 auto lines = Split(Stopped(a.Text.substr(1), a[0]), '\n');
                 return lines.front() + " ... " + lines[lines.size() - 2];
             })},
            {"boxes", Seen([](A a) {
                 LinkExecute(a.Text.substr(1), {a.Given.begin(), a.Given.end()});
                 const auto answer = LinkRequest();
                 return answer.substr(0, answer.find('\n'));
             })},
            {"finish", Seen([](A) { return LinkFinish(true); })},
            {"type", Step([this](A a) {
                 const auto answers = Split(a.Text, '|');
                 screen.Answers.assign(answers.begin(), answers.end());
             })},
            {"asked", Seen([this](A) { return Taken(screen.Asked); })},
            {"draw", Step([](A a) {
                 for (const auto& box : Split(a.Text, '|')) DrawBox(box);
             })},
            {"log", Global(frmTextResults.txt.Text)},
            {"logged", Seen([](A a) {
                 return Split(Replaced(frmTextResults.txt.Text, a.Text, "\1"), '\1').size() - 1;
             })},
        });
    }
    void SetUp() override {
        StepTest::SetUp();
        desktop = &screen;
        matlabLink = {LinkOpen,    LinkExecute, LinkRequest, LinkFinish,
                      StartOctave, BeginReport, RunIsLeft};
        escape_.setSingleShot(true);
        escape_.callOnTimeout(&window, [this] {
            QApplication::postEvent(
                &window, new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
        });
    }
    static void StartOctave() { StartLink(QUORVANE_OCTAVE); }
    /// The answer to a script; Escape is pressed after a while.
    std::string Stopped(const std::string& script, int milliseconds) {
        escape_.start(milliseconds);
        LinkExecute(script, {});
        escape_.stop();
        return LinkRequest();
    }
    /// A script that hangs fails its test and no more.
    std::string Send(const std::string& script) { return Stopped(script, 20000); }

private:
    QTimer escape_;
};

TEST_F(LinkTest, Table) { PlayTable("engine/link.tsv"); }

TEST_F(LinkTest, AnswersOfOneSession) {
    StartOctave();
    for (const auto& row : ReadTable("engine/answers.tsv")) {
        screen.Asked.clear();
        screen.Answers.clear();
        for (const auto& answer : Split(row[2], '|')) screen.Answers.push_back(answer);
        const auto got = Send(row[0]);
        if (row[1].ends_with("...")) {
            EXPECT_TRUE(got.starts_with(row[1].substr(0, row[1].size() - 3))) << row.back() << got;
        } else {
            EXPECT_EQ(got, row[1]) << row.back();
        }
        // Whatever it was, it spoils nothing of the next.
        EXPECT_EQ(Send("fine=1"), "fine = 1\n") << row.back();
    }
}

TEST_F(LinkTest, LongAnswersComeWhole) {
    StartOctave();
    std::string lines;
    for (int i = 1; i <= 20000; ++i) lines += std::to_string(i) + "\n";
    EXPECT_EQ(Send("for i=1:20000,printf('%d\\n',i);end"), lines);
}

/// The report says which box of a block failed, and what the boxes are worth, without a trace of
/// that in the user's variables.
TEST_F(LinkTest, ARunLeavesItsReport) {
    StartOctave();
    BeginReport(9);
    linkReport.wantsValues = true;
    Send("ans=7;warning('last');");
    LinkExecute("box1=1:2;box2=3;\r\nfor i=box1\r\n", {1, 2});
    LinkExecute("box3=nosuch(i);\r\n", {3});
    LinkExecute("end\r\n", {4});
    EXPECT_EQ(LinkRequest(), "box3: error: 'nosuch' undefined near line 1, column 6\n");
    EXPECT_EQ(linkReport.Of[3].Message, "'nosuch' undefined near line 1, column 6");
    EXPECT_EQ(linkReport.Of[4].State, BoxRun::None);
    EXPECT_EQ(linkReport.Sent, 4);
    for (const auto& row : ReadTable("engine/values.tsv")) {
        LinkExecute("clear box5;" + row[0], {5});
        EXPECT_EQ(LinkRequest(), "");
        const auto& report = linkReport.Of[5];
        EXPECT_EQ(report.Value, row[1]) << row.back();
        auto points = std::to_string(report.Points.size());
        for (std::size_t i = 0; i < report.Points.size() && i < 4; ++i) {
            points += " " + Show(report.Points[i]);
        }
        EXPECT_EQ(points, row[2]) << row.back();
    }
    EXPECT_EQ(Send("disp(ans),disp(lasterr),disp(lastwarn),disp(who')"),
              "7\n'nosuch' undefined near line 3, column 6\nlast\n"
              "{\n  [1,1] = ans\n  [1,2] = box1\n  [1,3] = box2\n  [1,4] = i\n}\n");
}

/// An engine that sees none of our files does all the same: one without a place for its own, and,
/// where the system lets us, one behind a wall, with an empty "/tmp".
TEST_F(LinkTest, NothingOfOursHasToBeVisible) {
    const auto program = folder / "octave-elsewhere";
    const auto octave = "exec " + Quoted(QUORVANE_OCTAVE) + " \"$@\"\n";
    const auto alone = "#!/bin/sh\nTMPDIR=/nowhere HOME=/nowhere " + octave;
    const auto walled =
        "#!/bin/sh\n[ \"$walled\" ] || walled=y exec unshare -rm \"$0\" \"$@\"\n"
        "cd / && mount -t tmpfs tmpfs /tmp && " +
        octave;
    const bool hasWalls = std::system("unshare -rm mount -t tmpfs tmpfs /tmp 2>/dev/null") == 0;
    for (const auto& script : {alone, hasWalls ? walled : alone}) {
        WriteAll(program, script);
        fs::permissions(program, fs::perms::owner_all);
        StartLink(program);
        const bool sees = script == alone;
        EXPECT_EQ(Send("disp(exist('" + program + "'))"), sees ? "2\n" : "0\n");
        EXPECT_EQ(Send("for i=1:2\r\ndisp(i)\r\nend\r\n"), "1\n2\n");
        EXPECT_EQ(Send("clear all\r\nx=1;\r\nnobody\r\n").substr(0, 15), "error: 'nobody'");
        EXPECT_EQ(Stopped("while true,end", 300), "Stopped.\n");
        EXPECT_EQ(Send("disp(1)"), "1\n");
    }
}

/// While a script runs, nothing else starts, by whatever way it comes; the question of a script is
/// answered all the same.
TEST_F(LinkTest, NothingStartsWhileAScriptRuns) {
    StartOctave();
    int started = 0;
    const auto start = [&] { Dispatch([&] { ++started; }); };
    QTimer::singleShot(100, &window, start);
    Dispatch([&] { EXPECT_EQ(Send("pause(0.5);disp(1)"), "1\n"); });
    EXPECT_EQ(started, 0);
    start();
    EXPECT_EQ(started, 1);
}

/// Closing the frame breaks off the box that runs and sends no other; the frame closes behind that.
TEST_F(LinkTest, ClosingTheFrameStopsTheRunFirst) {
    FrameView frame;
    const auto hangs =
        "Constant Input~system('sleep 20')\r\n-1~-1~-1~0~0~0~0~0~0~0~0~0~0\r\n0~0~\r\n";
    WriteAll("hangs.qvm", std::string("2\r\n") + hangs + hangs);
    LoadDocumentFile("hangs.qvm");
    StartOctave();
    QTimer::singleShot(300, &frame, &QWidget::close);
    Dispatch([&] { mnuEXEMatlab_Click(*Documents[2]); });
    EXPECT_EQ(frmTextResults.txt.Text, "box1=system('sleep 20');\r\nStopped.\n");
    EXPECT_EQ(linkReport.Sent, 1);
    EXPECT_EQ(Boxes[1].BoxMark, "");
    QElapsedTimer clock;
    for (clock.start(); !screen.Ended && clock.elapsed() < 2000;) QApplication::processEvents();
    EXPECT_TRUE(screen.Ended);
}

TEST_F(LinkTest, ExamplesGiveTheirNumbersBoxByBox) {
    const WorkFolder data;
    for (const auto& entry : fs::directory_iterator(Examples)) {
        if (entry.path().extension() == ".txt") fs::copy(entry.path(), data.Path);
    }
    StartOctave();
    Send(Prelude);
    Send("cd('" + data.Path.string() + "');");
    std::string printed;
    for (const auto& name : ExampleNames()) {
        Send(Fresh);
        std::istringstream sent(Compiled(name, "0"));
        std::string part;
        for (std::string line; std::getline(sent, line);) {
            if (line != "--\r") {
                part += line + "\n";
                continue;
            }
            const auto answer = Send(std::exchange(part, ""));
            EXPECT_EQ(answer.find("error: "), std::string::npos) << name << ": " << answer;
        }
        EXPECT_EQ(LinkFinish(true), "") << name;
        printed += Send(ChecksOf(name));
    }
    ExpectGood(printed, ExampleNames());
}

/// False for a process that is gone, or that has ended and waits to be buried.
bool Lives(pid_t process) {
    const auto status = ReadAll("/proc/" + std::to_string(process) + "/stat");
    const auto state = status.rfind(") ");
    return state != std::string::npos && status[state + 2] != 'Z' && status[state + 2] != 'X';
}

/// No test, but a program with an engine, whose number it prints; it lives as long as its input.
TEST_F(LinkTest, DISABLED_Hold) {
    StartOctave();
    std::fputs(Send("printf('engine %d\\n',getpid());").c_str(), stderr);
    while (std::getchar() != EOF) {
    }
}

/// The engine and what it runs end with the program, also when that is killed.
TEST_F(LinkTest, NoEngineOutlivesTheProgram) {
    for (const bool killed : {false, true}) {
        QProcess program;
        program.setReadChannel(QProcess::StandardError);
        program.start(QCoreApplication::applicationFilePath(),
                      {"--gtest_filter=*.DISABLED_Hold", "--gtest_also_run_disabled_tests"});
        QByteArray said;
        while (!said.startsWith("engine ")) {
            said = program.readLine();
            ASSERT_TRUE(!said.isEmpty() || program.waitForReadyRead(20000));
        }
        const auto engine = static_cast<pid_t>(said.mid(7).trimmed().toInt());
        ASSERT_TRUE(Lives(engine));
        killed ? program.kill() : program.closeWriteChannel();
        ASSERT_TRUE(program.waitForFinished());
        QElapsedTimer clock;
        clock.start();
        while (Lives(engine) && clock.elapsed() < 5000) usleep(10000);
        EXPECT_FALSE(Lives(engine)) << (killed ? "killed" : "ended");
    }
}

}  // namespace
}  // namespace quorvane::testing

// SPDX-License-Identifier: MIT
// The link to a living engine, a real GNU Octave.
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>
#include <deque>

#include "engine/examples.h"
#include "generator/send_to_matlab.h"
#include "matlab_link/link.h"
#include "platform/runtime_error.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/qt_desktop.h"
#include "support/diagram_fixture.h"

namespace quorvane::testing {
namespace {

/// A desktop whose user answers from a list.
struct LinkDesktop : QtDesktop {
    std::deque<std::string> Answers;
    std::vector<std::string> Asked;

    std::string InputBox(const std::string& prompt, const std::string&,
                         const std::string&) override {
        Asked.push_back(prompt);
        if (Answers.empty()) return "";
        auto answer = Answers.front();
        Answers.pop_front();
        return answer;
    }
    /// Questions are answered from a list too, "y" and all else.
    Answer MsgBox(const Message& message) override {
        if (message.Choice == Buttons::Ok) return Answer::Ok;
        return InputBox(message.Text, "", "") == "y" ? Answer::Yes : Answer::No;
    }
};

struct LinkTest : DiagramTest {
    LinkDesktop screen;
    QWidget window;

    void SetUp() override {
        DiagramTest::SetUp();
        desktop = &screen;
        matlabLink = {LinkOpen, LinkExecute, LinkRequest, LinkFinish, StartOctave};
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
    int Raised(const std::string& script) {
        try {
            LinkExecute(script, {});
        } catch (const RuntimeError& error) {
            return error.Number;
        }
        return 0;
    }

private:
    QTimer escape_;
};

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

TEST_F(LinkTest, EscapeBreaksOffWhatDoesNotEnd) {
    StartOctave();
    Send("before=1;");
    for (const char* endless :
         {"disp(1);while true,end", "disp(1);system('sleep 30');", "disp(1);x=builtin('input','');",
          "disp(1);builtin('keyboard');", "disp(1);pause(30);"}) {
        QElapsedTimer clock;
        clock.start();
        const auto answer = Stopped(endless, 400);
        EXPECT_TRUE(answer.starts_with("1\n")) << answer;
        EXPECT_TRUE(answer.ends_with("Stopped.\n")) << answer;
        EXPECT_LT(clock.elapsed(), 20000) << endless;
        EXPECT_EQ(Send("before"), "before = 1\n") << endless;
    }
}

TEST_F(LinkTest, ADeafEngineIsEndedByForce) {
    StartOctave();
    EXPECT_EQ(Stopped("system(\"trap '' INT;sleep 30\");", 100),
              "Stopped.\nMatlab has been ended by signal 9.\n");
    EXPECT_EQ(Raised("x"), 282);
}

TEST_F(LinkTest, AnEngineThatEndsIsToldAndMissed) {
    for (const auto& [last, told] : std::map<std::string, std::string>{
             {"disp(1);exit(3)", "1\nMatlab has ended with exit code 3.\n"},
             {"disp(1);kill(getpid(),9);", "1\nMatlab has been ended by signal 9.\n"}}) {
        StartOctave();
        EXPECT_EQ(Send(last), told);
        EXPECT_EQ(Raised("x=1"), 282);
    }
}

/// What can't be read is told by the box that wrote it, and by the line of that box.
TEST_F(LinkTest, ComplaintsNameTheBox) {
    StartOctave();
    const auto told = [&](const std::string& script, const LineBoxes& boxes) {
        LinkExecute(script, boxes);
        const auto answer = LinkRequest();
        return answer.substr(0, answer.find('\n'));
    };
    EXPECT_EQ(told("x=[1 2\r\n", {4}), "box4: parse error near line 1");
    EXPECT_EQ(told("warning('careful')\r\n", {1}), "warning: careful");
    EXPECT_EQ(told("y=1;\r\nfor i=1:3\r\n", {7, 8}), "");
    EXPECT_EQ(LinkFinish(true), "box8: The block that begins here is never closed.\n");
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

TEST_F(LinkTest, ARunStartsAnEngineWhereNoneAnswers) {
    Draw({{"Constant Input", "1", {}, {2}},
          {"Compute Function", "exit(box1+3)", {1}, {3}},
          {"Compute Function", "b=exist('box1')", {2}}});
    screen.Answers = {"y", "y"};
    mnuEXEMatlab_Click(Sheet());
    EXPECT_EQ(frmTextResults.txt.Text,
              "box1=1;\r\nbox2=0;exit(box1+3)\r\nMatlab has ended with exit code 4.\n"
              "box3=0;b=exist('box1')\r\nb = 0\n");
    EXPECT_EQ(screen.Asked.size(), 2U);
}

/// Only the first plot of a run is led in; with a screen or without, none of them holds it up.
TEST_F(LinkTest, PlotsOfARun) {
    StartOctave();
    Draw({{"Constant Input", "[1 2 3]", {}, {2, 3}},
          {"Plot Output", "x;plot(Input1)", {1}},
          {"Plot Output", "x;plot(Input1)", {1}}});
    mnuEXEMatlab_Click(Sheet());
    const auto& log = frmTextResults.txt.Text;
    const auto first = log.find("\nsystem_dependent(12,'off');figure;plot(box1);\r\n");
    EXPECT_NE(first, std::string::npos) << log;
    EXPECT_NE(log.find("plot(box1);", first + 60), std::string::npos) << log;
    EXPECT_EQ(log.find("undefined"), std::string::npos) << log;
    EXPECT_EQ(Send("x=1"), "x = 1\n");
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

TEST_F(LinkTest, ProgramsThatAreNoEngine) {
    for (const char* program : {"/nowhere/octave", "/bin/false"}) {
        EXPECT_THROW(StartLink(program), RuntimeError) << program;
        EXPECT_EQ(Raised("x=1"), 282);
    }
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

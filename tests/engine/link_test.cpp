// SPDX-License-Identifier: MIT
// The link to a living engine: a real GNU Octave, and for what Octave doesn't do a scripted one.
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QThread>
#include <QTimer>
#include <QWidget>
#include <deque>

#include "engine/examples.h"
#include "generator/output_targets.h"
#include "platform/runtime_error.h"
#include "qt/dispatch.h"
#include "qt/qt_desktop.h"
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
    void StartMatlab() override { StartProcess(QUORVANE_OCTAVE); }
};

struct LinkTest : DiagramTest {
    LinkDesktop screen;
    QWidget window;

    void SetUp() override {
        DiagramTest::SetUp();
        desktop = &screen;
        escape_.setSingleShot(true);
        escape_.callOnTimeout(&window, [this] {
            QApplication::postEvent(
                &window, new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
        });
    }
    void StartOctave() { screen.StartMatlab(); }
    void StartScripted(const std::string& scenario) {
        const auto script =
            ReadAll(fs::path(QUORVANE_SOURCE_DIR) / "tests/engine/scripted_engine.sh");
        const auto program = folder_ / "octave";
        WriteAll(program, "#!/bin/sh\nscenario=" + scenario + "\n" + script);
        fs::permissions(program, fs::perms::all);
        screen.StartProcess(program);
    }
    /// The answer to a script; Escape is pressed after a while.
    std::string Stopped(const std::string& script, int milliseconds) {
        escape_.start(milliseconds);
        screen.LinkExecute(script, {});
        escape_.stop();
        return screen.LinkRequest();
    }
    /// A script that hangs fails its test and no more.
    std::string Send(const std::string& script) { return Stopped(script, 20000); }
    int Raised(const std::string& script) {
        try {
            screen.LinkExecute(script, {});
        } catch (const RuntimeError& error) {
            return error.Number;
        }
        return 0;
    }

private:
    QTimer escape_;
    WorkFolder folder_;
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
    const auto flood = Send("for i=1:3000,disp(repmat('x',1,9999));end");
    EXPECT_LT(flood.size(), 9U << 20);
    EXPECT_TRUE(flood.ends_with(" bytes more\n"));
    EXPECT_EQ(Send("a=1"), "a = 1\n");
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

TEST_F(LinkTest, AnEngineThatEndsIsToldAndMissed) {
    for (const auto& [last, told] : std::map<std::string, std::string>{
             {"disp(1);exit(3)", "1\nMatlab has ended with exit code 3.\n"},
             {"disp(1);kill(getpid(),9);", "1\nMatlab has been ended by signal 9.\n"}}) {
        EXPECT_EQ(Raised("x=1"), 282);
        StartOctave();
        Send("for i=1:3\n");
        EXPECT_EQ(Send("end," + last), told);
    }
    EXPECT_EQ(Raised("x=1"), 282);
    StartOctave();
    EXPECT_EQ(Send("x=1"), "x = 1\n") << "a part that was kept for the dead engine must be gone";
}

TEST_F(LinkTest, BlocksRunWhenTheyAreClosed) {
    StartOctave();
    EXPECT_EQ(Send("for i=1:2\r\n"), "");
    EXPECT_EQ(Send("   if i>1\r\n      i\r\n   end\r\n"), "");
    EXPECT_EQ(Send("end\r\nx=i\r\n"), "i = 2\nx = 2\n");
    EXPECT_EQ(Send("while true,x=7\r\n"), "");
    EXPECT_EQ(screen.LinkFinish(false), "") << "half a block was dropped";
    EXPECT_EQ(screen.LinkFinish(true), "");
    EXPECT_EQ(Send("x"), "x = 2\n");
    EXPECT_EQ(Send("y=1"), "y = 1\n");
}

/// What can't be read is told by the box that wrote it, and by the line of that box.
TEST_F(LinkTest, ComplaintsNameTheBox) {
    StartOctave();
    const auto told = [&](const std::string& script, const LineBoxes& boxes) {
        screen.LinkExecute(script, boxes);
        auto answer = screen.LinkRequest();
        return answer.substr(0, answer.find('\n'));
    };
    EXPECT_EQ(told("x=[1 2\r\n", {4}), "box4: parse error near line 1");
    EXPECT_EQ(told("x=[1 2", {5}), "box5: parse error near line 1");
    EXPECT_EQ(told("if 1\r\n", {2}), "");
    EXPECT_EQ(told("a=1\r\nb=3+*4\r\nend\r\n", {3, 3, 6}), "box3: parse error near line 2");
    EXPECT_EQ(told("warning('careful')\r\n", {1}), "warning: careful");
    EXPECT_EQ(told("y=1;\r\nfor i=1:3\r\n", {7, 8}), "");
    EXPECT_EQ(told("disp(i)\r\n", {9}), "");
    EXPECT_EQ(screen.LinkFinish(true), "box8: The block that begins here is never closed.\n");
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

/// A run of a constant and a chain of formulas behind it: what the user replies to each offer to
/// start an engine, and what stands in the log behind the constant's line.
struct RunRow {
    const char* What;
    std::deque<std::string> Replies;
    std::vector<const char*> Formulas;
    std::string Log;
};
const RunRow runRows[] = {
    {"no engine, and none wanted", {"n"}, {"a=2"}, ""},
    {"no engine, and one is started", {"y"}, {"a=box1+1"}, "box2=0;a=box1+1\r\na = 2\n"},
    {"an error, and the run goes on",
     {},
     {"error('no')", "b=3"},
     "box2=0;error('no')\r\nerror: no\nbox3=0;b=3\r\nb = 3\n"},
    {"all is cleared", {}, {"clear all", "b=3"}, "box2=0;clear all\r\nbox3=0;b=3\r\nb = 3\n"},
    {"the engine dies, and another one goes on",
     {"y"},
     {"exit(4)", "b=exist('box1')"},
     "box2=0;exit(4)\r\nMatlab has ended with exit code 4.\nbox3=0;b=exist('box1')\r\nb = 0\n"},
};

TEST_F(LinkTest, RunsOfADiagram) {
    for (const auto& row : runRows) {
        SCOPED_TRACE(row.What);
        Draw({{"Constant Input", "1", {}, {2}}});
        for (const char* formula : row.Formulas) {
            const int number = NextBox;
            const bool isLast = formula == row.Formulas.back();
            Draw({{"Compute Function", formula, {number - 1}, {isLast ? 0 : number + 1}}});
        }
        screen.Asked.clear();
        screen.Answers = row.Replies;
        mnuEXEMatlab_Click(Sheet());
        EXPECT_EQ(frmTextResults.txt.Text, (row.Log.empty() ? "" : "box1=1;\r\n") + row.Log);
        EXPECT_EQ(screen.Asked.size(), row.Replies.size());
        frmTextResults_cmdOK_Click();
        DiagramTest::SetUp();
        desktop = &screen;
    }
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
        EXPECT_EQ(screen.LinkFinish(true), "") << name;
        printed += Send(ChecksOf(name));
    }
    ExpectGood(printed, ExampleNames());
}

TEST_F(LinkTest, MarksMayComeInPieces) {
    StartScripted("pieces");
    EXPECT_EQ(Send("x"), "abc");
    EXPECT_EQ(Send("y"), "seen") << "an older script's end is none of this one";
}

TEST_F(LinkTest, ASilentEngineIsEndedByForce) {
    StartScripted("deaf");
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(Stopped("x", 100), "Stopped.\nMatlab has been ended by signal 9.\n");
    EXPECT_LT(clock.elapsed(), 20000);
    EXPECT_EQ(Raised("x"), 282);
}

/// Both the waiting for an engine that goes and its end are due at once.
TEST_F(LinkTest, AnEngineThatGoesWhileNobodyLooks) {
    StartScripted("going");
    QTimer::singleShot(2500, &window, [] { QThread::msleep(1500); });
    EXPECT_EQ(Send("x").substr(0, 3), "bye");
    EXPECT_EQ(Raised("x"), 282);
}

TEST_F(LinkTest, ProgramsThatAreNoEngine) {
    for (const char* program : {"/nowhere/octave", "/bin/false"}) {
        EXPECT_THROW(screen.StartProcess(program), RuntimeError) << program;
        EXPECT_EQ(Raised("x=1"), 282);
    }
}

/// False for a process that is gone, or that has ended and waits to be buried.
bool Lives(pid_t process) {
    const auto status = ReadAll("/proc/" + std::to_string(process) + "/stat");
    const auto state = status.rfind(") ");
    return state != std::string::npos && status[state + 2] != 'Z' && status[state + 2] != 'X';
}

/// The engine and what it runs end with the program, also when that is killed.
TEST_F(LinkTest, NoEngineOutlivesTheProgram) {
    for (const bool killed : {false, true}) {
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(), {"--hold"});
        ASSERT_TRUE(program.waitForReadyRead(20000));
        const auto engine = static_cast<pid_t>(program.readLine().trimmed().toInt());
        ASSERT_TRUE(Lives(engine));
        killed ? program.kill() : program.closeWriteChannel();
        ASSERT_TRUE(program.waitForFinished());
        QElapsedTimer clock;
        clock.start();
        while (Lives(engine) && clock.elapsed() < 5000) usleep(10000);
        EXPECT_FALSE(Lives(engine)) << (killed ? "killed" : "ended");
    }
}

/// A program with a busy engine, whose number it prints; it lives as long as its input.
int Hold() {
    LinkDesktop screen;
    desktop = &screen;
    screen.StartProcess(QUORVANE_OCTAVE);
    screen.LinkExecute("printf('%d\\n',getpid());", {});
    std::fputs(screen.LinkRequest().c_str(), stdout);
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return 0;
}

}  // namespace
}  // namespace quorvane::testing

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    if (argc > 1 && argv[1] == std::string("--hold")) return quorvane::testing::Hold();
    return RUN_ALL_TESTS();
}

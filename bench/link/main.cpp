// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QWidget>
#include <algorithm>
#include <cstdio>
#include <string>

#include "diagram/box_table.h"
#include "files/document_file.h"
#include "generator/send_to_matlab.h"
#include "matlab_link/link.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/qt_desktop.h"
#include "qt/frame/frame_view.h"
#include "shell/application.h"

/// What the link to a living Octave costs: each figure with its target. The argument is the path of
/// octave-cli.
namespace {

using namespace quorvane;

/// Nobody presses OK.
struct BenchDesktop : QtDesktop {
    Answer MsgBox(const Message&) override { return Answer::Ok; }
};

constexpr int Sends = 200;
constexpr int ChainBoxes = MaxBoxes - 1;

void Report(const char* what, double value, double target) {
    std::printf("%-46s %8.2f ms  target %5g  %s\n", what, value, target,
                value < target ? "OK" : "over");
}

double Milliseconds(const QElapsedTimer& timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// How long an Octave takes for so many lines that are typed into it one by one.
double TypedMilliseconds(const QString& octave, int lines) {
    QProcess process;
    process.start(octave, {"--quiet", "--no-init-file", "--no-history", "--interactive"});
    QElapsedTimer timer;
    for (int i = -10; i < lines; ++i) {
        if (i == 0) timer.start();
        process.write("disp(1);\n");
        QByteArray answer;
        while (!answer.contains("1\n") && process.waitForReadyRead()) answer += process.readAll();
    }
    const auto typed = Milliseconds(timer);
    process.kill();
    process.waitForFinished();
    return typed;
}

/// What something takes at its best: others use the machine too.
template <class Work>
double BestMilliseconds(Work&& work) {
    constexpr int times = 7;
    double best = 1e9;
    for (int i = 0; i < times; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        best = std::min(best, Milliseconds(timer));
    }
    return best;
}

/// The diagram's run, its answers shown.
double RunMilliseconds() {
    return BestMilliseconds([] { mnuEXEMatlab_Click(*Documents[1]); });
}

/// Scripts of box 1, one after another.
double SendMilliseconds() {
    return BestMilliseconds([] {
        RefreshScreen();
        for (int i = 0; i < Sends; ++i) {
            LinkExecute("x=1;", {1});
            LinkRequest();
        }
    });
}

/// What the value of a box costs that holds this.
void ReportValueOf(const char* what, const std::string& value, QWidget* panel) {
    LinkExecute("box1=" + value + ";", {});
    LinkRequest();
    panel->hide();
    const auto plain = SendMilliseconds();
    panel->show();
    Report(what, (SendMilliseconds() - plain) / Sends, 0.3);
}

void DrawChain() {
    NewDocument();
    for (int i = 1; i <= ChainBoxes; ++i) {
        Box& box = Boxes[NextBox];
        box = Box();
        box.BoxType = i == 1 ? "Constant Input" : "Screen Output";
        box.BoxText = "1";
        box.BoxDocument = 1;
        box.BoxIn.Fill(LockedSlot);
        if (i > 1) box.BoxIn[1] = static_cast<std::int16_t>(i - 1);
        if (i < ChainBoxes) box.BoxOut[1] = static_cast<std::int16_t>(i + 1);
        ++NextBox;
    }
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    BenchDesktop screen;
    desktop = &screen;
    ResetApplication();
    FrameView frame;
    frame.show();
    const char* const octave = argc > 1 ? argv[1] : "/usr/bin/octave-cli";
    QElapsedTimer timer;
    timer.start();
    StartLink(octave);
    Report("start of the engine", Milliseconds(timer), 1000);
    Report("one box there and back", SendMilliseconds() / Sends, 0.4);
    DrawChain();
    const auto run = RunMilliseconds();
    Report("a diagram of 349 boxes, its answers shown", run, 150);
    const auto typed = TypedMilliseconds(octave, ChainBoxes);
    std::printf("%-46s %8.2f     target   0.1  %s\n", "  beside its statements typed into Octave",
                run / typed, run / typed <= 0.1 ? "OK" : "over");
    auto* panel = frame.findChild<QWidget*>("boxesPanel");
    panel->show();
    Report("  with the values of its boxes, a box more", (RunMilliseconds() - run) / ChainBoxes,
           0.3);
    ReportValueOf("  the value of a vector", "sin(1:1000)", panel);
    ReportValueOf("  the value of a 10,000 x 10,000 matrix", "rand(10000)", panel);
    panel->hide();
    timer.start();
    LinkExecute("for i=1:20000,disp(i),end", {});
    frmTextResults.txt.Text += LinkRequest();
    frame.Refresh();
    QCoreApplication::processEvents();
    Report("20,000 lines printed and shown", Milliseconds(timer), 1000);
    return 0;
}

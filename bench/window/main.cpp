// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QWindow>
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "diagram/arrows.h"
#include "diagram/box_table.h"
#include "diagram/placement.h"
#include "diagram/worksheet.h"
#include "files/document_file.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/qt_desktop.h"
#include "qt/frame/frame_view.h"
#include "qt/sheet/worksheet_view.h"
#include "shell/application.h"
#include "shell/start_up.h"

/// What a large worksheet costs on the screen: each figure with its target. A time is that of the
/// whole way, from the event or the change of the records to the end of the painting.
namespace {

using namespace quorvane;

/// Its clock runs fast, so that nobody waits for the splash, and the last look at it is the
/// splash's end.
struct FastDesktop : QtDesktop {
    int ClockSeconds() override {
        SinceSplash.start();
        return seconds_ += 3;
    }
    QElapsedTimer SinceSplash;

private:
    int seconds_ = 0;
};

constexpr int Arrows = 1000;
constexpr QSize SheetSize(1200, 900);

void Report(const char* what, double value, double target, const char* unit) {
    std::printf("%-46s %8.2f %s  target %3g  %s", what, value, unit, target,
                value < target ? "OK" : "over");
}

double Milliseconds(const QElapsedTimer& timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// Runs a step many times, each to the end of its painting. The median is what counts; the time
/// that 95 of 100 stay under stands behind it and tells how busy the machine was, too.
void Measure(const char* what, double target, int runs, const std::function<void(int)>& step) {
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        step(i);
        QCoreApplication::processEvents();
        times.push_back(Milliseconds(timer));
    }
    std::sort(times.begin(), times.end());
    Report(what, times[times.size() / 2], target, "ms");
    std::printf("  (95 of 100: %.2f)\n", times[times.size() * 95 / 100]);
}

/// 25 boxes in a row; each arrow goes from a box far away to the lowest free entry.
void DrawSheet(Worksheet& sheet) {
    EditMode = 1;
    for (int i = 0; i < MaxBoxes; ++i) {
        AddBox(sheet);
        GiveIcon(sheet.box[NextBox - 1], i % 2 ? "Sin" : "Matrix Length");
        Boxes[NextBox - 1].BoxType = i % 2 ? "Sin" : "Matrix Length";
        PlaceArmedBox(sheet, 150 + i % 25 * 690.0, 150 + i / 25 * 870.0);
    }
    std::vector<int> exits(MaxBoxes + 1, 0);
    for (int i = 0; i < Arrows; ++i) {
        const int destination = i % MaxBoxes + 1;
        const int entry = i / MaxBoxes + 1;
        const int source = (destination * 37 + entry * 101) % MaxBoxes + 1;
        const auto exit = ++exits[static_cast<std::size_t>(source)];
        Boxes[destination].BoxIn[entry] = static_cast<std::int16_t>(source);
        Boxes[source].BoxOut[exit] = static_cast<std::int16_t>(destination);
    }
    RedrawDocument(sheet.Tag);
}

/// Resident memory of this process, in MB.
double Memory() {
    std::ifstream counts("/proc/self/statm");
    long size = 0;
    long resident = 0;
    counts >> size >> resident;
    return static_cast<double>(resident * sysconf(_SC_PAGESIZE)) / 1e6;
}

/// Brings the mouse over a box, or away from it, as the screen tells it.
void Hover(QWidget* box, bool over) {
    const QPointF at(5, 5);
    QEnterEvent enter(at, at, box->mapToGlobal(at));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(box, over ? static_cast<QEvent*>(&enter) : &leave);
}

void MoveTo(QWidget* widget, QPoint at, Qt::MouseButtons buttons) {
    QMouseEvent move(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, buttons,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
}

/// Draws the arrows in another colour, so that none of what was painted can be used again.
void Recolor(Worksheet& sheet, int step) {
    Boxes[1].BoxLineColor.Fill(step);
    RedrawDocument(sheet.Tag);
    RefreshScreen();
}

void MeasureSheet(FrameView& frame) {
    Worksheet& sheet = *Documents[1];
    auto* surface = frame.findChild<QWidget*>("surface");
    auto* box = surface->findChild<QWidget*>("box(180)");
    Measure("full repaint, arrows drawn anew", 16, 100, [&](int i) { Recolor(sheet, i); });
    Measure("full repaint, nothing changed", 16, 100, [&](int) { surface->update(); });
    Measure("mouse move over the sheet", 2, 500, [&](int i) {
        MoveTo(surface, {i * 2 % surface->width(), 55}, Qt::NoButton);
    });
    Measure("mouse move on and off a box, bubble", 2, 500, [&](int i) {
        Hover(box, i % 2 == 0);
        if (i % 2) {
            MoveTo(surface, {5, 5}, Qt::NoButton);
        } else {
            MoveTo(box, {5, 5}, Qt::NoButton);
        }
    });
    Measure("mouse move that stretches the rubber band", 2, 500, [&](int i) {
        MoveTo(surface, {2 + i * 2, 2 + i}, Qt::LeftButton);
    });
}

void MeasureScales(FrameView& frame) {
    Worksheet& sheet = *Documents[1];
    auto* view = static_cast<WorksheetView*>(frame.Area()->subWindowList().constFirst()->widget());
    for (const int percent : {25, 50, 100, 200, 400}) {
        view->SetZoom(percent);
        const auto what = "at " + std::to_string(percent) + " %, arrows drawn anew";
        Measure(what.c_str(), 16, 100, [&](int i) { Recolor(sheet, i); });
    }
    Measure("zoom by a step", 50, 60,
            [&](int i) { i / 15 % 2 ? view->ZoomIn() : view->ZoomOut(); });
    view->SetZoom(100);
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    ResetApplication();
    FastDesktop screen;
    desktop = &screen;

    QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    std::ofstream("quorvane.ini") << "[Prefrences]\r\nShow Toolbox=1\r\n"
                                     "Default Toolbox=default.tlb\r\nToolbox Size=3X3\r\n";
    FrameView frame;
    Dispatch(StartProgram);
    frame.show();
    while (!frame.windowHandle()->isExposed()) QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    Report("end of the splash to the frame's first answer", Milliseconds(screen.SinceSplash), 150,
           "ms");
    std::printf("\n");

    frame.resize(SheetSize + QSize(120, 160));
    NewDocument();
    RefreshScreen();
    auto* window = frame.Area()->subWindowList().constFirst();
    auto* surface = window->findChild<QWidget*>("surface");
    window->resize(window->size() + SheetSize - surface->size());
    QCoreApplication::processEvents();
    DrawSheet(*Documents[1]);
    RefreshScreen();
    QCoreApplication::processEvents();
    std::printf("%d boxes, %d arrows, surface %d x %d\n", NextBox - 1, Arrows, surface->width(),
                surface->height());
    MeasureSheet(frame);
    MeasureScales(frame);
    Report("memory with this sheet", Memory(), 80, "MB");
    std::printf("\n");
    return 0;
}

// SPDX-License-Identifier: MIT
// What the browser of commands costs with an index of 50,000 functions: from the command that opens
// it until it is painted, from the choice of all functions until they are, and through all of them.
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QListView>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>

#include "commands/command_browser_door.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/qt_desktop.h"
#include "qt/dialogs/form_view.h"
#include "qt/frame/frame_view.h"
#include "shell/application.h"

namespace {

using namespace quorvane;

/// The files of the index aren't there, and nobody is asked about it.
struct SilentDesktop : QtDesktop {
    Answer MsgBox(const Message&) override { return Answer::No; }
};

constexpr int Folders = 1000;
constexpr int FilesInEach = 50;

std::string FolderPath(int folder) {
    const auto number = std::to_string(folder);
    return "/opt/toolboxes/part" + number.substr(0, 1) + "/functions_of_kind_" + number;
}

void WriteIndex() {
    std::ofstream index("mfiles.txt", std::ios::binary);
    index << "[Directories]\r\n";
    for (int i = 0; i < Folders; ++i) {
        index << "functions_of_kind_" << i << ';' << FolderPath(i) << "\r\n";
    }
    index << "[Files]\r\n";
    for (int i = 0; i < Folders * FilesInEach; ++i) {
        index << FolderPath(i / FilesInEach) << "/function_number_" << i << ".m\r\n";
    }
}

double MillisecondsSince(const QElapsedTimer& timer) {
    QCoreApplication::processEvents();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void Report(const char* what, double value, double target) {
    std::printf("%-46s %8.2f ms  target %3g  %s\n", what, value, target,
                value < target ? "OK" : "over");
}

void UseBrowser(const QElapsedTimer& opening) {
    auto* dialog = QApplication::activeModalWidget();
    if (!dialog) return QTimer::singleShot(0, [&] { UseBrowser(opening); });
    Report("open", MillisecondsSince(opening), 300);
    auto* list = dialog->findChild<QListView*>("lstFunc");
    QElapsedTimer timer;
    timer.start();
    dialog->findChild<QComboBox*>("cmbCategory")->setCurrentText("zzz All M files zzz");
    Report("list all functions", MillisecondsSince(timer), 300);
    double slowest = 0;
    auto* bar = list->verticalScrollBar();
    constexpr int Steps = 200;
    for (int i = 1; i <= Steps; ++i) {
        timer.start();
        bar->setValue(bar->maximum() / Steps * i);
        slowest = std::max(slowest, MillisecondsSince(timer));
    }
    Report("scroll, slowest of 200 steps to the end", slowest, 16);
    timer.start();
    list->keyboardSearch("function_number_49998");
    Report("jump to a function near the end", MillisecondsSince(timer), 100);
    std::printf("%d functions listed, at number %d\n", list->model()->rowCount(),
                list->currentIndex().row());
    dialog->close();
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    ResetApplication();
    SilentDesktop screen;
    desktop = &screen;
    QTemporaryDir folder;
    std::filesystem::current_path(folder.path().toStdString());
    WriteIndex();
    FrameView frame;
    frame.show();
    QCoreApplication::processEvents();
    QElapsedTimer opening;
    QTimer::singleShot(0, [&] { UseBrowser(opening); });
    opening.start();
    OpenCommandBrowser("mat");
    std::filesystem::current_path("/");
    return 0;
}

// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>

#include "diagram/box_table.h"
#include "diagram/worksheet.h"
#include "platform/file_table.h"
#include "qt/desktop/qt_desktop.h"
#include "qt/desktop/recovery_watch.h"
#include "shell/application.h"
#include "workbench/recovery_offer.h"

using namespace quorvane;

namespace {

/// A program that another one has started anew says in a file what it opened.
int OpenAgainAndTell() {
    QtDesktop own;
    desktop = &own;
    ResetApplication();
    OpenRecovery();
    ReplaceFile(own.StateFolder() + "/shown", Documents[1]->Caption + " " + Boxes[1].BoxType);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication application(argc, argv);
    if (argc > 1 && std::string(argv[1]) == OpenAgain) return OpenAgainAndTell();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

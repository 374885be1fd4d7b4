// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <QStyle>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "files/document_file.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/program_style.h"
#include "qt/desktop/qt_desktop.h"
#include "qt/desktop/recovery_watch.h"
#include "qt/frame/frame_view.h"
#include "quorvane/version.h"
#include "shell/application.h"
#include "shell/start_up.h"
#include "workbench/recovery.h"
#include "workbench/recovery_offer.h"

namespace {

/// Qt reports a missing screen in many lines and crashes; here it is one line and an
/// ordinary end.
void TellFatal(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type != QtFatalMsg) {
        const bool ofScreen = QByteArray(context.category).startsWith("qt.qpa");
        if (!ofScreen) std::fprintf(stderr, "%s\n", qPrintable(text));
        return;
    }
    std::fprintf(stderr, "quorvane: There is no screen to show the windows on\n");
    std::_Exit(1);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::string_view(argv[1]) == "--version") {
        std::printf("quorvane %s\n", QUORVANE_VERSION);
        return 0;
    }
    qInstallMessageHandler(TellFatal);
    QApplication application(argc, argv);
    qInstallMessageHandler(nullptr);
    // Qt has taken the country's way of writing numbers; diagrams and settings have a point.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName("Quorvane");
    QApplication::setOrganizationName("Quorvane");
    QApplication::setApplicationVersion(QUORVANE_VERSION);
    QGuiApplication::setDesktopFileName("quorvane");
    if (QApplication::style()->name() == "fusion") {
        QApplication::setStyle(new quorvane::ProgramStyle);
    }
    QApplication::setWindowIcon(QIcon(":/quorvane.svg"));
    // Starting may lead to another folder.
    QStringList diagrams = QApplication::arguments().mid(1);
    const bool opensAgain = diagrams.removeAll(quorvane::OpenAgain) > 0;
    for (auto& diagram : diagrams) diagram = QFileInfo(diagram).absoluteFilePath();
    quorvane::QtDesktop desktop;
    quorvane::desktop = &desktop;
    quorvane::GoToSettings();
    quorvane::ResetApplication();
    quorvane::FrameView frame;
    quorvane::Dispatch(quorvane::StartProgram);
    frame.show();
    quorvane::StartRecoveryWatch();
    quorvane::Dispatch(opensAgain ? quorvane::OpenRecovery : quorvane::OfferRecovery);
    for (const auto& diagram : diagrams) {
        quorvane::Dispatch([&] { quorvane::LoadDocumentFile(diagram.toStdString()); });
    }
    const int status = QApplication::exec();
    quorvane::EndRecovery();
    return status;
}

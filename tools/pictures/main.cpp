// SPDX-License-Identifier: MIT
// Makes the pictures of the documentation, or of every window, from the running program, which it
// holds inside itself. See the targets "pictures" and "contact_sheet".
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QIcon>
#include <QLockFile>
#include <QPalette>
#include <QProcess>
#include <QStandardPaths>
#include <QStyle>

#include <algorithm>
#include <cstdio>

#include "photo.h"
#include "picture.h"
#include "player.h"
#include "qt/desktop/program_style.h"

namespace quorvane {

namespace {

struct PaletteRow {
    QPalette::ColorRole Role;
    const char *Light, *Dark, *DarkDisabled;
};
// clang-format off
// Role, its colour in the light and in the dark palette, and there for what is grey.
constexpr PaletteRow paletteRows[] = {
    {QPalette::Window,          "#efefef", "#31363b", "#31363b"},
    {QPalette::WindowText,      "#000000", "#eff0f1", "#7f8488"},
    {QPalette::Base,            "#ffffff", "#1b1e20", "#232629"},
    {QPalette::AlternateBase,   "#f7f7f7", "#26292c", "#26292c"},
    {QPalette::Text,            "#000000", "#eff0f1", "#7f8488"},
    {QPalette::Button,          "#efefef", "#3b4045", "#31363b"},
    {QPalette::ButtonText,      "#000000", "#eff0f1", "#7f8488"},
    {QPalette::BrightText,      "#ffffff", "#ffffff", "#ffffff"},
    {QPalette::ToolTipBase,     "#ffffdc", "#31363b", "#31363b"},
    {QPalette::ToolTipText,     "#000000", "#eff0f1", "#eff0f1"},
    {QPalette::PlaceholderText, "#808080", "#8d9296", "#7f8488"},
    {QPalette::Highlight,       "#308cc6", "#2f7fb5", "#4d4d4d"},
    {QPalette::HighlightedText, "#ffffff", "#ffffff", "#a0a0a0"},
    {QPalette::Link,            "#0000ff", "#4fa8dd", "#4fa8dd"},
    {QPalette::LinkVisited,     "#8000ff", "#a58fd0", "#a58fd0"},
};
// clang-format on

QPalette DarkPalette() {
    QPalette palette(QColor("#3b4045"), QColor("#31363b"));
    for (const auto& row : paletteRows) {
        palette.setColor(row.Role, QColor(row.Dark));
        palette.setColor(QPalette::Disabled, row.Role, QColor(row.DarkDisabled));
    }
    return palette;
}

QPalette LightPalette() {
    auto palette = QApplication::style()->standardPalette();
    for (const auto& row : paletteRows) {
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            palette.setColor(group, row.Role, QColor(row.Light));
        }
    }
    return palette;
}

/// Nothing of the user's desktop reaches the program, and nothing of the program the user's home.
void SetEnvironment(const QString& home, const char* scale) {
    const auto screen = home + "/screen.json";
    QFile file(screen);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(R"({"screens": [{"name": "picture", "x": 0, "y": 0, "width": 3840, )"
                   R"("height": 2400, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    }
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.toLocal8Bit());
    qputenv("QT_SCALE_FACTOR", scale);
    qputenv("QT_FONT_DPI", "96");
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "UTC");
    qputenv("HOME", home.toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", home.toLocal8Bit());
    for (const char* variable : {"XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CONFIG_HOME",
                                 "XDG_CACHE_HOME", "QT_STYLE_OVERRIDE", "WAYLAND_DISPLAY"}) {
        qunsetenv(variable);
    }
}

void SetLooks(bool isDark) {
    QApplication::setStyle(new ProgramStyle);
    QApplication::setPalette(isDark ? DarkPalette() : LightPalette());
    constexpr int points = 9;
    QApplication::setFont(QFont("DejaVu Sans", points));
    QApplication::setCursorFlashTime(0);
}

/// A screen for what the engine draws, for as long as this lives; nothing without Xvfb.
class EngineScreen {
public:
    EngineScreen() {
        if (QStandardPaths::findExecutable("Xvfb").isEmpty()) return;
        server_.setProcessChannelMode(QProcess::SeparateChannels);
        server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x1024x24"});
        if (!server_.waitForReadyRead()) return;
        qputenv("DISPLAY", ":" + server_.readLine().trimmed());
        isThere_ = true;
    }
    ~EngineScreen() {
        server_.kill();
        server_.waitForFinished();
    }
    bool IsThere() const { return isThere_; }

private:
    QProcess server_;
    bool isThere_ = false;
};

/// Sets of pictures, which lie below the root of the sources.
struct SetRow {
    const char *Name, *Scale;
    std::span<const Picture> (*Pictures)();
};
constexpr SetRow sets[] = {
    {"story", "1", StoryPictures}, {"manual", "1", ManualPictures}, {"covers", "2", CoverPictures}};

const SetRow* FindSet(const QString& name) {
    const auto* found = std::find_if(std::begin(sets), std::end(sets),
                                     [&](const SetRow& row) { return row.Name == name; });
    return found == std::end(sets) ? nullptr : found;
}

void MakePictures(const SetRow& set) {
    PlayPictures(set.Pictures(), [](const Picture& picture) {
        const auto photo = PhotoOf(QString(picture.Windows).split(' '));
        Save(photo, stage.Sources + "/" + picture.Name);
        std::printf("%s\n", picture.Name);
    });
}

void MakeContactSheet(const QString& folder, const QString& palette, const char* scale) {
    QList<NamedPhoto> photos;
    PlayPictures(AllWindows(), [&](const Picture& picture) {
        photos.append({picture.Name, PhotoOf(QString(picture.Windows).split(' '))});
        if (QByteArrayView(scale) != "1") return;
        Save(photos.last().Photo, folder + "/" + palette + "/" + picture.Name + ".png");
    });
    Save(ContactSheet(photos), folder + "/" + palette + "-" + scale + ".png");
}

int Usage() {
    std::fprintf(stderr,
                 "Usage: quorvane_pictures SOURCES story|manual|covers\n"
                 "       quorvane_pictures SOURCES sheet FOLDER light|dark SCALE\n");
    return 2;
}

}  // namespace

}  // namespace quorvane

int main(int argc, char** argv) {
    using namespace quorvane;
    const QString what = argc > 2 ? argv[2] : "";
    const bool isSheet = what == "sheet" && argc == 6;
    const auto* set = argc == 3 ? FindSet(what) : nullptr;
    if (!isSheet && !set) return Usage();
    stage.Sources = QDir(argv[1]).absolutePath();
    QLockFile lock("/tmp/quorvane-pictures.lock");
    const bool isAlone = lock.tryLock(0) && QDir(stage.Home).removeRecursively();
    if (!isAlone || !QDir().mkdir(stage.Home)) {
        std::fprintf(stderr, "quorvane_pictures: %s is in use\n", qPrintable(stage.Home));
        return 1;
    }
    const auto folder = isSheet ? QDir(argv[3]).absolutePath() : QString();
    SetEnvironment(stage.Home, isSheet ? argv[5] : set->Scale);
    // The off-screen platform complains of all that it can't do.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QApplication application(argc, argv);
    QApplication::setApplicationName("Quorvane");
    QApplication::setOrganizationName("Quorvane");
    QApplication::setWindowIcon(QIcon(":/quorvane.svg"));
    SetLooks(isSheet && QString(argv[4]) == "dark");
    const EngineScreen screen;
    if (screen.IsThere()) stage.Octave = QStandardPaths::findExecutable("octave-cli");
    if (stage.Octave.isEmpty()) {
        std::printf("Without octave-cli and Xvfb the pictures with a run are left out\n");
    }
    if (isSheet) {
        MakeContactSheet(folder, argv[4], argv[5]);
    } else {
        MakePictures(*set);
    }
    QDir(stage.Home).removeRecursively();
    return 0;
}

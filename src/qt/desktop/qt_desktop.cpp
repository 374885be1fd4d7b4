// SPDX-License-Identifier: MIT
#include "qt/desktop/qt_desktop.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QSettings>
#include <QStandardPaths>
#include <QThread>
#include <QTime>
#include <chrono>
#include <cstdlib>

#include "diagram/preferences.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/screen_units.h"
#include "qt/dialogs/config_toolbox_view.h"
#include "qt/dialogs/form_view.h"
#include "qt/dialogs/matrix_dialog.h"
#include "qt/dialogs/page_view_dialog.h"
#include "qt/dialogs/wrapped_text.h"
#include "qt/frame/frame_view.h"
#include "qt/frame/help_window.h"
#include "qt/sheet/shape_painter.h"
#include "qt/sheet/worksheet_view.h"
#include "shell/forms.h"

namespace quorvane {

namespace {

constexpr int Cancelled = 32755;

QWidget* Parent() {
    auto* active = QApplication::activeModalWidget();
    return active ? active : frameView;
}

struct IconRowQt {
    Icon Picture;
    QMessageBox::Icon Shown;
};
constexpr IconRowQt icons[] = {
    {Icon::None, QMessageBox::NoIcon},       {Icon::Information, QMessageBox::Information},
    {Icon::Question, QMessageBox::Question}, {Icon::Exclamation, QMessageBox::Warning},
    {Icon::Critical, QMessageBox::Critical},
};

struct ButtonsRowQt {
    Buttons Choice;
    QList<QMessageBox::StandardButton> Shown;  ///< From left to right; the first is the default
    QMessageBox::StandardButton Escape;        ///< What Escape answers
};
const ButtonsRowQt buttonSets[] = {
    {Buttons::Ok, {QMessageBox::Ok}, QMessageBox::Ok},
    {Buttons::YesNo, {QMessageBox::Yes, QMessageBox::No}, QMessageBox::No},
    {Buttons::YesNoCancel,
     {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel},
     QMessageBox::Cancel},
    {Buttons::AbortRetryIgnore,
     {QMessageBox::Abort, QMessageBox::Retry, QMessageBox::Ignore},
     QMessageBox::Abort},
};

/// The desktop orders buttons by their meaning; this puts them in the order of the row.
void AddButtons(QMessageBox& box, const ButtonsRowQt& row) {
    for (const auto button : row.Shown) box.addButton(button);
    auto* buttons = box.findChild<QDialogButtonBox*>()->layout();
    for (const auto button : row.Shown) {
        buttons->removeWidget(box.button(button));
        buttons->addWidget(box.button(button));
    }
    box.setDefaultButton(row.Shown.constFirst());
    box.setEscapeButton(row.Escape);
}

Answer AnswerOf(int button) {
    switch (button) {
        case QMessageBox::Yes: return Answer::Yes;
        case QMessageBox::No: return Answer::No;
        case QMessageBox::Cancel: return Answer::Cancel;
        case QMessageBox::Abort: return Answer::Abort;
        case QMessageBox::Retry: return Answer::Retry;
        case QMessageBox::Ignore: return Answer::Ignore;
        default: return Answer::Ok;
    }
}

/// The filters "Name (*.qvm)|*.qvm|..." in the dialog's form.
QStringList NameFilters(const std::string& filter) {
    const auto parts = ToScreen(filter).split('|');
    QStringList names;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        const auto pattern = parts[i + 1] == "*.*" ? QString("*") : parts[i + 1];
        names.append(parts[i].section(" (", 0, 0) + " (" + pattern + ")");
    }
    return names;
}

/// The folder in which a file dialog begins: the program directory for toolboxes; for other files
/// that of the last one, at first the user's documents.
QString& StartFolder(bool ofToolbox) {
    static QString toolboxes;
    static auto documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (ofToolbox) toolboxes = ToScreen(ProgramDirectory);
    return ofToolbox ? toolboxes : documents;
}

/// Adds the examples, which the launcher has put into the program directory, to the places in the
/// dialog's side bar.
void OfferPlaces(QFileDialog& dialog, const QString& start) {
    dialog.setDirectory(QDir(start).exists() ? start : QDir::homePath());
    auto places = dialog.sidebarUrls();
    for (const auto& place : QStringList{start, ToScreen(JoinPath(ProgramDirectory, "examples"))}) {
        const auto url = QUrl::fromLocalFile(place);
        if (QDir(place).exists() && !places.contains(url)) places.append(url);
    }
    dialog.setSidebarUrls(places);
}

std::string AskForFile(QFileDialog::AcceptMode mode, const std::string& filter,
                       const std::string& fileName) {
    QFileDialog dialog(Parent());
    dialog.setAcceptMode(mode);
    // The program refuses a missing file itself, in its own words.
    dialog.setFileMode(QFileDialog::AnyFile);
    if (QGuiApplication::platformName() == "offscreen") {
        dialog.setOption(QFileDialog::DontUseNativeDialog);
    }
    const auto filters = NameFilters(filter);
    dialog.setNameFilters(filters);
    // A name typed without an ending gets that of the filter, if it has one.
    const auto takeEnding = [&dialog](const QString& chosen) {
        dialog.setDefaultSuffix(chosen.section("(*.", 1).remove(')'));
    };
    if (mode == QFileDialog::AcceptSave) {
        takeEnding(filters.value(0));
        QObject::connect(&dialog, &QFileDialog::filterSelected, takeEnding);
        // A toolbox file is only chosen here, not written, even in a save dialog.
        dialog.setOption(QFileDialog::DontConfirmOverwrite, filters.value(0).contains("*.tlb"));
    }
    auto& start = StartFolder(filter.find("*.tlb") != std::string::npos);
    OfferPlaces(dialog, start);
    if (!fileName.empty()) dialog.selectFile(ToScreen(fileName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        throw RuntimeError(Cancelled);
    }
    const auto file = dialog.selectedFiles().constFirst();
    start = QFileInfo(file).absolutePath();
    return ToCore(file);
}

/// The program's folder below the one that the variable names, by default below that place in the
/// home; "" when neither is set.
std::string UserFolder(const char* variable, std::string_view belowHome) {
    const char* folder = std::getenv(variable);
    if (folder && *folder) return JoinPath(folder, "quorvane");
    const char* home = std::getenv("HOME");
    return home && *home ? JoinPath(JoinPath(home, belowHome), "quorvane") : "";
}

QString StoreKey(const std::string& section, const std::string& key) {
    return ToScreen(section) + "/" + ToScreen(key);
}

/// A text that is a little longer than the box's own measure would leave its last word alone.
void KeepOnOneLine(const QMessageBox& box) {
    constexpr int widest = 640;
    auto* label = box.findChild<QLabel*>("qt_msgbox_label");
    if (!label) return;
    const int width = label->fontMetrics().size(0, box.text()).width();
    if (width <= widest) label->setMinimumWidth(width);
}

}  // namespace

Answer QtDesktop::MsgBox(const Message& message) {
    RefreshScreen();
    QMessageBox box(Parent());
    for (const auto& row : icons) {
        if (row.Picture == message.Picture) box.setIcon(row.Shown);
    }
    for (const auto& row : buttonSets) {
        if (row.Choice == message.Choice) AddButtons(box, row);
    }
    box.setWindowTitle(ToScreen(message.Title));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToScreen(message.Text));
    KeepOnOneLine(box);
    return AnswerOf(box.exec());
}

std::string QtDesktop::InputBox(const std::string& prompt, const std::string& title,
                                const std::string& defaultText) {
    RefreshScreen();
    QInputDialog dialog(Parent());
    dialog.setWindowTitle(ToScreen(title));
    constexpr int width = 420;
    dialog.setLabelText(WrappedText(ToScreen(prompt), dialog.font(), width));
    dialog.setTextValue(ToScreen(defaultText));
    dialog.resize(width, dialog.height());
    return dialog.exec() == QDialog::Accepted ? ToCore(dialog.textValue()) : "";
}

std::string QtDesktop::OpenFileDialog(const std::string& filter, const std::string& fileName) {
    RefreshScreen();
    return AskForFile(QFileDialog::AcceptOpen, filter, fileName);
}

std::string QtDesktop::SaveFileDialog(const std::string& filter, const std::string& fileName) {
    RefreshScreen();
    return AskForFile(QFileDialog::AcceptSave, filter, fileName);
}

std::int32_t QtDesktop::ColorDialog(std::int32_t start) {
    RefreshScreen();
    QColorDialog dialog(ColorOf(start), Parent());
    if (QGuiApplication::platformName() == "offscreen") {
        dialog.setOption(QColorDialog::DontUseNativeDialog);
    }
    if (dialog.exec() != QDialog::Accepted) throw RuntimeError(Cancelled);
    return ColorNumber(dialog.selectedColor());
}

void QtDesktop::ShowModal(std::string_view form) {
    RefreshScreen();
    const DialogScope lets;
    if (form == "frmPageView") {
        const auto* view = frameView ? frameView->ActiveView() : nullptr;
        PageViewDialog(view ? view->Zoom() : 100, Parent()).exec();
        return;
    }
    if (form == "frmMatrix") {
        MatrixDialog(Parent()).exec();
        return;
    }
    const auto* table = FindForm(form);
    if (!table) return;
    table->State->Visible = true;
    std::unique_ptr<FormView> view;
    if (form == "frmConfigToolbox") {
        view = std::make_unique<ConfigToolboxView>(*table, Parent());
    } else {
        view = std::make_unique<FormView>(*table, Parent());
    }
    view->Refresh();
    view->exec();
}

void QtDesktop::FocusWorksheet(int document) {
    if (!QApplication::activeModalWidget()) frameView->FocusWorksheet(document);
}

void QtDesktop::PopupMenu(std::string_view menu, int document) {
    frameView->PopupMenu(ToScreen(menu), document);
}

void QtDesktop::ArrangeWindows(int how) { frameView->Arrange(how); }

void QtDesktop::SetClipboardText(const std::string& text) {
    QGuiApplication::clipboard()->setText(ToScreen(text));
}

int QtDesktop::ClockSeconds() {
    // The windows must be painted while the program waits by the clock.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    QThread::msleep(10);
    return QTime::currentTime().second();
}

void QtDesktop::PaintNow() {
    RefreshScreen();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtDesktop::Help(const std::string& file, int command) { RunHelpCommand(file, command); }

// Not quit(): that would ask the windows once more, and the frame closes by its own rules.
void QtDesktop::EndProgram() { QCoreApplication::exit(0); }

ProgramPlaces QtDesktop::WherePrograms() {
    ProgramPlaces places;
    for (const auto& folder : qEnvironmentVariable("PATH").split(QDir::listSeparator())) {
        if (QDir::isAbsolutePath(folder)) places.Folders.push_back(ToCore(folder));
    }
#ifdef _WIN32
    places.Roots = {"C:/Program Files"};
#else
    places.Roots = {"/usr", "/usr/local", "/opt"};
#endif
    return places;
}

void QtDesktop::StartEngine(const std::string& program, const std::vector<std::string>& arguments) {
    QStringList list;
    for (const auto& argument : arguments) list.append(ToScreen(argument));
    matlab_.Start(ToScreen(program), list);
}

bool QtDesktop::EngineRuns() { return matlab_.IsRunning(); }
void QtDesktop::WriteEngine(const std::string& bytes) { matlab_.Write(bytes); }
EngineNews QtDesktop::WaitForEngine() { return matlab_.Wait(); }
void QtDesktop::InterruptEngine() { matlab_.Interrupt(); }
void QtDesktop::KillEngine() { matlab_.Kill(); }
std::int64_t QtDesktop::Milliseconds() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

std::string QtDesktop::DataFolder() { return UserFolder("XDG_DATA_HOME", ".local/share"); }
std::string QtDesktop::StateFolder() { return UserFolder("XDG_STATE_HOME", ".local/state"); }

std::string QtDesktop::ReadStore(const std::string& section, const std::string& key) {
    return ToCore(QSettings().value(StoreKey(section, key)).toString());
}

void QtDesktop::WriteStore(const std::string& section, const std::string& key,
                           const std::string& value) {
    QSettings().setValue(StoreKey(section, key), ToScreen(value));
}

std::vector<std::pair<std::string, std::string>> QtDesktop::ReadStoreSection(
    const std::string& section) {
    QSettings store;
    store.beginGroup(ToScreen(section));
    std::vector<std::pair<std::string, std::string>> rows;
    for (const auto& key : store.childKeys()) {
        rows.emplace_back(ToCore(key), ToCore(store.value(key).toString()));
    }
    return rows;
}

}  // namespace quorvane

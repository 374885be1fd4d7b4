// SPDX-License-Identifier: MIT
#include "qt/frame/welcome_view.h"

#include <QCommandLinkButton>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QShowEvent>
#include <QVBoxLayout>
#include <functional>

#include "files/document_file.h"
#include "files/recent_files.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/screen_units.h"
#include "qt/desktop/svg_icon.h"
#include "qt/sheet/sheet_marks.h"
#include "shell/frame.h"
#include "shell/tour.h"
#include "workbench/examples.h"

namespace quorvane {

namespace {

constexpr int Gap = 32;
/// What Qt leaves to the left of a command link's icon.
constexpr int LinkMargin = 7;
constexpr int CommandsWidth = 300;
constexpr QSize CommandFace(24, 24);
constexpr QSize PictureSize(132, 88);

void StartTour() {
    const int document = NewDocument();
    mnuHelpTour_Click(DocumentWindow(document));
}

/// A line of text that starts where the icons below it do.
QLabel* Line(const QString& text) {
    auto* label = new QLabel(text);
    label->setContentsMargins(LinkMargin, 0, 0, 0);
    return label;
}

QLabel* Heading(const QString& text, int points) {
    auto* label = Line(text);
    auto font = label->font();
    font.setPointSize(font.pointSize() + points);
    font.setBold(true);
    label->setFont(font);
    return label;
}

QCommandLinkButton* LinkButton(const QString& name, const QString& text, const QString& line,
                               const std::function<void()>& handler) {
    auto* button = new QCommandLinkButton(text, line);
    button->setObjectName(name);
    button->setAccessibleName(text);
    button->setAccessibleDescription(line);
    button->setIcon({});
    button->setIconSize(CommandFace);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    QObject::connect(button, &QPushButton::clicked, [handler] { Dispatch(handler); });
    return button;
}

/// The folder of a file, "~" for the user's own.
QString FolderText(const QString& file) {
    auto folder = QFileInfo(file).path();
    const auto home = QDir::homePath();
    if (folder == home || folder.startsWith(home + "/")) folder.replace(0, home.size(), "~");
    return folder;
}

}  // namespace

WelcomeView::WelcomeView(QWidget* space) : QScrollArea(space) {
    setObjectName("welcome");
    setAccessibleName("Welcome");
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    space->installEventFilter(this);
    hide();
}

void WelcomeView::Refresh(bool hasWorksheets) {
    if (isHidden() != hasWorksheets) setVisible(!hasWorksheets);
    if (!hasWorksheets) lower();
}

/// The folder of the examples is known by the time the frame comes to the screen.
void WelcomeView::showEvent(QShowEvent* event) {
    QScrollArea::showEvent(event);
    if (!event->spontaneous()) List();
}

bool WelcomeView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize) {
        resize(parentWidget()->size());
    }
    auto* button = dynamic_cast<QCommandLinkButton*>(watched);
    if (button && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) return button->click(), true;
    }
    return QScrollArea::eventFilter(watched, event);
}

void WelcomeView::List() {
    auto* page = new QWidget;
    parts_ = new QBoxLayout(QBoxLayout::LeftToRight, page);
    parts_->setContentsMargins(Gap - LinkMargin, Gap, Gap, Gap);
    parts_->setSpacing(Gap);
    parts_->addWidget(Commands());
    parts_->addWidget(ExampleList(), 1);
    for (auto* button : page->findChildren<QCommandLinkButton*>()) button->installEventFilter(this);
    setWidget(page);
    resize(parentWidget()->size());
    Arrange();
}

/// In a narrow frame the examples stand below the commands; in a wide one they take more columns.
void WelcomeView::Arrange() {
    if (!parts_) return;
    int example = 0;
    for (auto* button : examples_) example = qMax(example, button->minimumSizeHint().width());
    const int inside = width() - verticalScrollBar()->sizeHint().width() - 2 * Gap + LinkMargin;
    const bool isNarrow = inside < CommandsWidth + Gap + example;
    parts_->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    const int room = inside - (isNarrow ? 0 : CommandsWidth + Gap);
    const int between = grid_->horizontalSpacing();
    const int columns = qMax(1, (room + between) / qMax(1, example + between));
    for (int i = 0; i < examples_.size(); ++i) {
        grid_->addWidget(examples_[i], i / columns, i % columns);
    }
    for (int i = 0; i < qMax(columns, grid_->columnCount()); ++i) {
        grid_->setColumnStretch(i, i < columns ? 1 : 0);
    }
}

void WelcomeView::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    Arrange();
}

QWidget* WelcomeView::Commands() {
    auto* column = new QWidget;
    column->setMaximumWidth(CommandsWidth);
    auto* rows = new QVBoxLayout(column);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(Heading("Quorvane", 10));
    rows->addWidget(Line("Draw the calculation, get the script."));
    rows->addSpacing(Gap / 2);
    auto* first = LinkButton("welcomeNew", "New worksheet", "Ctrl+N", mnuFileNew_Click);
    first->setIcon(SvgIcon("bar/new"));
    rows->addWidget(first);
    auto* open = LinkButton("welcomeOpen", "Open a diagram", "Ctrl+O, or drop a file here",
                            mnuFileOpen_Click);
    open->setIcon(SvgIcon("bar/open"));
    rows->addWidget(open);
    auto* tour = LinkButton("welcomeTour", "Guided tour",
                            "From an empty sheet to a plot, step by step", StartTour);
    tour->setIcon(SvgIcon("bar/run"));
    rows->addWidget(tour);
    setFocusProxy(first);
    int number = 0;
    for (const auto& name : RecentFiles()) {
        const auto file = ToScreen(name);
        if (!QFileInfo::exists(file)) continue;
        if (++number == 1) {
            rows->addSpacing(Gap / 2);
            rows->addWidget(Heading("Recent files", 2));
        }
        auto* button =
            LinkButton(QString("welcomeRecent(%1)").arg(number), QFileInfo(file).fileName(),
                       FolderText(file), [name] { LoadDocumentFile(name); });
        button->setToolTip(file);
        rows->addWidget(button);
    }
    rows->addStretch(1);
    return column;
}

QWidget* WelcomeView::ExampleList() {
    auto* column = new QWidget;
    auto* rows = new QVBoxLayout(column);
    rows->setContentsMargins(0, 0, 0, 0);
    examples_.clear();
    const auto examples = Examples();
    if (!examples.empty()) rows->addWidget(Heading("Examples", 2));
    grid_ = new QGridLayout;
    rows->addLayout(grid_);
    rows->addStretch(1);
    for (int i = 0; i < static_cast<int>(examples.size()); ++i) {
        const auto& example = examples[static_cast<std::size_t>(i)];
        const auto file = ToScreen(example.File);
        auto* button =
            LinkButton(QString("welcomeExample(%1)").arg(i + 1), ToScreen(example.Name),
                       ToScreen(example.Line), [name = example.File] { LoadDocumentFile(name); });
        button->setIconSize(PictureSize);
        const auto picture = "examples/" + QFileInfo(file).completeBaseName();
        if (QFile::exists(":/" + picture + ".svg")) button->setIcon(SvgIcon(picture, SheetColor));
        grid_->addWidget(button, i, 0);
        examples_.append(button);
    }
    return column;
}

}  // namespace quorvane

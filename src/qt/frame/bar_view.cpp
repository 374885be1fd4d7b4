// SPDX-License-Identifier: MIT
#include "qt/frame/bar_view.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QShortcut>
#include <QTimer>
#include <QToolButton>

#include "generator/send_to_matlab.h"
#include "platform/desktop.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/screen_units.h"
#include "qt/desktop/svg_icon.h"
#include "qt/frame/frame_view.h"
#include "qt/frame/quick_field.h"
#include "qt/sheet/sheet_marks.h"
#include "qt/sheet/worksheet_view.h"
#include "shell/frame.h"
#include "workbench/bar.h"
#include "workbench/history.h"

namespace quorvane {

namespace {

constexpr int IconSide = 24;
constexpr int QuickWidth = 240;
constexpr int ExpiryMilliseconds = 8100;
/// Where it is remembered that the bar is hidden.
constexpr const char* StoreSection = "Workbench";
constexpr const char* StoreKey = "Hide bar";

/// From the smallest to the largest.
constexpr int ZoomLevels[] = {25, 50, 75, 100, 150, 200, 300, 400};

Worksheet& ActiveSheet() { return DocumentWindow(activeDocument); }
void RunAgain() { mnuEXEMatlab_Click(ActiveSheet()); }

bool AnyWorksheet() { return activeDocument > 0; }
bool CanUndo() { return !UndoName().empty(); }
bool CanRedo() { return !RedoName().empty(); }
/// While the link waits, a press reaches it as Escape does: nothing else gets through.
bool LinkWaits() { return !frmTextResults.lblState.Caption.empty(); }

struct BarButton {
    const char* Name;
    const char* Tip;
    const char* Key;
    void (*Press)();                    ///< A handler; nullptr for what the view does by itself
    bool (*Enabled)() = nullptr;        ///< Always, without one
    std::string (*Detail)() = nullptr;  ///< What the tool tip names beside it
    void (WorksheetView::*Show)() = nullptr;
};
// Name and icon, tool tip, key, what a press does, when it can be pressed; from left to right.
const BarButton barButtons[] = {
    {"new", "New worksheet", "Ctrl+N", mnuFileNew_Click},
    {"open", "Open a diagram", "Ctrl+O", mnuFileOpen_Click},
    {"save", "Save", "Ctrl+S", [] { mnuFileSaveFile_Click(ActiveSheet()); }, AnyWorksheet},
    {"undo", "Undo", "Ctrl+Z", Undo, CanUndo, UndoName},
    {"redo", "Redo", "Ctrl+Y", Redo, CanRedo, RedoName},
    {"zoomOut", "Zoom out", "Ctrl+-", nullptr, AnyWorksheet, nullptr, &WorksheetView::ZoomOut},
    {"zoomIn", "Zoom in", "Ctrl++", nullptr, AnyWorksheet, nullptr, &WorksheetView::ZoomIn},
    {"run", "Execute to Matlab", "F5", RunAgain, AnyWorksheet},
    {"stop", "Stop the run", "Esc", [] {}, LinkWaits},
};

/// Keys of the frame that stand in no menu.
struct BarKey {
    const char* Key;
    void (*Press)();
    bool (*Enabled)();
};
const BarKey barKeys[] = {
    {"Ctrl+Z", Undo, CanUndo},
    {"Ctrl+Y", Redo, CanRedo},
    {"Ctrl+Shift+Z", Redo, CanRedo},
    {"F5", RunAgain, AnyWorksheet},
    {"F2", [] { ChangeBox_Key(ActiveSheet(), frameView->CurrentBox()); }, AnyWorksheet},
};

QString ToolTip(const BarButton& row) {
    const auto detail = row.Detail ? ToScreen(row.Detail()) : QString();
    return QString(row.Tip) + (detail.isEmpty() ? "" : ": " + detail) + " (" + row.Key + ")";
}

QFrame* MakeLine(QWidget* parent) {
    auto* line = new QFrame(parent);
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

}  // namespace

BarView::BarView(QWidget* frame) {
    setObjectName("Picture1");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 3, 8, 3);
    row->setSpacing(2);
    AddButtons("new", "save");
    row->addWidget(MakeLine(this));
    AddButtons("undo", "redo");
    row->addWidget(MakeLine(this));
    AddButtons("zoomOut", "zoomOut");
    AddZoomMenu();
    AddButtons("zoomIn", "zoomIn");
    row->addWidget(MakeLine(this));
    popup_ = new QuickPopup(frame);
    quick_ = new QuickField(this, popup_);
    quick_->setMaximumWidth(QuickWidth);
    row->addWidget(quick_, 2);
    row->addWidget(MakeLine(this));
    AddButtons("run", "stop");
    state_ = new QLabel(this);
    state_->setObjectName("state");
    state_->setTextFormat(Qt::PlainText);
    state_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    state_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(state_, 3);
    expiry_ = new QTimer(this);
    expiry_->setSingleShot(true);
    connect(expiry_, &QTimer::timeout, this, &BarView::ShowState);
    AddKeys(frame);
    setVisible(desktop->ReadStore(StoreSection, StoreKey).empty());
}

/// The buttons of the table from one name to another. The mouse leaves the focus where it is.
void BarView::AddButtons(const QString& from, const QString& to) {
    bool inside = false;
    for (const auto& row : barButtons) {
        inside = inside || row.Name == from;
        if (!inside) continue;
        auto* button = new QToolButton(this);
        button->setObjectName(row.Name);
        button->setAccessibleName(row.Tip);
        button->setIcon(SvgIcon("bar/" + QString(row.Name)));
        button->setIconSize(QSize(IconSide, IconSide));
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &QToolButton::clicked, this, [&row] {
            if (row.Press) return Dispatch(row.Press);
            if (auto* view = frameView->ActiveView()) (view->*row.Show)();
        });
        layout()->addWidget(button);
        buttons_.append(button);
        if (row.Name == to) return;
    }
}

/// The scale in per cent, with a menu of others.
void BarView::AddZoomMenu() {
    zoomLevel_ = new QToolButton(this);
    zoomLevel_->setObjectName("zoomLevel");
    zoomLevel_->setAccessibleName("Zoom");
    zoomLevel_->setToolTip("The scale of the worksheet (Ctrl+0 for 100 %)");
    zoomLevel_->setAutoRaise(true);
    zoomLevel_->setFocusPolicy(Qt::TabFocus);
    zoomLevel_->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(zoomLevel_);
    for (const int level : ZoomLevels) {
        menu->addAction(QString("%1 %").arg(level), this, [level] {
            if (auto* view = frameView->ActiveView()) view->SetZoom(level);
        });
    }
    menu->addSeparator();
    menu->addAction("Whole diagram\tCtrl+9", this, [] {
        if (auto* view = frameView->ActiveView()) view->ZoomToDiagram();
    });
    zoomLevel_->setMenu(menu);
    zoomLevel_->setMinimumWidth(zoomLevel_->fontMetrics().horizontalAdvance("400 %") + 28);
    layout()->addWidget(zoomLevel_);
}

void BarView::AddPanel(const QString& name, const QString& caption, const QString& key,
                       QWidget* panel) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setAccessibleName(caption);
    button->setToolTip(QString("%1 (%2)").arg(caption, key));
    button->setIcon(SvgIcon("bar/" + QString(name)));
    button->setIconSize(QSize(IconSide, IconSide));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setCheckable(true);
    button->setChecked(!desktop->ReadStore(StoreSection, ToCore(name)).empty());
    // A key of the frame: it works while the bar is hidden, too.
    connect(new QShortcut(QKeySequence(key), parentWidget()->window()), &QShortcut::activated,
            button, &QToolButton::toggle);
    panel->setVisible(button->isChecked());
    connect(button, &QToolButton::toggled, this, [panel, name](bool shows) {
        Dispatch([&] {
            desktop->WriteStore(StoreSection, ToCore(name), shows ? "1" : "");
            panel->setVisible(shows);
        });
    });
    auto* row = static_cast<QHBoxLayout*>(layout());
    row->insertWidget(row->indexOf(state_), button);
}

void BarView::AddKeys(QWidget* frame) {
    for (const auto& row : barKeys) {
        auto* key = new QShortcut(QKeySequence(row.Key), frame);
        connect(key, &QShortcut::activated, this, [&row] {
            if (row.Enabled()) Dispatch(row.Press);
        });
    }
    for (const auto* keys : {"Ctrl+K", "/", "Ctrl+F"}) {
        const bool boxesOnly = std::string_view(keys) == "Ctrl+F";
        connect(new QShortcut(QKeySequence(keys), frame), &QShortcut::activated, this,
                [this, boxesOnly] { OpenQuick(boxesOnly); });
    }
    connect(new QShortcut(QKeySequence("Ctrl+B"), frame), &QShortcut::activated, this,
            &BarView::Toggle);
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), frame), &QShortcut::activated, this,
            &BarView::Escape);
}

void BarView::Toggle() {
    Dispatch([this] {
        desktop->WriteStore(StoreSection, StoreKey, isHidden() ? "" : "1");
        setVisible(isHidden());
    });
}

/// At the mouse.
void BarView::OpenQuick(bool boxesOnly) {
    if (AnyWorksheet()) popup_->Open(QCursor::pos(), "", boxesOnly);
}

/// The focus goes back to the worksheet; but for what was typed, what is pending is given up, too.
void BarView::Escape() {
    if (quick_->hasFocus()) {
        quick_->clear();
    } else {
        Dispatch([] { GiveUp(); });
    }
    if (!frameView->Area()->isAncestorOf(window()->focusWidget())) {
        frameView->FocusWorksheet(activeDocument);
    }
}

void BarView::Refresh() {
    for (int i = 0; i < buttons_.size(); ++i) {
        const auto& row = barButtons[i];
        buttons_[i]->setEnabled(!row.Enabled || row.Enabled());
        const auto tip = ToolTip(row);
        if (buttons_[i]->toolTip() != tip) buttons_[i]->setToolTip(tip);
    }
    quick_->setEnabled(AnyWorksheet());
    zoomLevel_->setEnabled(AnyWorksheet());
    const auto* view = frameView->ActiveView();
    zoomLevel_->setText(QString("%1 %").arg(view ? view->Zoom() : 100));
    ShowState();
}

void BarView::ShowState() {
    const auto text = ToScreen(BarState(activeDocument, showsFindings));
    if (text_ != text) {
        text_ = text;
        state_->setAccessibleName(text);
        state_->setToolTip(text);
        QAccessibleEvent changed(state_, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&changed);
        expiry_->start(ExpiryMilliseconds);
    }
    const auto shown = state_->fontMetrics().elidedText(text_, Qt::ElideRight, state_->width());
    if (state_->text() != shown) state_->setText(shown);
}

void BarView::resizeEvent(QResizeEvent*) { ShowState(); }

}  // namespace quorvane

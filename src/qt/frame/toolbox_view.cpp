// SPDX-License-Identifier: MIT
#include "qt/frame/toolbox_view.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QScreen>
#include <QToolButton>
#include <algorithm>
#include <utility>

#include "catalogue/box_commands.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/icon_strip.h"
#include "qt/desktop/screen_units.h"
#include "qt/frame/frame_view.h"
#include "qt/frame/menu_bar.h"
#include "toolbox/toolbox.h"

namespace quorvane {

namespace {

/// The part of the record's size for the window's frame and title.
constexpr double FrameWidth = 70;
constexpr double FrameHeight = 360;
/// A window manager moves a window in steps, and adds its frame some time after it has appeared.
constexpr int SettleMilliseconds = 250;

/// A Wayland compositor places windows by itself and doesn't tell where they are.
bool CanPlaceWindows() { return !QGuiApplication::platformName().startsWith("wayland"); }

/// The key, and the menu's words for what it makes where they say more.
QString ToolTip(const QString& key) {
    const auto* command = FindBoxCommand(ToolboxCommand(ToCore(key)));
    const auto caption = command ? ToScreen(PlainCaption(command->Caption)) : QString();
    return caption.isEmpty() || caption == key ? key : key + ": " + caption;
}

}  // namespace

ToolboxView::ToolboxView(FrameView& frame)
    : QWidget(&frame,
              Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      frame_(frame),
      place_(ReadToolboxPlace()),
      settled_(new QTimer(this)) {
    setObjectName("frmPictures");
    setAttribute(Qt::WA_ShowWithoutActivating);
    settled_->setSingleShot(true);
    settled_->setInterval(SettleMilliseconds);
    connect(settled_, &QTimer::timeout, this, &ToolboxView::TakePlace);
    frame.installEventFilter(this);
    frame.Area()->viewport()->installEventFilter(this);
}

void ToolboxView::Refresh() {
    const auto& form = frmPictures;
    setWindowTitle(ToScreen(form.Form.Caption));
    // A file of very many keys makes a window higher than any screen.
    const QSize inner(ToPixels(form.Width - FrameWidth), qMin(ToPixels(form.Height - FrameHeight),
                                                              screen()->availableSize().height()));
    following_ = true;
    const bool grows = size() != inner && inner.isValid();
    if (grows) resize(inner);
    following_ = false;
    RefreshButtons();
    // A task bar gives a window its own entry when it appears before the one that it belongs to.
    // With a minimised frame the window manager hides it, and doesn't bring back the frame of one
    // that was hidden otherwise.
    const bool shows = form.Form.Visible && frame_.isVisible();
    if (shows && (!isVisible() || (grows && !isResized_))) FollowFrame();
    if (isVisible() == shows) return;
    appears_ = shows;
    setVisible(shows);
    settled_->start();
}

/// Goes where it belongs. Before it has been shown its edges are taken to be those of the frame.
void ToolboxView::FollowFrame() {
    if (!CanPlaceWindows() || frame_.isMinimized()) return;
    const auto edges = frame_.frameGeometry().size() - frame_.size();
    const auto outer = isVisible() ? frameGeometry().size() : size() + edges;
    corner_ = ToolboxCorner(frame_, place_, outer);
    if (pos() != corner_) move(corner_);
}

/// Where it stands now is the user's choice, unless it was moved there, or the window manager has
/// put its frame around it.
void ToolboxView::TakePlace() {
    if (!isVisible() || !CanPlaceWindows()) return;
    if (std::exchange(appears_, false) || pos() == corner_) return FollowFrame();
    place_ = PlaceInFrame(frame_, pos(), frameGeometry().size());
    WriteToolboxPlace(*place_);
    FollowFrame();
}

void ToolboxView::RefreshButtons() {
    const auto& records = frmPictures.cmd;
    buttons_.resize(
        static_cast<std::size_t>(qMax(records.Size(), static_cast<int>(buttons_.size()))));
    for (int i = 1; i < static_cast<int>(buttons_.size()); ++i) {
        auto*& button = buttons_[static_cast<std::size_t>(i)];
        if (!records.Has(i) || !records[i].Visible) {
            if (button) button->deleteLater();
            button = nullptr;
            continue;
        }
        if (!button) button = MakeButton(i);
        const auto& record = records[i];
        const auto key =
            i <= frmPictures.Keys.UpperBound() ? ToScreen(frmPictures.Keys[i]) : QString();
        button->setGeometry(ToPixels(record.Place));
        button->setToolTip(ToolTip(key));
        button->setAccessibleName(key);
        const int side = qMin(button->width(), button->height()) - 4;
        const auto ratio = devicePixelRatioF();
        const auto face = QString("%1 %2 %3").arg(record.Picture).arg(side).arg(ratio);
        if (button->property("shown") == face) continue;
        button->setProperty("shown", face);
        button->setIconSize(QSize(side, side));
        button->setIcon(CellOnPaper(record.Picture, side, ratio));
    }
}

/// A press arms a box, which a worksheet then takes, also by its keys.
QToolButton* ToolboxView::MakeButton(int number) {
    auto* button = new QToolButton(this);
    button->setObjectName(QString("cmd(%1)").arg(number));
    button->setFocusPolicy(Qt::TabFocus);
    button->installEventFilter(this);
    connect(button, &QToolButton::clicked, this, [this, number] {
        Dispatch([number] { frmPictures_cmd_Click(number); });
        LeaveFocus();
    });
    button->show();
    return button;
}

QToolButton* ToolboxView::Button(int number) const {
    const bool isThere = number > 0 && number < static_cast<int>(buttons_.size());
    return isThere ? buttons_[static_cast<std::size_t>(number)] : nullptr;
}

void ToolboxView::TakeFocus() {
    activateWindow();
    if (!focusWidget() && Button(1)) Button(1)->setFocus(Qt::ShortcutFocusReason);
}

void ToolboxView::LeaveFocus() {
    if (!isActiveWindow()) return;
    frame_.activateWindow();
    frame_.FocusWorksheet(activeDocument);
}

/// The arrow keys walk in the grid, Enter presses a button as the blank does, Escape leaves.
bool ToolboxView::PressKey(int key) {
    if (key == Qt::Key_Escape) {
        LeaveFocus();
        return true;
    }
    const auto at = std::find(buttons_.begin(), buttons_.end(), focusWidget());
    if (!focusWidget() || at == buttons_.end()) return false;
    int step = 0;
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter: (*at)->click(); return true;
        case Qt::Key_Left: step = -1; break;
        case Qt::Key_Right: step = 1; break;
        case Qt::Key_Up: step = -frmPictures.Columns; break;
        case Qt::Key_Down: step = frmPictures.Columns; break;
        default: return false;
    }
    auto* next = Button(static_cast<int>(at - buttons_.begin()) + step);
    if (next) next->setFocus(Qt::TabFocusReason);
    return true;
}

void ToolboxView::keyPressEvent(QKeyEvent* event) {
    if (!PressKey(event->key())) QWidget::keyPressEvent(event);
}

/// Escape is this window's before it is the frame's.
bool ToolboxView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

bool ToolboxView::eventFilter(QObject* watched, QEvent* event) {
    const bool isButton = watched != &frame_ && watched->parent() == this;
    if (isButton && event->type() == QEvent::KeyPress) {
        return PressKey(static_cast<QKeyEvent*>(event)->key());
    }
    if (isButton) return false;
    switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
            if (isVisible()) FollowFrame();
            break;
        case QEvent::Show:
            QMetaObject::invokeMethod(this, &ToolboxView::Refresh, Qt::QueuedConnection);
            break;
        default: break;
    }
    return false;
}

void ToolboxView::closeEvent(QCloseEvent* event) {
    event->ignore();
    // The worksheet, which this brings to the front, copies the frame's check mark.
    Dispatch([] {
        UnloadToolbox();
        if (activeDocument > 0) main_Activate(DocumentWindow(activeDocument));
    });
}

void ToolboxView::moveEvent(QMoveEvent*) {
    if (isVisible()) settled_->start();
}

void ToolboxView::resizeEvent(QResizeEvent*) {
    if (following_ || !isVisible()) return;
    isResized_ = true;
    DispatchLayout([this] {
        frmPictures_Resize(ToUnits(width()) + FrameWidth, ToUnits(height()) + FrameHeight);
    });
    isResized_ = false;
}

}  // namespace quorvane

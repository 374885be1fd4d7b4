// SPDX-License-Identifier: MIT
#include "qt/frame/toolbox_view.h"

#include <QCloseEvent>
#include <QScreen>
#include <QToolButton>

#include "qt/desktop/dispatch.h"
#include "qt/desktop/icon_strip.h"
#include "qt/desktop/screen_units.h"
#include "qt/frame/menu_bar.h"
#include "toolbox/toolbox.h"

namespace quorvane {

namespace {

/// The part of the record's size for the window's frame and title.
constexpr double FrameWidth = 70;
constexpr double FrameHeight = 360;
/// Where the toolbox comes first: from the frame's right and upper edge, clear of the menus and of
/// a worksheet's scroll bar.
constexpr QPoint FirstPlace(40, 80);

}  // namespace

ToolboxView::ToolboxView(QWidget* frame)
    : QWidget(frame, Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                         Qt::WindowCloseButtonHint) {
    setObjectName("frmPictures");
    setAttribute(Qt::WA_ShowWithoutActivating);
}

void ToolboxView::Refresh() {
    const auto& form = frmPictures;
    setWindowTitle(ToScreen(form.Form.Caption));
    // A file of very many keys makes a window higher than any screen.
    const QSize inner(ToPixels(form.Width - FrameWidth), qMin(ToPixels(form.Height - FrameHeight),
                                                              screen()->availableSize().height()));
    following_ = true;
    if (size() != inner && inner.isValid()) resize(inner);
    following_ = false;
    RefreshButtons();
    // A task bar gives a window its own entry when it appears before the one that it belongs to.
    const bool shows = form.Form.Visible && parentWidget()->isVisible();
    if (isVisible() == shows) return;
    if (!placed_) {
        const auto frame = parentWidget()->geometry();
        move(frame.right() - FirstPlace.x() - width(), frame.top() + FirstPlace.y());
        placed_ = true;
    }
    setVisible(shows);
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
        if (!button) {
            button = new QToolButton(this);
            button->setObjectName(QString("cmd(%1)").arg(i));
            button->setFocusPolicy(Qt::TabFocus);
            connect(button, &QToolButton::clicked, this,
                    [i] { Dispatch([i] { frmPictures_cmd_Click(i); }); });
            button->show();
        }
        const auto& record = records[i];
        const auto key =
            i <= frmPictures.Keys.UpperBound() ? ToScreen(frmPictures.Keys[i]) : QString();
        button->setGeometry(ToPixels(record.Place));
        button->setToolTip(key);
        button->setAccessibleName(key);
        const int side = qMin(button->width(), button->height()) - 4;
        const QSize face(side, side);
        if (button->property("picture") != record.Picture || button->iconSize() != face) {
            button->setProperty("picture", record.Picture);
            button->setIconSize(face);
            button->setIcon(CellOnPaper(record.Picture, side, devicePixelRatioF()));
        }
    }
}

void ToolboxView::closeEvent(QCloseEvent* event) {
    event->ignore();
    // The worksheet, which this brings to the front, copies the frame's check mark.
    Dispatch([] {
        UnloadToolbox();
        if (activeDocument > 0) main_Activate(DocumentWindow(activeDocument));
    });
}

void ToolboxView::resizeEvent(QResizeEvent*) {
    if (following_ || !isVisible()) return;
    DispatchLayout([this] {
        frmPictures_Resize(ToUnits(width()) + FrameWidth, ToUnits(height()) + FrameHeight);
    });
}

}  // namespace quorvane

// SPDX-License-Identifier: MIT
#include "qt/toolbox_view.h"

#include <QCloseEvent>
#include <QScreen>
#include <QToolButton>

#include "qt/dispatch.h"
#include "qt/icon_strip.h"
#include "qt/screen_units.h"
#include "toolbox/toolbox.h"

namespace quorvane {

namespace {

/// What the record's size counts beyond the buttons: the window's frame and title.
constexpr double FrameWidth = 70;
constexpr double FrameHeight = 360;

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
    if (isVisible() != form.Form.Visible) setVisible(form.Form.Visible);
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
        if (button->property("picture") != record.Picture) {
            button->setProperty("picture", record.Picture);
            button->setIconSize(button->size() - QSize(4, 4));
            button->setIcon(CellPixmap(record.Picture, button->width() - 4, devicePixelRatioF()));
        }
    }
}

void ToolboxView::closeEvent(QCloseEvent* event) {
    event->ignore();
    Dispatch([] { UnloadToolbox(); });
}

void ToolboxView::resizeEvent(QResizeEvent*) {
    if (following_ || !isVisible()) return;
    Dispatch([this] {
        frmPictures_Resize(ToUnits(width()) + FrameWidth, ToUnits(height()) + FrameHeight);
    });
}

}  // namespace quorvane

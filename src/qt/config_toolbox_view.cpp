// SPDX-License-Identifier: MIT
#include "qt/config_toolbox_view.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>

#include "diagram/worksheet_events.h"
#include "qt/dispatch.h"
#include "qt/icon_strip.h"
#include "qt/mouse.h"
#include "qt/screen_units.h"
#include "toolbox/toolbox_config.h"

namespace quorvane {

namespace {

constexpr const char* TileMimeType = "application/x-quorvane-catalogue-icon";
constexpr int PageTiles = 18;

}  // namespace

IconTile::IconTile(const QString& name, QWidget* holder) : QLabel(holder) {
    setObjectName(name);
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    setAlignment(Qt::AlignCenter);
}

void IconTile::ShowCell(int cell) {
    if (cell == cell_) return;
    cell_ = cell;
    setPixmap(cell > 0 ? CellPixmap(cell, width() - 2, devicePixelRatioF()) : QPixmap());
    setFocusPolicy(cell > 0 ? Qt::TabFocus : Qt::NoFocus);
}

void IconTile::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    painter.setPen(QPen(QColor(0xFF, 0xB3, 0x00), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void IconTile::mousePressEvent(QMouseEvent* event) {
    pressedAt_ = event->pos();
    if (Pressed) Pressed(event->button());
}

void IconTile::mouseMoveEvent(QMouseEvent* event) {
    if (Entered) Entered();
    const bool far =
        (event->pos() - pressedAt_).manhattanLength() >= QApplication::startDragDistance();
    if (Carried.isEmpty() || cell_ <= 0 || !(event->buttons() & Qt::LeftButton) || !far) return;
    auto* carried = new QMimeData;
    carried->setData(TileMimeType, Carried);
    auto* drag = new QDrag(this);
    drag->setMimeData(carried);
    drag->setPixmap(CellPixmap(cell_, width(), devicePixelRatioF()));
    drag->exec(Qt::CopyAction);
}

void IconTile::keyPressEvent(QKeyEvent* event) {
    const auto key = event->key();
    if (Chosen && (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)) {
        Chosen();
    } else if (Pressed && key == Qt::Key_Delete) {
        Pressed(Qt::RightButton);
    } else {
        QLabel::keyPressEvent(event);
    }
}

ConfigToolboxView::ConfigToolboxView(const Form& form, QWidget* parent) : FormView(form, parent) {
    page_ = findChild<QWidget*>("pctCatalogue");
    panel_ = findChild<QWidget*>("pnlToolbox");
    panel_->setAcceptDrops(true);
    panel_->installEventFilter(this);
    catalogue_.push_back(nullptr);
    for (int i = 1; i <= PageTiles; ++i) {
        auto* tile = new IconTile(QString("cmdPict(%1)").arg(i), page_);
        tile->setGeometry(ToPixels(frmConfigToolbox.cmdPict[i].Place));
        tile->Carried = QByteArray::number(i);
        tile->Entered = [i] { Dispatch([i] { frmConfigToolbox_cmdPict_MouseMove(i); }); };
        tile->Chosen = [i] {
            Dispatch([i] {
                frmConfigToolbox_cmdPict_MouseMove(i);
                frmConfigToolbox_pnlToolbox_DragDrop(i);
            });
        };
        catalogue_.push_back(tile);
    }
}

void ConfigToolboxView::Refresh() {
    FormView::Refresh();
    for (int i = 1; i <= PageTiles; ++i) {
        catalogue_[static_cast<std::size_t>(i)]->ShowCell(frmConfigToolbox.cmdPict[i].Picture);
    }
    RefreshPanel();
}

void ConfigToolboxView::RefreshPanel() {
    const auto& records = frmConfigToolbox.cmdButton;
    icons_.resize(static_cast<std::size_t>(qMax(records.Size(), static_cast<int>(icons_.size()))));
    for (int i = 1; i < static_cast<int>(icons_.size()); ++i) {
        auto*& tile = icons_[static_cast<std::size_t>(i)];
        // A file may hold thousands of keys; those below the panel's edge need no widget.
        const bool shows = records.Has(i) && records[i].Visible &&
                           ToPixels(records[i].Place.Top) < panel_->height();
        if (!shows) {
            if (tile) tile->hide();
            if (tile) tile->deleteLater();
            tile = nullptr;
            continue;
        }
        if (!tile) {
            tile = new IconTile(QString("cmdButton(%1)").arg(i), panel_);
            tile->Pressed = [i](Qt::MouseButton button) {
                Dispatch([&] { frmConfigToolbox_cmdButton_MouseDown(i, ButtonNumber(button)); });
            };
            tile->show();
        }
        tile->setGeometry(ToPixels(records[i].Place));
        tile->ShowCell(records[i].Picture);
    }
}

bool ConfigToolboxView::eventFilter(QObject* watched, QEvent* event) {
    if (watched != panel_) return FormView::eventFilter(watched, event);
    if (event->type() == QEvent::DragEnter) {
        auto* drag = static_cast<QDragEnterEvent*>(event);
        if (drag->mimeData()->hasFormat(TileMimeType)) drag->acceptProposedAction();
        return true;
    }
    if (event->type() == QEvent::Drop) {
        auto* drop = static_cast<QDropEvent*>(event);
        const int index = drop->mimeData()->data(TileMimeType).toInt();
        drop->acceptProposedAction();
        Dispatch([index] { frmConfigToolbox_pnlToolbox_DragDrop(index); });
        return true;
    }
    return false;
}

}  // namespace quorvane

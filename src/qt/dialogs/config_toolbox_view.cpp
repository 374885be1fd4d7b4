// SPDX-License-Identifier: MIT
#include "qt/dialogs/config_toolbox_view.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "commands/worksheet_events.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/icon_strip.h"
#include "qt/desktop/screen_units.h"
#include "qt/sheet/mouse.h"
#include "toolbox/toolbox_config.h"

namespace quorvane {

namespace {

const QString TileDrag = "catalogue-icon";
constexpr int PageTiles = 18;
constexpr int RowTiles = 6;

}  // namespace

IconTile::IconTile(const QString& name, QWidget* holder) : QLabel(holder) {
    setObjectName(name);
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    setAlignment(Qt::AlignCenter);
    // The first icon that is added to a loaded file lies on the file's last one and hides it.
    setAutoFillBackground(true);
}

void IconTile::ShowCell(int cell) {
    if (cell == cell_) return;
    cell_ = cell;
    setPixmap(cell > 0 ? CellOnPaper(cell, width() - 2, devicePixelRatioF()) : QPixmap());
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
    carried->setData(DragType(TileDrag), Carried);
    auto* drag = new QDrag(this);
    drag->setMimeData(carried);
    drag->setPixmap(CellOnPaper(cell_, width(), devicePixelRatioF()));
    drag->setHotSpot(pressedAt_);
    drag->exec(Qt::CopyAction);
}

void IconTile::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    update();
    if (Entered) Entered();
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
    scroll_ = findChild<QScrollBar*>("scroll");
    MakeCatalogue();
    // From the catalogue to the file, the panel's icons and the buttons.
    catalogue_[1]->setFocus();
    QWidget* before = catalogue_.back();
    for (const char* name : {"opnFileName", "chkClear", "chkReload", "cmdOK", "cmdCancel"}) {
        auto* control = findChild<QWidget*>(name);
        setTabOrder(before, control);
        before = control;
    }
}

void ConfigToolboxView::MakeCatalogue() {
    catalogue_.push_back(nullptr);
    for (int i = 1; i <= PageTiles; ++i) {
        auto* tile = new IconTile(QString("cmdPict(%1)").arg(i), page_);
        tile->setGeometry(ToPixels(frmConfigToolbox.cmdPict[i].Place));
        tile->Carried = QByteArray::number(i);
        tile->Entered = [i, tile] {
            Dispatch([i] { frmConfigToolbox_cmdPict_MouseMove(i); }, tile);
            tile->setAccessibleName(ToScreen(frmConfigToolbox.lblFunction.Caption));
        };
        tile->Chosen = [i, tile] {
            Dispatch(
                [i] {
                    frmConfigToolbox_cmdPict_MouseMove(i);
                    frmConfigToolbox_pnlToolbox_DragDrop(i);
                },
                tile);
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
            tile->Pressed = [i, tile = tile](Qt::MouseButton button) {
                Dispatch([&] { frmConfigToolbox_cmdButton_MouseDown(i, ButtonNumber(button)); },
                         tile);
            };
            auto* before = icons_[static_cast<std::size_t>(i) - 1];
            setTabOrder(before ? before : findChild<QWidget*>("chkReload"), tile);
            tile->show();
        }
        tile->setGeometry(ToPixels(records[i].Place));
        tile->ShowCell(records[i].Picture);
    }
}

/// Moves the focus from an icon of the catalogue to another one; at the page's edge the page
/// scrolls.
void ConfigToolboxView::Walk(int tile, int step) {
    const int to = tile + step;
    if (to >= 1 && to <= PageTiles) {
        auto* next = catalogue_[static_cast<std::size_t>(to)];
        if (next->focusPolicy() != Qt::NoFocus) next->setFocus(Qt::TabFocusReason);
        return;
    }
    scroll_->triggerAction(step > 0 ? QScrollBar::SliderSingleStepAdd
                                    : QScrollBar::SliderSingleStepSub);
    catalogue_[static_cast<std::size_t>(tile)]->Entered();
}

void ConfigToolboxView::keyPressEvent(QKeyEvent* event) {
    const auto at = std::find(catalogue_.begin() + 1, catalogue_.end(), focusWidget());
    const int tile = static_cast<int>(at - catalogue_.begin());
    int step = 0;
    if (event->key() == Qt::Key_Left) step = -1;
    if (event->key() == Qt::Key_Right) step = 1;
    if (event->key() == Qt::Key_Up) step = -RowTiles;
    if (event->key() == Qt::Key_Down) step = RowTiles;
    if (step != 0 && at != catalogue_.end()) {
        Walk(tile, step);
    } else {
        FormView::keyPressEvent(event);
    }
}

/// The wheel turns the catalogue's pages, wherever the pointer is.
void ConfigToolboxView::wheelEvent(QWheelEvent* event) {
    turned_ += event->angleDelta().y();
    const int rows = turned_ / QWheelEvent::DefaultDeltasPerStep;
    turned_ -= rows * QWheelEvent::DefaultDeltasPerStep;
    scroll_->setValue(scroll_->value() - rows);
}

bool ConfigToolboxView::eventFilter(QObject* watched, QEvent* event) {
    if (watched != panel_) return FormView::eventFilter(watched, event);
    if (event->type() == QEvent::DragEnter) {
        auto* drag = static_cast<QDragEnterEvent*>(event);
        if (drag->mimeData()->hasFormat(DragType(TileDrag))) drag->acceptProposedAction();
        return true;
    }
    if (event->type() == QEvent::Drop) {
        auto* drop = static_cast<QDropEvent*>(event);
        const int index = drop->mimeData()->data(DragType(TileDrag)).toInt();
        drop->acceptProposedAction();
        Dispatch([index] { frmConfigToolbox_pnlToolbox_DragDrop(index); }, this);
        return true;
    }
    return false;
}

}  // namespace quorvane

// SPDX-License-Identifier: MIT
#include "qt/frame/boxes_panel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>
#include <cmath>

#include "commands/worksheet_events.h"
#include "diagram/box_table.h"
#include "matlab_link/run_report.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/icon_strip.h"
#include "qt/desktop/screen_units.h"
#include "qt/frame/frame_view.h"
#include "qt/frame/quick_field.h"
#include "workbench/bar.h"
#include "workbench/history.h"
#include "workbench/outline.h"
#include "workbench/run_report.h"

namespace quorvane {

namespace {

constexpr int NumberRole = Qt::UserRole;
constexpr int ShownRole = Qt::UserRole + 1;  ///< Of the value: what it shows
constexpr int FaceSide = 24;
constexpr int CurveWidth = 2 * FaceSide;
constexpr int WidestText = 200;
constexpr int TextColumn = 2;
constexpr int ValueColumn = 5;

QStringList Cells(const OutlineRow& row) {
    QStringList cells;
    for (const auto* cell : {&row.Name, &row.Type, &row.Text, &row.From, &row.To}) {
        cells.append(ToScreen(*cell));
    }
    return cells;
}

/// A small curve of the points that are numbers; null without at least two.
QPixmap Curve(const std::vector<double>& points, const QColor& color, qreal ratio) {
    QPolygonF curve;
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (std::isfinite(points[i])) curve.append({static_cast<double>(i), points[i]});
    }
    if (curve.size() < 2) return {};
    QPixmap drawn(QSize(CurveWidth, FaceSide) * ratio);
    drawn.setDevicePixelRatio(ratio);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.5));
    const auto extent = curve.boundingRect();
    const QRectF room(2, 3, CurveWidth - 4, FaceSide - 6);
    for (auto& point : curve) {
        const double across = (point.x() - extent.left()) / extent.width();
        const double up = extent.height() > 0 ? (point.y() - extent.top()) / extent.height() : 0.5;
        point = {room.left() + across * room.width(), room.bottom() - up * room.height()};
    }
    painter.drawPolyline(curve);
    return drawn;
}

/// What a screen reader says of a row.
QString Sentence(const OutlineRow& row) {
    auto text = ToScreen(row.Name + " " + row.Type + " " + row.Text).simplified();
    if (!row.From.empty()) text += ToScreen(", from " + row.From);
    if (!row.To.empty()) text += ToScreen(", to " + row.To);
    return text;
}

}  // namespace

BoxesPanel::BoxesPanel(QWidget* parent) : QWidget(parent) {
    setObjectName("boxesPanel");
    setAccessibleName("Boxes");
    auto* filter = new HintField(this);
    filter_ = filter;
    filter_->setObjectName("filter");
    filter_->setAccessibleName("Show only boxes with this text");
    filter->SetHint("Show only boxes with ...");
    filter_->setClearButtonEnabled(true);
    boxes_ = new QTreeWidget(this);
    boxes_->setObjectName("boxes");
    boxes_->setAccessibleName("Boxes");
    boxes_->setHeaderLabels({"Box", "Type", "Text", "From", "To", "Last value"});
    constexpr int indentation = 12;
    boxes_->setIndentation(indentation);
    boxes_->setAllColumnsShowFocus(true);
    boxes_->setIconSize(QSize(CurveWidth, FaceSide));
    // Values stand where a narrow panel shows them, and take no room before there are any.
    boxes_->header()->moveSection(ValueColumn, TextColumn);
    boxes_->setColumnHidden(ValueColumn, true);
    boxes_->header()->setSectionResizeMode(QHeaderView::Interactive);
    boxes_->setToolTip(
        "Enter shows the box, Shift+Enter its information, F2 changes it, Delete deletes it");
    boxes_->installEventFilter(this);
    setFocusProxy(boxes_);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(4, 4, 4, 4);
    auto* head = new QHBoxLayout;
    head->addWidget(filter_);
    change_ = new QPushButton("Change", this);
    change_->setObjectName("change");
    change_->setToolTip("Opens the dialog that made the box (F2)");
    change_->setEnabled(false);
    head->addWidget(change_);
    rows->addLayout(head);
    rows->addWidget(boxes_);
    connect(filter_, &QLineEdit::textChanged, this, &BoxesPanel::Refresh);
    connect(change_, &QPushButton::clicked, this, [this] { TakeKey(Qt::Key_F2, {}); });
    connect(boxes_, &QTreeWidget::currentItemChanged, this,
            [this] { change_->setEnabled(Current() > 0); });
    connect(boxes_, &QTreeWidget::itemClicked, this, [this] {
        if (Current() > 0) frameView->ShowBox(Current());
    });
}

int BoxesPanel::Current() const {
    const auto* item = boxes_->currentItem();
    return item ? item->data(0, NumberRole).toInt() : 0;
}

void BoxesPanel::Refresh() {
    if (!isVisible()) return;
    QString state = QString("%1 %2").arg(HistoryChanges()).arg(filter_->text());
    ForEachOpenDocument([&](const Worksheet& sheet, int) { state += ToScreen(sheet.Caption); });
    if (listed_ == state) return ShowValues();
    listed_ = state;
    List();
}

/// The row that was current stays so.
void BoxesPanel::List() {
    const int current = Current();
    const bool first = boxes_->topLevelItemCount() == 0;
    const QSignalBlocker quiet(boxes_);
    boxes_->clear();
    for (const auto& row : Outline(ToCore(filter_->text()))) {
        if (row.Box == 0) {
            auto* sheet = new QTreeWidgetItem(Cells(row));
            boxes_->addTopLevelItem(sheet);
            sheet->setFirstColumnSpanned(true);  // so that a long name widens no column
            continue;
        }
        auto* item =
            new QTreeWidgetItem(boxes_->topLevelItem(boxes_->topLevelItemCount() - 1), Cells(row));
        const auto& control = Documents[row.Document]->box;
        if (control.Has(row.Box)) {
            item->setIcon(0, CellOnPaper(control[row.Box].Picture, FaceSide, devicePixelRatioF()));
        }
        item->setData(0, NumberRole, row.Box);
        item->setData(0, Qt::AccessibleTextRole, Sentence(row));
        if (row.Box == current) boxes_->setCurrentItem(item);
    }
    boxes_->expandAll();
    change_->setEnabled(Current() > 0);
    ShowValues();
    if (!first) return;
    for (int i = 0; i < ValueColumn; ++i) boxes_->resizeColumnToContents(i);
    boxes_->setColumnWidth(TextColumn, qMin(boxes_->columnWidth(TextColumn), WidestText));
    boxes_->setColumnWidth(ValueColumn, WidestText);
}

/// What the last run left: a failure, or the value and its curve; grey when it is out of date.
void BoxesPanel::ShowValues() {
    for (QTreeWidgetItemIterator at(boxes_); *at; ++at) {
        const int number = (*at)->data(0, NumberRole).toInt();
        const auto words = ToScreen(ReportInWords(number));
        const auto shown = QString::number(linkReport.Runs) + words;
        if (number == 0 || (*at)->data(ValueColumn, ShownRole) == shown) continue;
        (*at)->setData(ValueColumn, ShownRole, shown);
        ShowValue(*at, number, words);
    }
}

void BoxesPanel::ShowValue(QTreeWidgetItem* item, int number, const QString& words) {
    if (!words.isEmpty()) boxes_->setColumnHidden(ValueColumn, false);
    const auto& report = ReportOf(number);
    const bool old = IsOutOfDate(number);
    const auto group = old ? QPalette::Disabled : QPalette::Active;
    const auto& text = report.Message.empty() ? report.Value : report.Message;
    item->setText(ValueColumn, ToScreen(text).simplified());
    item->setForeground(ValueColumn, palette().color(group, QPalette::Text));
    item->setToolTip(ValueColumn, words);
    item->setData(ValueColumn, Qt::AccessibleTextRole, words);
    const auto color = palette().color(group, old ? QPalette::Text : QPalette::Highlight);
    item->setIcon(ValueColumn, Curve(report.Points, color, devicePixelRatioF()));
}

/// True for a key of the list.
bool BoxesPanel::TakeKey(int key, Qt::KeyboardModifiers modifiers) {
    const int number = Current();
    if (number == 0) return false;
    const auto sheet = [number]() -> Worksheet& {
        return DocumentWindow(Boxes[number].BoxDocument);
    };
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (modifiers & Qt::ShiftModifier) {
                Dispatch([&] { box_MouseDown(sheet(), number, MiddleButton, 0); });
            } else {
                frameView->ShowBox(number);
            }
            return true;
        case Qt::Key_F2: return Dispatch([&] { ChangeBox_Key(sheet(), number); }), true;
        case Qt::Key_Delete: return Dispatch([&] { DeleteBox_Key(number); }), true;
        default: return false;
    }
}

bool BoxesPanel::eventFilter(QObject* watched, QEvent* event) {
    const bool isPress = event->type() == QEvent::KeyPress;
    if (!isPress && event->type() != QEvent::ShortcutOverride) {
        return QWidget::eventFilter(watched, event);
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    if (!isPress) {
        // The frame has keys of the same name for the sheet.
        if (key->key() == Qt::Key_F2 || key->key() == Qt::Key_Delete) event->accept();
        return event->isAccepted();
    }
    return TakeKey(key->key(), key->modifiers()) || QWidget::eventFilter(watched, event);
}

void BoxesPanel::showEvent(QShowEvent*) { Refresh(); }

}  // namespace quorvane

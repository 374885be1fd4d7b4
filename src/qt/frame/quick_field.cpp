// SPDX-License-Identifier: MIT
#include "qt/frame/quick_field.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QPixmap>
#include <QScreen>
#include <QStyleOptionFrame>
#include <QVBoxLayout>

#include "qt/desktop/dispatch.h"
#include "qt/desktop/icon_strip.h"
#include "qt/desktop/screen_units.h"
#include "qt/frame/frame_view.h"

namespace quorvane {

namespace {

constexpr int RowsShown = 12;
constexpr int MostRows = 300;
constexpr int FaceSide = 24;
/// Wide enough for most commands with their menu.
constexpr int PopupWidth = 480;

/// A row without a picture has an empty one, so that all texts start at the same place.
QPixmap RowFace(const QuickRow& row, qreal ratio) {
    if (row.Picture > 0) return CellOnPaper(row.Picture, FaceSide, ratio);
    QPixmap empty(QSize(FaceSide, FaceSide) * ratio);
    empty.setDevicePixelRatio(ratio);
    empty.fill(Qt::transparent);
    return empty;
}

}  // namespace

void HintField::SetHint(const QString& hint, const QString& brief) {
    hint_ = hint;
    brief_ = brief;
    auto colors = palette();
    auto faint = colors.color(QPalette::Text);
    constexpr int alpha = 150;
    faint.setAlpha(alpha);
    colors.setColor(QPalette::PlaceholderText, faint);
    setPalette(colors);
    FitHint();
}

void HintField::resizeEvent(QResizeEvent* event) {
    QLineEdit::resizeEvent(event);
    FitHint();
}

/// Qt would shorten a hint that is too long.
void HintField::FitHint() {
    constexpr int beside = 2;
    QStyleOptionFrame option;
    initStyleOption(&option);
    const auto inside = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    const bool fits = fontMetrics().horizontalAdvance(hint_) <= inside.width() - 2 * beside;
    setPlaceholderText(fits ? hint_ : brief_);
}

QuickPopup::QuickPopup(QWidget* frame) : QFrame(frame, Qt::Popup) {
    setObjectName("quickPopup");
    setAccessibleName("Find");
    setFrameShape(QFrame::StyledPanel);
    setFixedWidth(PopupWidth);
    text_ = new HintField(this);
    text_->setObjectName("quickText");
    text_->setAccessibleName("Find");
    text_->installEventFilter(this);
    list_ = new QListWidget(this);
    list_->setObjectName("quickList");
    list_->setAccessibleName("What fits");
    list_->setIconSize(QSize(FaceSide, FaceSide));
    list_->setFocusProxy(text_);
    list_->setFrameShape(QFrame::NoFrame);
    list_->setTextElideMode(Qt::ElideRight);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(3, 3, 3, 3);
    rows->setSpacing(3);
    rows->addWidget(text_);
    rows->addWidget(list_);
    setFocusProxy(text_);
    connect(text_, &QLineEdit::textChanged, this, &QuickPopup::Find);
    connect(list_, &QListWidget::itemClicked, this, [this] { Choose(list_->currentRow()); });
}

void QuickPopup::Open(QPoint at, const QString& text, bool boxesOnly) {
    boxesOnly_ = boxesOnly;
    text_->SetHint(boxesOnly ? "Find a box" : "Find a command, an option or a box");
    text_->setText(text);
    Find();
    const auto room = screen()->availableGeometry();
    move(qBound(room.left(), at.x(), room.right() - width()),
         qBound(room.top(), at.y(), room.bottom() - height()));
    show();
    text_->setFocus(Qt::PopupFocusReason);
}

void QuickPopup::Find() {
    rows_ = FindQuick(ToCore(text_->text()), boxesOnly_);
    if (rows_.size() > MostRows) rows_.resize(MostRows);
    list_->clear();
    for (const auto& row : rows_) {
        auto* item = new QListWidgetItem(
            ToScreen(row.Text).simplified() + "  -  " + ToScreen(row.Where), list_);
        item->setSizeHint(QSize(0, FaceSide + 4));
        item->setIcon(RowFace(row, devicePixelRatioF()));
    }
    if (rows_.empty() && !text_->text().isEmpty()) {
        (new QListWidgetItem("Nothing fits", list_))->setFlags(Qt::ItemIsEnabled);
    }
    list_->setCurrentRow(rows_.empty() ? -1 : 0);
    list_->setVisible(list_->count() > 0);
    list_->setFixedHeight(qMin(list_->count(), RowsShown) * (FaceSide + 4) + 4);
    layout()->activate();
    resize(width(), sizeHint().height());
}

/// A command may show a dialog, which waits until this window has gone.
void QuickPopup::Choose(int row) {
    if (row < 0 || row >= static_cast<int>(rows_.size())) return;
    const auto chosen = rows_[static_cast<std::size_t>(row)];
    close();
    QMetaObject::invokeMethod(
        frameView,
        [chosen] {
            if (chosen.Box > 0) return frameView->ShowBox(chosen.Box);
            frameView->FocusWorksheet(activeDocument);
            if (activeDocument == 0) return;
            Dispatch([&] { ChooseQuick(chosen, DocumentWindow(activeDocument)); });
        },
        Qt::QueuedConnection);
}

/// The keys that move in the list come from the line above it.
bool QuickPopup::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QFrame::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const int last = list_->count() - 1;
    const int page = RowsShown - 1;
    const auto go = [&](int row) { list_->setCurrentRow(qBound(0, row, last)); };
    switch (key) {
        case Qt::Key_Down: return go(list_->currentRow() + 1), true;
        case Qt::Key_Up: return go(list_->currentRow() - 1), true;
        case Qt::Key_PageDown: return go(list_->currentRow() + page), true;
        case Qt::Key_PageUp: return go(list_->currentRow() - page), true;
        case Qt::Key_Return:
        case Qt::Key_Enter: return Choose(list_->currentRow()), true;
        case Qt::Key_Escape: return close(), true;
        default: return QFrame::eventFilter(watched, event);
    }
}

QuickField::QuickField(QWidget* parent, QuickPopup* popup) : HintField(parent) {
    setObjectName("quick");
    setAccessibleName("Find a command, an option or a box");
    SetHint("Find a command or a box", "Find ...");
    setToolTip(
        "Runs a command, picks an option, shows a box (Ctrl+K at the mouse, Ctrl+F for boxes)");
    connect(this, &QLineEdit::textEdited, this, [this, popup](const QString& text) {
        clear();
        popup->Open(mapToGlobal(QPoint(-4, -4)), text, false);
    });
}

}  // namespace quorvane

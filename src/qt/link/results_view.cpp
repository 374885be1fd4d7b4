// SPDX-License-Identifier: MIT
#include "qt/link/results_view.h"

#include <QCloseEvent>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>

#include "diagram/box_table.h"
#include "generator/send_to_matlab.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/screen_units.h"

namespace quorvane {

namespace {

QColor FailureColor(const QPalette& palette) {
    const bool isDark = palette.color(QPalette::Base).lightness() < 128;
    return isDark ? QColor(0xFF, 0x8A, 0x80) : QColor(0xB0, 0x1E, 0x1E);
}

/// The log. At the right edge of a line that tells of a failure stands the box that failed.
class LogText : public QPlainTextEdit {
protected:
    void paintEvent(QPaintEvent* event) override {
        QPlainTextEdit::paintEvent(event);
        QPainter painter(viewport());
        painter.setPen(FailureColor(palette()));
        for (auto block = firstVisibleBlock(); block.isValid(); block = block.next()) {
            const auto place = blockBoundingGeometry(block).translated(contentOffset());
            if (place.top() > viewport()->height()) return;
            if (block.userState() > 0) PaintBox(painter, block.userState(), place.top());
        }
    }

private:
    void PaintBox(QPainter& painter, int number, double top) {
        const auto name = ToScreen(BoxName(number));
        const auto letters = fontMetrics();
        QRect label(0, qRound(top), letters.horizontalAdvance(name) + 10, letters.height());
        label.moveRight(viewport()->width() - 2);
        painter.fillRect(label, palette().base());
        painter.drawText(label, Qt::AlignCenter, name);
    }
};

}  // namespace

// A dialog, so that it stays above the frame.
ResultsView::ResultsView(QWidget* frame)
    : QWidget(frame, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint) {
    setObjectName("frmTextResults");
    txt_ = new LogText;
    txt_->setObjectName("txt");
    txt_->setAccessibleName("Matlab Text Results");
    txt_->setReadOnly(true);
    txt_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    txt_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    txt_->setUndoRedoEnabled(false);
    lblState_ = new QLabel;
    lblState_->setObjectName("lblState");
    auto* cmdOK = new QPushButton;
    cmdOK->setObjectName("cmdOK");
    cmdOK->setText(ToScreen(frmTextResults.cmdOK.Caption));
    cmdOK->setAutoDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, [] { Dispatch(frmTextResults_cmdOK_Click); });

    auto* pnl = new QWidget(this);
    pnl->setObjectName("pnl");
    auto* foot = new QHBoxLayout;
    foot->addWidget(lblState_, 1);
    foot->addWidget(cmdOK);
    auto* rows = new QVBoxLayout(pnl);
    rows->addWidget(txt_);
    rows->addLayout(foot);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(pnl);
    resize(560, 420);
}

void ResultsView::Refresh() {
    const auto& form = frmTextResults;
    setWindowTitle(ToScreen(form.Form.Caption));
    lblState_->setText(ToScreen(form.lblState.Caption));
    Grow();
    if (form.Form.Visible && isMinimized() && !form.Minimized) showNormal();
    if (isVisible() == form.Form.Visible) return;
    if (form.Form.Visible && !testAttribute(Qt::WA_Moved)) MoveIntoCorner();
    setVisible(form.Form.Visible);
}

/// Opens at the lower right of the frame, where it hides least of the worksheets.
void ResultsView::MoveIntoCorner() {
    constexpr QPoint margin(24, 48);
    move(parentWidget()->frameGeometry().bottomRight() - rect().bottomRight() - margin);
}

/// Keeps the end of the log in view, unless the user has scrolled up.
void ResultsView::Grow() {
    const auto& log = frmTextResults.txt.Text;
    if (log.size() == shown_.size() && log == shown_) return;
    if (!log.starts_with(shown_)) {
        txt_->clear();
        shown_.clear();
    }
    auto* bar = txt_->verticalScrollBar();
    const bool atEnd = bar->value() == bar->maximum();
    Append(shown_.size());
    shown_ = log;
    if (atEnd) bar->setValue(bar->maximum());
}

/// Appends the log behind this place. The line of a failure keeps the number of its box.
void ResultsView::Append(std::size_t from) {
    const std::string_view log = frmTextResults.txt.Text;
    QTextCharFormat failing;
    failing.setForeground(FailureColor(palette()));
    failing.setFontWeight(QFont::Bold);
    QTextCursor end(txt_->document());
    end.movePosition(QTextCursor::End);
    for (const auto& fault : FaultsOfLog(from)) {
        end.insertText(ToScreen(log.substr(from, fault.Begin - from)), {});
        end.insertText(ToScreen(log.substr(fault.Begin, fault.End - fault.Begin)), failing);
        end.block().setUserState(fault.Box);
        from = fault.End;
    }
    end.insertText(ToScreen(log.substr(from)), {});
}

void ResultsView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange) return;
    DispatchLayout([this] { frmTextResults.Minimized = isMinimized(); });
}

void ResultsView::closeEvent(QCloseEvent* event) {
    event->ignore();
    Dispatch(frmTextResults_cmdOK_Click);
}

}  // namespace quorvane

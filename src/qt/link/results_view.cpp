// SPDX-License-Identifier: MIT
#include "qt/link/results_view.h"

#include <QCloseEvent>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>

#include "generator/send_to_matlab.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/screen_units.h"

namespace quorvane {

// A dialog, so that it stays above the frame.
ResultsView::ResultsView(QWidget* frame)
    : QWidget(frame, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint) {
    setObjectName("frmTextResults");
    txt_ = new QPlainTextEdit;
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
    QTextCursor end(txt_->document());
    end.movePosition(QTextCursor::End);
    end.insertText(ToScreen(std::string_view(log).substr(shown_.size())));
    shown_ = log;
    if (atEnd) bar->setValue(bar->maximum());
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

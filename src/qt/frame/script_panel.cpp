// SPDX-License-Identifier: MIT
#include "qt/frame/script_panel.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QVBoxLayout>

#include "diagram/box_table.h"
#include "platform/paths.h"
#include "qt/desktop/screen_units.h"
#include "qt/frame/frame_view.h"
#include "qt/frame/picture_menu.h"
#include "qt/sheet/sheet_marks.h"
#include "workbench/history.h"
#include "workbench/live_script.h"
#include "workbench/run_report.h"

namespace quorvane {

namespace {

constexpr int BoxRole = Qt::UserRole;
/// Beyond this many lines the list of findings scrolls.
constexpr int MostLines = 12;

/// Red that can be read on the ground of a list.
QColor FailureInk(const QPalette& colors) {
    const bool isDark = colors.color(QPalette::Base).lightness() < 128;
    return isDark ? QColor(0xFF, 0x80, 0x80) : QColor(0xB0, 0x18, 0x24);
}

}  // namespace

ScriptPanel::ScriptPanel(QWidget* parent) : QWidget(parent) {
    setObjectName("scriptPanel");
    setAccessibleName("Script");
    title_ = new QLabel(this);
    title_->setTextFormat(Qt::PlainText);
    title_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    copy_ = new QPushButton("Copy", this);
    copy_->setObjectName("copy");
    copy_->setToolTip("Copies the script to the clipboard");
    findings_ = new QListWidget(this);
    findings_->setObjectName("findings");
    findings_->setAccessibleName("Findings");
    findings_->setWordWrap(true);
    findings_->setSpacing(1);
    findings_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    script_ = new QPlainTextEdit(this);
    script_->setObjectName("script");
    script_->setAccessibleName("Script");
    script_->setReadOnly(true);
    script_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    script_->setLineWrapMode(QPlainTextEdit::NoWrap);
    script_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    script_->viewport()->installEventFilter(this);
    setFocusProxy(script_);
    auto* head = new QHBoxLayout;
    head->addWidget(title_, 1);
    head->addWidget(copy_);
    picture_ = MakePictureButton(this);
    head->addWidget(picture_);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(4, 4, 4, 4);
    rows->addLayout(head);
    rows->addWidget(findings_);
    rows->addWidget(script_, 1);
    connect(copy_, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(ToScreen(ScriptOf(document_).Text)); });
    connect(findings_, &QListWidget::itemActivated, this, [](const QListWidgetItem* item) {
        if (const int box = item->data(BoxRole).toInt()) frameView->ShowBox(box);
    });
    connect(findings_, &QListWidget::itemClicked, findings_, &QListWidget::itemActivated);
}

void ScriptPanel::Refresh() {
    if (!isVisible() || QGuiApplication::mouseButtons() != Qt::NoButton) return;
    const auto& live = ScriptOf(activeDocument);
    const auto failed = FailedBoxes();
    if (document_ != activeDocument || changes_ != HistoryChanges() || failed_ != failed) {
        failed_ = failed;
        document_ = activeDocument;
        changes_ = HistoryChanges();
        const auto text = ToScreen(live.Text).replace("\r\n", "\n");
        if (script_->toPlainText() != text) script_->setPlainText(text);
        ShowFindings();
        lit_ = 0;
    }
    const bool open = document_ > 0;
    ShowTitle();
    script_->setPlaceholderText(open ? "No script: see what is said above" : "");
    copy_->setEnabled(!live.Text.empty());
    picture_->setEnabled(open);
    LightLines();
}

/// As much of the worksheet's name as there is room for.
void ScriptPanel::ShowTitle() {
    const bool open = document_ > 0 && document_ <= Documents.UpperBound() && Documents[document_];
    const auto name =
        open ? ToScreen(FileNameOf(DocumentWindow(document_).Caption)) : QString("No worksheet");
    title_->setToolTip(name);
    title_->setText(title_->fontMetrics().elidedText(name, Qt::ElideMiddle, title_->width()));
}

void ScriptPanel::AddBox(int box, const std::string& text) {
    const auto name = box > 0 ? ToScreen(BoxName(box) + ": ") : QString();
    auto* item = new QListWidgetItem(name + ToScreen(text), findings_);
    item->setData(BoxRole, box);
}

/// Where the last run failed, what the next would ask, and what the check finds.
void ScriptPanel::ShowFindings() {
    findings_->clear();
    const auto& live = ScriptOf(document_);
    for (const int box : failed_) {
        if (BoxOrFree(box).BoxDocument != document_) continue;
        AddBox(box, ReportInWords(box));
        findings_->item(findings_->count() - 1)->setForeground(FailureInk(palette()));
    }
    for (const auto& asked : live.Asked) {
        findings_->addItem("The run asks: " + ToScreen(asked).simplified());
    }
    for (const auto& finding : live.Findings) AddBox(finding.Box, InWords(finding));
    findings_->setVisible(findings_->count() > 0);
    FitFindings();
}

/// The findings show whole; how many lines they take hangs on the width.
void ScriptPanel::FitFindings() {
    findings_->doItemsLayout();
    QRect rows;
    for (int i = 0; i < findings_->count(); ++i) {
        rows |= findings_->visualItemRect(findings_->item(i));
    }
    const int margins = 2 * (findings_->frameWidth() + findings_->spacing());
    const int most = MostLines * findings_->fontMetrics().lineSpacing();
    findings_->setFixedHeight(qMin(rows.height() + margins, most));
}

void ScriptPanel::resizeEvent(QResizeEvent*) {
    FitFindings();
    ShowTitle();
}

/// In the colour of a selection, faintly.
void ScriptPanel::LightLines() {
    const int box = frameView->CurrentBox();
    if (box == lit_) return;
    lit_ = box;
    QTextEdit::ExtraSelection lit;
    auto color = palette().color(QPalette::Highlight);
    constexpr int alpha = 70;
    color.setAlpha(alpha);
    lit.format.setBackground(color);
    lit.format.setProperty(QTextFormat::FullWidthSelection, true);
    QList<QTextEdit::ExtraSelection> lines;
    for (auto block = script_->document()->begin(); block.isValid(); block = block.next()) {
        if (box == 0 || BoxOfLine(block.blockNumber()) != box) continue;
        lit.cursor = QTextCursor(block);
        lines.append(lit);
    }
    script_->setExtraSelections(lines);
}

int ScriptPanel::BoxOfLine(int line) const {
    const auto& boxes = ScriptOf(document_).BoxOfLine;
    return line < static_cast<int>(boxes.size()) ? boxes[static_cast<std::size_t>(line)] : 0;
}

bool ScriptPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease && !script_->textCursor().hasSelection()) {
        const auto at = static_cast<QMouseEvent*>(event)->pos();
        const int box = BoxOfLine(script_->cursorForPosition(at).blockNumber());
        if (box > 0) frameView->ShowBox(box);
    }
    return QWidget::eventFilter(watched, event);
}

void ScriptPanel::showEvent(QShowEvent*) {
    showsFindings = true;
    Refresh();
}

void ScriptPanel::hideEvent(QHideEvent*) { showsFindings = false; }

}  // namespace quorvane

// SPDX-License-Identifier: MIT
#include "qt/frame/help_window.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QSplitter>
#include <QStatusBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QUrl>

#include "qt/desktop/icon_strip.h"
#include "qt/desktop/screen_units.h"
#include "qt/frame/frame_view.h"
#include "shell/manual_index.h"

namespace quorvane {

namespace {

enum HelpCommand { Quit = 2, Contents = 3, HowTo = 4, Search = 261 };

constexpr int TextMargin = 14;

const char* const HowToText =
    "<h2>How to use the help</h2>"
    "<p>The list at the left holds the pages. Choose one to read it. Links in the text lead on, "
    "and "
    "<b>Back</b> returns to where you were.</p>"
    "<p>To look for a word, type it in the field above and press Enter. Each further Enter goes to "
    "the next place.</p>";

constexpr int IconSide = 32;

/// The pictures of the boxes stand on paper, as in menus and lists: their ink is for a light
/// ground.
class ManualBrowser : public QTextBrowser {
protected:
    QVariant loadResource(int type, const QUrl& url) override {
        static const QRegularExpression icon("^/icons/(\\d+)\\.svg$");
        const auto found = icon.match(url.path());
        if (!found.hasMatch()) return QTextBrowser::loadResource(type, url);
        return CellOnPaper(found.captured(1).toInt(), IconSide, devicePixelRatioF());
    }
};

QPointer<HelpWindow> helpWindow;

}  // namespace

HelpWindow::HelpWindow(QWidget* parent) : QMainWindow(parent, Qt::Window) {
    setObjectName("helpWindow");
    setWindowTitle("Quorvane Help");
    auto* splitter = new QSplitter(this);
    contents_ = new QTreeWidget;
    contents_->setObjectName("helpContents");
    contents_->setAccessibleName("Contents");
    contents_->setHeaderHidden(true);
    text_ = new ManualBrowser;
    text_->setObjectName("helpText");
    text_->setOpenExternalLinks(true);
    splitter->addWidget(contents_);
    splitter->addWidget(text_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({240, 640});
    setCentralWidget(splitter);
    auto* bar = addToolBar("Help");
    bar->setMovable(false);
    auto* back = bar->addAction("&Back", text_, &QTextBrowser::backward);
    back->setShortcut(QKeySequence::Back);
    back->setEnabled(false);
    connect(text_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    auto* label = new QLabel(" &Search: ");
    search_ = new QLineEdit;
    search_->setObjectName("helpSearch");
    search_->setClearButtonEnabled(true);
    label->setBuddy(search_);
    bar->addWidget(label);
    bar->addWidget(search_);
    connect(search_, &QLineEdit::returnPressed, this, &HelpWindow::FindNext);
    connect(contents_, &QTreeWidget::currentItemChanged, this, &HelpWindow::Read);
    // Also for the page that is chosen already, to return to its beginning.
    connect(contents_, &QTreeWidget::itemClicked, this, &HelpWindow::Read);
    // Always shown: appearing later, it would cover what a search has just found.
    statusBar()->setSizeGripEnabled(false);
    resize(920, 680);
}

bool HelpWindow::Open(const std::string& file) {
    QFile manual(ToScreen(file));
    if (!manual.open(QIODevice::ReadOnly)) return false;
    text_->setSearchPaths({QFileInfo(manual).absolutePath()});
    auto pages = manual.readAll();
    pages.replace(QByteArrayView(ManualIndexPlace), QByteArray::fromStdString(ManualIndex()));
    manual_ = QString::fromUtf8(pages);
    ShowText(manual_);
    FillContents();
    return true;
}

void HelpWindow::ShowText(const QString& text) {
    text_->setHtml(text);
    text_->document()->setDocumentMargin(TextMargin);
    showsManual_ = text == manual_;
}

/// Choosing a page while the help on help is shown brings the manual back.
void HelpWindow::Read(const QTreeWidgetItem* page) {
    if (!page) return;
    if (!showsManual_) ShowText(manual_);
    text_->scrollToAnchor(page->data(0, Qt::UserRole).toString());
}

/// The headings of the manual are its contents; each is found by its anchor.
void HelpWindow::FillContents() {
    const QSignalBlocker quiet(contents_);
    contents_->clear();
    QTreeWidgetItem* chapter = nullptr;
    for (auto block = text_->document()->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level < 1 || level > 2) continue;
        QString anchor;
        for (auto it = block.begin(); !it.atEnd() && anchor.isEmpty(); ++it) {
            const auto names = it.fragment().charFormat().anchorNames();
            if (!names.isEmpty()) anchor = names.constFirst();
        }
        const bool top = level == 1 || !chapter;
        auto* item = top ? new QTreeWidgetItem(contents_) : new QTreeWidgetItem(chapter);
        item->setText(0, block.text());
        item->setData(0, Qt::UserRole, anchor);
        if (level == 1) chapter = item;
    }
    contents_->expandAll();
}

void HelpWindow::ShowContents() { text_->moveCursor(QTextCursor::Start); }

/// Choosing it in the contents scrolls to it.
void HelpWindow::ShowPage(const QString& anchor) {
    for (QTreeWidgetItemIterator at(contents_); *at; ++at) {
        if ((*at)->data(0, Qt::UserRole) != anchor) continue;
        contents_->setCurrentItem(*at);
        return Read(*at);
    }
}

void HelpWindow::ShowHowTo() { ShowText(HowToText); }

void HelpWindow::ShowSearch() {
    search_->setFocus();
    search_->selectAll();
}

void HelpWindow::FindNext() {
    const auto word = search_->text();
    statusBar()->clearMessage();
    if (!showsManual_) ShowText(manual_);
    if (word.isEmpty() || text_->find(word)) return;
    const auto place = text_->textCursor();
    text_->moveCursor(QTextCursor::Start);
    if (text_->find(word)) return;
    text_->setTextCursor(place);
    statusBar()->showMessage(QString("\"%1\" was not found in the help").arg(word));
}

namespace {

/// False when the manual can't be read. A modal dialog blocks all windows but its own.
bool OpenWindow(const std::string& file) {
    auto* dialog = QApplication::activeModalWidget();
    QWidget* parent = dialog ? dialog : frameView;
    if (helpWindow && helpWindow->parentWidget() != parent) delete helpWindow;
    if (!helpWindow) helpWindow = new HelpWindow(parent);
    if (helpWindow->Open(file)) return true;
    delete helpWindow;
    return false;
}

void BringUp() {
    helpWindow->show();
    helpWindow->raise();
    helpWindow->activateWindow();
}

}  // namespace

void RunHelpCommand(const std::string& file, int command) {
    if (command == Quit) {
        delete helpWindow;
        return;
    }
    if (!OpenWindow(file)) return;
    if (command == HowTo) helpWindow->ShowHowTo();
    if (command == Contents) helpWindow->ShowContents();
    BringUp();
    if (command == Search) helpWindow->ShowSearch();
}

void ShowHelpPage(const std::string& file, const QString& anchor) {
    if (!OpenWindow(file)) return;
    BringUp();
    helpWindow->ShowPage(anchor);
}

}  // namespace quorvane

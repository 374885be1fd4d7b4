// SPDX-License-Identifier: MIT
#include "qt/frame/frame_view.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>
#include <cmath>
#include <iterator>
#include <utility>

#include "diagram/box_table.h"
#include "files/close_document.h"
#include "files/document_file.h"
#include "matlab_link/link.h"
#include "matlab_link/run_report.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/screen_units.h"
#include "qt/dialogs/form_view.h"
#include "qt/frame/bar_view.h"
#include "qt/frame/boxes_panel.h"
#include "qt/frame/help_key.h"
#include "qt/frame/script_panel.h"
#include "qt/frame/sheet_keys.h"
#include "qt/frame/splash_view.h"
#include "qt/frame/toolbox_view.h"
#include "qt/frame/welcome_view.h"
#include "qt/link/results_view.h"
#include "qt/sheet/box_view.h"
#include "qt/sheet/sheet_marks.h"
#include "qt/sheet/worksheet_view.h"
#include "shell/frame.h"
#include "toolbox/toolbox.h"

namespace quorvane {

FrameView* frameView = nullptr;

namespace {

/// Icons stand side by side.
void PlaceIcons(const QList<QMdiSubWindow*>& icons, int top) {
    int x = 0;
    for (auto* icon : icons) {
        icon->move(x, top);
        x += icon->width();
    }
}

/// Each window is lower and further to the right than the one behind it, so that all titles show;
/// at the edge they start again.
void Cascade(const QList<QMdiSubWindow*>& windows, const QRect& space) {
    constexpr int share = 4;  // of which a window takes three
    const QSize size = space.size() * (share - 1) / share;
    QPoint at;
    for (auto* window : windows) {
        window->resize(size);
        window->move(at);
        const int step = window->widget()->y() + 1;
        at += QPoint(step, step);
        if (!space.contains(QRect(at, size))) at = {};
    }
}

/// As many columns as keep the windows wider than high; when they don't come out even, the last
/// columns have one window more.
void Tile(const QList<QMdiSubWindow*>& windows, const QRect& space) {
    const int count = static_cast<int>(windows.size());
    const int columns = static_cast<int>(std::sqrt(count));
    int next = 0;
    for (int column = 0; column < columns; ++column) {
        const int rows = (count - next) / (columns - column);
        for (int row = 0; row < rows; ++row) {
            const QPoint start(space.width() * column / columns, space.height() * row / rows);
            const QPoint end(space.width() * (column + 1) / columns,
                             space.height() * (row + 1) / rows);
            windows[next++]->setGeometry(QRect(start, end - QPoint(1, 1)));
        }
    }
}

/// Of the panels beside the worksheets, until the user moves their edges.
constexpr int PanelWidth = 290;
constexpr int BoxesWidth = 360;

/// A worksheet's window; its document decides whether it closes.
class WorksheetWindow : public QMdiSubWindow {
public:
    explicit WorksheetWindow(WorksheetView* view) : view_(view) {
        setWidget(view);
        resize(640, 480);
    }

protected:
    void closeEvent(QCloseEvent* event) override {
        event->ignore();
        const int document = view_->Document();
        Dispatch([document] { CloseDocument(document); });
    }
    void changeEvent(QEvent* event) override {
        QMdiSubWindow::changeEvent(event);
        if (event->type() != QEvent::WindowStateChange) return;
        if (Documents.UpperBound() < view_->Document() || !Documents[view_->Document()]) return;
        DispatchLayout([this] { DocumentWindow(view_->Document()).Minimized = isMinimized(); });
    }

private:
    WorksheetView* view_;
};

}  // namespace

FrameView::FrameView() {
    frameView = this;
    setObjectName("frmMDI");
    setWindowTitle("Quorvane");
    area_ = new QMdiArea(this);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    welcome_ = new WelcomeView(area_->viewport());
    setAcceptDrops(true);
    area_->viewport()->installEventFilter(this);
    bar_ = new BarView(this);
    auto* inner = new QWidget(this);
    auto* rows = new QVBoxLayout(inner);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(bar_);
    boxes_ = new BoxesPanel(inner);
    script_ = new ScriptPanel(inner);
    auto* beside = new QSplitter(inner);
    for (QWidget* part : {static_cast<QWidget*>(boxes_), static_cast<QWidget*>(area_),
                          static_cast<QWidget*>(script_)}) {
        beside->addWidget(part);
        beside->setCollapsible(beside->indexOf(part), false);
    }
    beside->setStretchFactor(1, 1);
    beside->setSizes({BoxesWidth, 2 * PanelWidth, PanelWidth});
    rows->addWidget(beside, 1);
    bar_->AddPanel("showScript", "Script", "F7", script_);
    bar_->AddPanel("showBoxes", "Boxes", "F8", boxes_);
    setCentralWidget(inner);
    toolbox_ = new ToolboxView(*this);
    results_ = new ResultsView(this);
    splash_ = std::make_unique<SplashView>();
    frameMenus_ = MakeFrameMenus(this);
    documentMenus_ = MakeDocumentMenus(this);
    AddSheetKeys(*this);
    AddHelpKey(*this);
    connect(area_, &QMdiArea::subWindowActivated, this, &FrameView::Activated);
    RefreshScreen = [this] { Refresh(); };
    const auto screenArea = screen()->availableGeometry();
    resize(QSize(1000, 720).boundedTo(screenArea.size()));
    move(screenArea.center() - rect().center());
    Refresh();
}

/// The area reports the removal of its windows after this has been destroyed.
FrameView::~FrameView() {
    disconnect(area_, nullptr, this, nullptr);
    RefreshScreen = [] {};
    activeDocument = 0;
    poppedDocument = 0;
    showsBoxNumbers = false;
    showsFindings = false;
    frameView = nullptr;
}

WorksheetView* FrameView::ViewOf(int document) const {
    for (auto* window : area_->subWindowList()) {
        auto* view = static_cast<WorksheetView*>(window->widget());
        if (view->Document() == document) return view;
    }
    return nullptr;
}

void FrameView::OpenWindow(int document) {
    auto* window = new WorksheetWindow(new WorksheetView(document));
    window->setAttribute(Qt::WA_DeleteOnClose, false);
    const bool isFirst = area_->subWindowList().isEmpty();
    area_->addSubWindow(window);
    if (isFirst) window->setGeometry(area_->viewport()->rect());
    window->show();
}

/// Removes the windows whose documents are gone.
void FrameView::CloseMissing() {
    for (auto* window : area_->subWindowList()) {
        const int document = static_cast<WorksheetView*>(window->widget())->Document();
        if (document <= Documents.UpperBound() && Documents[document]) continue;
        if (activeDocument == document) activeDocument = 0;
        area_->removeSubWindow(window);
        window->hide();
        window->deleteLater();
    }
}

/// A window that opens or closes here gets a size or comes to the front, which are events; another
/// round shows what they change.
void FrameView::Refresh() {
    isStale_ = true;
    if (refreshing_) return;
    const QScopedValueRollback<bool> refreshing(refreshing_, true);
    while (std::exchange(isStale_, false)) ShowRecords();
}

void FrameView::ShowRecords() {
    CloseMissing();
    for (int i = 1; i <= Documents.UpperBound(); ++i) {
        if (!Documents[i] || !Documents[i]->Shown) continue;
        if (!ViewOf(i)) OpenWindow(i);
        if (auto* view = ViewOf(i)) view->Refresh();
    }
    ShowMenus();
    welcome_->Refresh(!area_->subWindowList().isEmpty());
    splash_->Refresh();
    bar_->Refresh();
    linkReport.wantsValues = boxes_->isVisible() || script_->isVisible();
    boxes_->Refresh();
    script_->Refresh();
    toolbox_->Refresh();
    results_->Refresh();
    RefreshForms();
}

void FrameView::Activated(QMdiSubWindow* window) {
    // The area reports "none" also while the whole program is in the background.
    if (!window && area_->currentSubWindow()) return;
    DispatchLayout([window] {
        activeDocument = window ? static_cast<WorksheetView*>(window->widget())->Document() : 0;
        if (activeDocument > 0 && Documents[activeDocument]) {
            main_Activate(*Documents[activeDocument]);
        }
    });
}

void FrameView::ShowMenus() {
    const bool ofDocument = activeDocument > 0;
    if (!showsAny_ || showsDocumentMenus_ != ofDocument) {
        menuBar()->clear();
        // Shortcuts of menus that aren't in a bar don't work.
        const auto& set = ofDocument ? documentMenus_ : frameMenus_;
        for (auto* menu : set.Menus) menuBar()->addMenu(menu);
        showsAny_ = true;
        showsDocumentMenus_ = ofDocument;
    }
    if (ofDocument) {
        RefreshDocumentMenus(documentMenus_, activeDocument);
        ListWindows();
    } else {
        RefreshFrameMenus(frameMenus_);
    }
}

/// Lists the open worksheets below the commands of the Windows menu.
void FrameView::ListWindows() {
    auto* menu = findChild<QMenu*>("mnuWindowsMenu");
    const auto windows = area_->subWindowList();
    while (windowList_.size() > windows.size() + 1) delete windowList_.takeLast();
    if (windowList_.isEmpty()) windowList_.append(menu->addSeparator());
    for (int i = 0; i < windows.size(); ++i) {
        if (windowList_.size() < i + 2) {
            auto* action = menu->addAction(QString());
            action->setCheckable(true);
            action->setObjectName(QString("mnuWindowList(%1)").arg(i + 1));
            connect(action, &QAction::triggered, this,
                    [this, i] { Dispatch([this, i] { Choose(i); }); });
            windowList_.append(action);
        }
        auto* view = static_cast<WorksheetView*>(windows[i]->widget());
        auto* action = windowList_[i + 1];
        const auto title = view->windowTitle();
        const auto text = QString("&%1 %2").arg(i + 1).arg(QString(title).replace("&", "&&"));
        if (action->text() != text) action->setText(text);
        action->setChecked(view->Document() == activeDocument);
    }
}

/// Brings a worksheet of the list to the front, even when it is minimised.
void FrameView::Choose(int listed) {
    const auto windows = area_->subWindowList();
    if (listed >= windows.size()) return;
    if (windows[listed]->isMinimized()) windows[listed]->showNormal();
    area_->setActiveSubWindow(windows[listed]);
}

/// Worksheets that are icons stay icons, and keep their row at the lower edge free of the others.
void FrameView::Arrange(int how) {
    QList<QMdiSubWindow*> icons, open;
    for (auto* window : area_->subWindowList(QMdiArea::StackingOrder)) {
        (window->isMinimized() ? icons : open).append(window);
    }
    auto space = area_->viewport()->rect();
    if (!icons.isEmpty()) space.setHeight(space.height() - icons.first()->height());
    if (how == 2) return PlaceIcons(icons, space.height());
    for (auto* window : open) window->showNormal();
    if (how == 0) Cascade(open, space);
    if (how == 1) Tile(open, space);
}

void FrameView::PopupMenu(const QString& control, int document) {
    auto* menu = findChild<QMenu*>(control + "Menu");
    if (!menu) return;
    poppedDocument = document;
    // An entry is triggered after the menu has closed, but before what is queued at that point.
    connect(
        menu, &QMenu::aboutToHide, this,
        [this] {
            QMetaObject::invokeMethod(
                this, [] { poppedDocument = 0; }, Qt::QueuedConnection);
        },
        Qt::SingleShotConnection);
    menu->popup(QCursor::pos());
}

/// A part of the worksheet that has the focus in the frame keeps it.
void FrameView::FocusWorksheet(int document) {
    auto* view = ViewOf(document);
    if (!view) return;
    activateWindow();
    area_->setActiveSubWindow(static_cast<QMdiSubWindow*>(view->parentWidget()));
    if (!view->isAncestorOf(focusWidget())) view->setFocus();
}

void FrameView::GoToNextPart() {
    QWidget* const parts[] = {ActiveView(), boxes_, script_, toolbox_};
    const auto* focused = QApplication::focusWidget();
    std::size_t at = toolbox_->isActiveWindow() ? 3 : 0;
    for (std::size_t i = 0; i < std::size(parts); ++i) {
        if (focused && parts[i] && parts[i]->isAncestorOf(focused)) at = i;
    }
    do at = (at + 1) % std::size(parts);
    while (at > 0 && !parts[at]->isVisible());
    activateWindow();
    if (at == 0) return FocusWorksheet(activeDocument);
    if (parts[at] == toolbox_) return toolbox_->TakeFocus();
    parts[at]->setFocus(Qt::ShortcutFocusReason);
}

void FrameView::ShowBox(int number) {
    const int document = BoxOrFree(number).BoxDocument;
    FocusWorksheet(document);
    if (auto* view = ViewOf(document)) view->ShowBox(number);
}

int FrameView::CurrentBox() const {
    const auto* under = dynamic_cast<BoxView*>(QApplication::widgetAt(QCursor::pos()));
    const auto* focused = dynamic_cast<BoxView*>(focusWidget());
    const auto* box = under ? under : focused;
    return box && box->Document() == activeDocument ? box->Number() : 0;
}

/// Boxes that are dragged are not for the frame.
void FrameView::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

/// A worksheet that fills the room between the panels goes on filling it.
bool FrameView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == area_->viewport() && event->type() == QEvent::Resize) {
        const auto& resized = *static_cast<QResizeEvent*>(event);
        for (auto* window : area_->subWindowList()) {
            const bool fills = window->geometry() == QRect({}, resized.oldSize());
            const bool isNormal = !window->isMinimized() && !window->isMaximized();
            if (fills && isNormal) window->resize(resized.size());
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void FrameView::dropEvent(QDropEvent* event) {
    for (const auto& url : event->mimeData()->urls()) {
        if (!url.isLocalFile()) continue;
        Dispatch([file = ToCore(url.toLocalFile())] { LoadDocumentFile(file); });
    }
}

void FrameView::closeEvent(QCloseEvent* event) {
    constexpr int soon = 100;
    event->ignore();
    if (!LinkIsBusy()) return Dispatch([] { UnloadFrame(); });
    LeaveRun();
    QTimer::singleShot(soon, this, &QWidget::close);
}

}  // namespace quorvane

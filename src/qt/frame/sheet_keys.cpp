// SPDX-License-Identifier: MIT
#include "qt/frame/sheet_keys.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QShortcut>

#include "qt/desktop/dispatch.h"
#include "qt/frame/frame_view.h"
#include "qt/frame/picture_menu.h"
#include "qt/sheet/sheet_marks.h"
#include "qt/sheet/worksheet_view.h"

namespace quorvane {

namespace {

struct SheetKey {
    const char* Keys;
    void (*Action)(WorksheetView& view);
};

void NormalSize(WorksheetView& view) { view.SetZoom(100); }
void ZoomIn(WorksheetView& view) { view.ZoomIn(); }
void ZoomOut(WorksheetView& view) { view.ZoomOut(); }
void WholeDiagram(WorksheetView& view) { view.ZoomToDiagram(); }

/// On all worksheets.
void ToggleBoxNumbers(WorksheetView& /*view*/) {
    Dispatch([] { showsBoxNumbers = !showsBoxNumbers; });
}

void Print(WorksheetView& view) {
    Dispatch([&] { PrintDiagram(view.Document()); });
}

constexpr SheetKey Keys[] = {
    {"Ctrl++", ZoomIn},     {"Ctrl+=", ZoomIn},       {"Ctrl+-", ZoomOut},
    {"Ctrl+0", NormalSize}, {"Ctrl+9", WholeDiagram}, {"Ctrl+Shift+N", ToggleBoxNumbers},
    {"Ctrl+P", Print},
};

}  // namespace

void AddSheetKeys(FrameView& frame) {
    QObject::connect(new QShortcut(QKeySequence("F6"), &frame), &QShortcut::activated, &frame,
                     &FrameView::GoToNextPart);
    for (const auto& row : Keys) {
        auto* key = new QShortcut(QKeySequence(row.Keys), &frame);
        QObject::connect(key, &QShortcut::activated, &frame, [&frame, action = row.Action] {
            auto* window = frame.Area()->currentSubWindow();
            if (window) action(*static_cast<WorksheetView*>(window->widget()));
        });
    }
}

}  // namespace quorvane

// SPDX-License-Identifier: MIT
#include "diagram/worksheet.h"

#include "diagram/box_table.h"
#include "platform/numbers.h"

namespace quorvane {

GrowableArray<std::unique_ptr<Worksheet>> Documents;
GrowableArray<DocumentState> DocumentStates;
std::int16_t CurrentDocument = 0;
FrameWindow frmMDI;

Worksheet::Worksheet() {
    pnlResource.Place = {0, 6810, 1800, 390};
    pnlArrow.Place = {1800, 6810, 600, 390};
    pctblank = {9345, 6945, 255, 255};
    scrH.Place = {2400, 6810, 6945, 390};
    scrV.Place = {9345, 0, 255, 6945};
    scrV.Max = 7000;
    scrV.SmallChange = 200;
    scrV.LargeChange = 500;
    mnuOptionsBubbleShow.Checked = true;
    box.Load(0);
    for (auto& entry : mnuFileArray) entry.Visible = false;
}

FrameWindow::FrameWindow() {
    mnuOptionsCurrentToolbox.Caption = "Current Toolbox: default.tlb";
    for (auto& entry : mnuFileArray) entry.Visible = false;
}

std::int16_t DocumentNumber(const Worksheet& sheet) { return TextToInt16(sheet.Tag); }

void MarkModified(const Worksheet& sheet) { DocumentStates[DocumentNumber(sheet)].Modified = -1; }

std::int16_t AllocateDocument() {
    for (int i = 1; i <= Documents.UpperBound(); ++i) {
        if (DocumentStates[i].Closed) {
            DocumentStates[i].Closed = 0;
            return static_cast<std::int16_t>(i);
        }
    }
    const int grown = Documents.UpperBound() + 1;
    Documents.Resize(grown);
    DocumentStates.Resize(grown);
    return ToInt16(grown);
}

void SetPointerAll(int pointer) {
    ForEachOpenDocument([&](Worksheet& window, int) { window.MousePointer = pointer; });
}

void UpdateBoxGauge(double percent) {
    ForEachOpenDocument([&](Worksheet& window, int) { window.pnlResource.Value = percent; });
}

double BoxTableFill() { return (NextBox - 1) / static_cast<double>(MaxBoxes) * 100; }

void ClearSelectionRect(const std::string& document) {
    if (document.empty()) return;
    DocumentWindow(TextToInt16(document)).shpCopy = {};
}

void ResetDocuments() {
    Documents.Resize(0);
    Documents[0].reset();
    DocumentStates.Resize(0);
    CurrentDocument = 0;
    frmMDI = FrameWindow();
}

}  // namespace quorvane

// SPDX-License-Identifier: MIT
#include "shell/frame.h"

#include "diagram/box_table.h"
#include "files/close_document.h"
#include "files/document_file.h"
#include "generator/send_to_matlab.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "toolbox/toolbox.h"

namespace quorvane {

namespace {

void QuitHelp() {
    constexpr int quit = 2;
    desktop->Help("", quit);
}

}  // namespace

void mnuFileNew_Click() { NewDocument(); }
void mnuFileOpen_Click() { LoadDocument(""); }

void mnuFileExit_Click() {
    EditMode = 0;
    QuitHelp();
    UnloadToolbox();
    frmTextResults = {};
    UnloadFrame();
}

void mnuExit_Click() {
    QuitHelp();
    UnloadFrame();
}

void mnuWindowsArrange_Click() { desktop->ArrangeWindows(2); }
void mnuWindowsCascade_Click() { desktop->ArrangeWindows(0); }
void mnuWindowsTile_Click() { desktop->ArrangeWindows(1); }

void mnuFileSaveFile_Click(Worksheet& sheet) { SaveDocument(TextToInt16(sheet.Tag), 1); }
void mnuFileSave_Click(Worksheet& sheet) { SaveDocument(TextToInt16(sheet.Tag), 2); }

bool UnloadFrame() {
    for (int i = 1; i <= Documents.UpperBound(); ++i) {
        if (Documents[i] && !CloseDocument(i)) return false;
    }
    UnloadToolbox();
    desktop->EndProgram();
    return true;
}

}  // namespace quorvane

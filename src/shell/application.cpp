// SPDX-License-Identifier: MIT
#include "shell/application.h"

#include "catalogue/icon_table.h"
#include "catalogue/matrix_input.h"
#include "diagram/box_table.h"
#include "diagram/worksheet.h"
#include "files/document_file.h"
#include "files/settings.h"
#include "generator/compile_document.h"
#include "generator/front.h"
#include "generator/output_targets.h"
#include "platform/file_table.h"

namespace quorvane {

void ResetApplication() {
    CloseAllFiles();
    ResetBoxTable();
    ResetDocuments();
    ResetFront();
    lastRunEnd = RunEnd::None;
    lastLoad = {};
    icons = {};
    frmMatrix = {};
    frmPrefs = {};
    frmTextResults = {};
}

}  // namespace quorvane

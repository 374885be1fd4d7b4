// SPDX-License-Identifier: MIT
#include "shell/application.h"

#include "catalogue/icon_table.h"
#include "catalogue/matrix_input.h"
#include "diagram/box_info.h"
#include "diagram/box_table.h"
#include "diagram/comment_form.h"
#include "diagram/layout.h"
#include "diagram/page_view.h"
#include "diagram/selection.h"
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
    ResetSelection();
    PageRight = 0;
    PageBottom = 0;
    ResetFront();
    lastRunEnd = RunEnd::None;
    lastLoad = {};
    icons = {};
    frmComment = {};
    frmInfo = {};
    frmMatrix = {};
    frmPageView = {};
    frmPrefs = {};
    frmTextResults = {};
}

}  // namespace quorvane

// SPDX-License-Identifier: MIT
#include "shell/application.h"

#include "catalogue/icon_table.h"
#include "commands/command_browser_door.h"
#include "commands/flow_dialogs.h"
#include "commands/function_dialogs.h"
#include "commands/matrix_dialogs.h"
#include "commands/matrix_input.h"
#include "commands/option_list_dialog.h"
#include "commands/plot_box.h"
#include "diagram/arrows.h"
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
#include "generator/send_to_matlab.h"
#include "matlab_link/command_browser.h"
#include "matlab_link/directory_dialog.h"
#include "matlab_link/link.h"
#include "matlab_link/mfile_index.h"
#include "matlab_link/run_report.h"
#include "matlab_link/start_matlab.h"
#include "platform/file_table.h"
#include "shell/about.h"
#include "shell/help.h"
#include "shell/menus.h"
#include "shell/start_up.h"
#include "shell/tour.h"
#include "toolbox/toolbox.h"
#include "toolbox/toolbox_config.h"
#include "workbench/bar.h"
#include "workbench/history.h"
#include "workbench/live_script.h"
#include "workbench/recovery.h"
#include "workbench/recovery_offer.h"
#include "workbench/run_report.h"

namespace quorvane {

namespace {

void ResetForms() {
    frmAbout = {};
    frmComment = {};
    frmConfigToolbox = {};
    frmDirectory = {};
    frmDisclaimer = {};
    frmForLoop = {};
    frmFunc = {};
    frmIf = {};
    frmInfo = {};
    frmMakeMat = {};
    frmMakeVector = {};
    frmMatlab = {};
    frmMatlabFunction = {};
    frmMatrix = {};
    frmOptionList = {};
    frmPageView = {};
    frmPause = {};
    frmPictures = {};
    frmPlot = {};
    frmPrefs = {};
    frmScanning = {};
    frmSplash = {};
    frmSplit = {};
    frmSubs = {};
    frmTextResults = {};
    frmUserInput = {};
    recovery = {};
}

}  // namespace

void ResetApplication() {
    CloseAllFiles();
    ResetBoxTable();
    ResetDocuments();
    ResetSelection();
    paintsSheets = true;
    PageRight = 0;
    PageBottom = 0;
    ResetFront();
    lastRunEnd = RunEnd::None;
    ResetDocumentFile();
    icons = {};
    quickMenus = {MenuEntries, RunMenuEntry};
    pickedBeforehand = nullptr;
    typeBeforehand = nullptr;
    ResetMFileIndex();
    OpenCommandBrowser = ShowCommandBrowser;
    ResetLink();
    ResetReport();
    ResetShownReports();
    matlabLink = {LinkOpen,    LinkExecute, LinkRequest, LinkFinish, mnuFileStartMatlab_Click,
                  BeginReport, RunIsLeft};
    ProgramDirectory.clear();
    HelpFile = Manual;
    TourStep = 0;
    ResetHistory();
    ResetBar();
    ResetLiveScripts();
    ResetRecovery();
    ResetRecoveryOffer();
    ResetForms();
}

}  // namespace quorvane

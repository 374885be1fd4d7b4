// SPDX-License-Identifier: MIT
#include "shell/forms.h"

#include "commands/flow_dialogs.h"
#include "commands/function_dialogs.h"
#include "commands/matrix_dialogs.h"
#include "commands/option_list_dialog.h"
#include "commands/plot_box.h"
#include "diagram/box_info.h"
#include "diagram/comment_form.h"
#include "matlab_link/command_browser.h"
#include "matlab_link/directory_dialog.h"
#include "matlab_link/mfile_index.h"
#include "shell/about.h"
#include "shell/preferences_command.h"
#include "toolbox/toolbox_config.h"
#include "workbench/recovery_offer.h"

namespace quorvane {

const std::vector<Form>& Forms() {
    static const std::vector<Form> forms = [] {
        std::vector<Form> all = {
            frmComment_Table(),    frmForLoop_Table(),        frmFunc_Table(),
            frmIf_Table(),         frmInfo_Table(),           frmMakeMat_Table(),
            frmMakeVector_Table(), frmMatlabFunction_Table(), frmPause_Table(),
            frmPlot_Table(),       frmSplit_Table(),          frmSubs_Table(),
            frmUserInput_Table(),  frmAbout_Table(),          frmDisclaimer_Table(),
            frmPrefs_Table(),      frmDirectory_Table(),      frmConfigToolbox_Table(),
            frmMatlab_Table(),     frmScanning_Table(),       recovery_Table(),
        };
        for (const auto& list : optionLists) all.push_back(OptionList_Table(list));
        return all;
    }();
    return forms;
}

const Form* FindForm(std::string_view name) {
    for (const auto& form : Forms()) {
        if (form.Name == name) return &form;
    }
    return nullptr;
}

}  // namespace quorvane

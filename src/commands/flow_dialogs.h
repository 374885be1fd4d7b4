// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "diagram/box_table.h"
#include "platform/form.h"

namespace quorvane {

/// The dialogs and prompts of the control-flow boxes: loops, branches, pauses, questions,
/// subroutines, comments. Each Complete routine runs its dialog for the box of that number and
/// packs what was typed into BoxText; nothing is checked for being valid script, and a cancelled
/// prompt gives an empty text. For a box that is changed `former` is what it was, and the dialog
/// shows that as far as it can be read back.

/// "For": from, increment, until.
struct ForLoopForm {
    FormState Form = {.Caption = "For Loop"};
    TextBox txtFrom{"1"};
    TextBox txtUntil{"1"};
    TextBox txtInc{"1"};
    Button cmd{"OK"};
};
extern ForLoopForm frmForLoop;
Form frmForLoop_Table();
/// BoxText becomes "from:increment:until,".
void CompleteFor(int box, const Box* former);

/// "If": the condition, with "else" in front when the second exit is the other branch.
struct IfForm {
    FormState Form = {.Caption = "Condition Statement"};
    TextBox txtCondition;
    CheckBox chkelse;  ///< The second exit is the "else" branch
    Button cmdOK{"OK"};
};
extern IfForm frmIf;
Form frmIf_Table();
/// BoxText becomes the condition, with "else" before it when that is ticked.
void CompleteIf(int box, const Box* former);

/// Prompts for the condition of a loop and the name of a variable; BoxText takes it as typed.
void CompleteWhile(int box, const Box* former);
void CompletePickup(int box, const Box* former);

/// The subroutines of the box table, one of which is to be inserted.
struct SubsForm {
    FormState Form;
    ComboBox available_subs;  ///< The names; the text is the one that was picked
    Button cmdOK{"OK"};
};
extern SubsForm frmSubs;
/// Lists the types of the boxes at which a subroutine begins, of all documents.
void frmSubs_Load();
Form frmSubs_Table();

/// Ask for a subroutine before there is a box and give the type of the box: "Insert Subroutine "
/// and the name; the name and " Subroutine".
std::string AskInsertedSubroutine(const Box* former);
std::string AskStartedSubroutine(const Box* former);

/// "Pause": a number of seconds, or a wait for the user.
struct PauseForm {
    FormState Form = {.Caption = "Pause execution"};
    TextBox lblSecs{"1"};
    ScrollBar spn{.Min = -1, .Max = 1};  ///< -1 while its upper end is pressed, 1 the lower one
    CheckBox chkNoNumber;                ///< Wait for the user, without a number
    Button cmdOK{"OK"};
};
extern PauseForm frmPause;
/// Keeps the seconds at a number of 0 or more.
void frmPause_lblSecs_Change();
/// Adds or subtracts one second and resets the spin control.
void frmPause_spn_Change();
/// Greys the seconds while it is ticked.
void frmPause_chkNoNumber_Click();
Form frmPause_Table();
/// BoxText becomes the seconds, "" for a wait for the user.
void CompletePause(int box, const Box* former);

/// "User Input": the prompt that the script shows.
struct UserInputForm {
    FormState Form = {.Caption = "User prompt for input"};
    TextBox txtPrompt;
    Button cmdOK{"OK"};
};
extern UserInputForm frmUserInput;
Form frmUserInput_Table();
/// BoxText becomes the prompt.
void CompleteUserInput(int box, const Box* former);

/// BoxText becomes the text of the comment, at most 100 characters.
void CompleteComment(int box, const Box* former);

}  // namespace quorvane

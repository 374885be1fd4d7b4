// SPDX-License-Identifier: MIT
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

namespace quorvane {

/// The dialog in which the text of a comment is written. The caller puts the text in and
/// takes it out.
struct CommentForm {
    FormState Form = {.Caption = "Add a Comment"};
    TextBox txtComment;
    Button cmdOK = {.Caption = "OK"};
};
extern CommentForm frmComment;

/// Cuts the text to 100 characters; a character of more bytes than one isn't cut apart.
void frmComment_txtComment_Change();
Form frmComment_Table();

}  // namespace quorvane

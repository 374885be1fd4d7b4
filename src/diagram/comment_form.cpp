// SPDX-License-Identifier: MIT
#include "diagram/comment_form.h"

#include "platform/numbers.h"

namespace quorvane {

CommentForm frmComment;

namespace {

constexpr int LongestComment = 100;

}  // namespace

void frmComment_txtComment_Change() {
    auto& text = frmComment.txtComment.Text;
    int characters = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (BeginsCharacter(text[i]) && ++characters > LongestComment) {
            text.resize(i);
            return;
        }
    }
}

Form frmComment_Table() {
    return {"frmComment",
            &frmComment.Form,
            {{"txtComment", &frmComment.txtComment, frmComment_txtComment_Change},
             {"cmdOK", &frmComment.cmdOK, HideForm<frmComment>}}};
}

}  // namespace quorvane

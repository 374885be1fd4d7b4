// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

class FrameView;

/// F1 opens the manual at the page of the dialog, panel or box that has the focus.
void AddHelpKey(FrameView& frame);

}  // namespace quorvane

// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

class FrameView;

/// The keys for what a worksheet shows, which no menu has. They work on the active worksheet,
/// wherever the focus is in the frame. F6 goes round its parts.
void AddSheetKeys(FrameView& frame);

}  // namespace quorvane

// SPDX-License-Identifier: MIT
#include "platform/desktop.h"

namespace quorvane {

Desktop* desktop = nullptr;

void Tell(const std::string& text, Icon picture, const std::string& title) {
    desktop->MsgBox({text, picture, Buttons::Ok, title});
}

}  // namespace quorvane

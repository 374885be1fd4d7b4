// SPDX-License-Identifier: MIT
#include "platform/desktop.h"

#include "platform/numbers.h"

namespace quorvane {

Desktop* desktop = nullptr;

std::string AskForLine(const std::string& prompt, const std::string& title,
                       const std::string& defaultText) {
    return OneLine(desktop->InputBox(prompt, title, defaultText));
}

void Tell(const std::string& text, Icon picture, const std::string& title) {
    desktop->MsgBox({text, picture, Buttons::Ok, title});
}

}  // namespace quorvane

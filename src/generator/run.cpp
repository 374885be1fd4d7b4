// SPDX-License-Identifier: MIT
#include "generator/run.h"

#include "generator/front.h"

namespace quorvane {

void WriteLine(Run& run, std::string_view text) {
    run.scriptText += text;
    run.scriptText += "\r\n";
}

const Box& ReadBox(const Run& run, int number) {
    return run.Policy == ErrorPolicy::Ignore ? BoxOrFree(number) : Boxes[number];
}

void ClearMarks() {
    for (int i = 1; i < NextBox; ++i) Boxes[i].BoxMark.clear();
}

bool Ready(Run& run, int box) {
    return AttemptValue(run.Policy, false, [&] { return InputsReady(run.scriptText, box); });
}

}  // namespace quorvane

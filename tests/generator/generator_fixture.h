// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "files/settings.h"
#include "generator/compile_document.h"
#include "generator/front.h"
#include "support/diagram_fixture.h"

namespace quorvane::testing {

/// A script as a test writes it, with "\n" for each line end.
inline std::string Crlf(std::string_view lines) {
    std::string script;
    for (const char c : lines) script += c == '\n' ? std::string("\r\n") : std::string(1, c);
    return script;
}

/// The number of the run-time error that the action ends with, 0 for none.
template <class Action>
int ErrorOf(Action&& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.Number;
    }
    return 0;
}

inline std::string StallText(std::string_view boxAndType) {
    return Crlf("There seems to be an infinite loop here, whereby " + std::string(boxAndType) +
                " cannot be processed.\nDo you want to retry, abort or ignore this box ?");
}

/// A test of the generator on document 1.
class GeneratorTest : public DiagramTest {
protected:
    /// Clears the table, the windows and the desktop's memory: one row of a table begins anew.
    void Restart() {
        ResetApplication();
        screen = ScriptedDesktop();
        NewDocument();
    }
    std::string Compile(std::int16_t mode = 1) { return CompileDocument(mode, "1"); }
    /// The texts of all messages so far.
    std::vector<std::string> Told() const {
        std::vector<std::string> texts;
        for (const auto& message : screen.Messages) texts.push_back(message.Text);
        return texts;
    }
    static void ExpectNoMarks() {
        for (int i = 0; i < NextBox; ++i) EXPECT_EQ(Boxes[i].BoxMark, "") << "box" << i;
    }
    using Texts = std::vector<std::string>;
};

}  // namespace quorvane::testing

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "files/work_folder.h"
#include "platform/paths.h"
#include "support/diagram_fixture.h"

namespace quorvane::testing {

/// A program with one empty document, standing in an empty folder.
class DocumentTest : public DiagramTest {
protected:
    void SetUp() override {
        DiagramTest::SetUp();
        before_ = CurrentDirectory();
        ChangeDirectory(folder.Path.string());
    }
    void TearDown() override {
        DiagramTest::TearDown();
        ChangeDirectory(before_);
    }

    /// What a document of this name holds after it was saved.
    static std::string Saved(const std::string& name, int document = 1) {
        Documents[document]->Caption = name;
        SaveDocument(static_cast<std::int16_t>(document), 1);
        return ReadAll(name);
    }

    /// Texts of the messages so far, which are then forgotten.
    std::vector<std::string> TakeMessages() {
        std::vector<std::string> texts;
        for (const auto& message : screen.Messages) texts.push_back(message.Text);
        screen.Messages.clear();
        return texts;
    }

    WorkFolder folder;

private:
    std::string before_;
};

}  // namespace quorvane::testing

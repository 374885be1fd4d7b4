// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "files/work_folder.h"
#include "platform/paths.h"
#include "support/diagram_fixture.h"

namespace quorvane::testing {

/// A program with one empty document, standing in an empty folder.
class DocumentTest : public DiagramTest {
protected:
    void SetUp() override {
        DiagramTest::SetUp();
        ChangeDirectory(folder.Path.string());
        for (const auto& name : NamesIn(".")) std::filesystem::remove_all(name);
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

    WorkFolder folder;

private:
    const std::string before_ = CurrentDirectory();
};

}  // namespace quorvane::testing

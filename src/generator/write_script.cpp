// SPDX-License-Identifier: MIT
#include "generator/write_script.h"

#include "generator/compile_document.h"
#include "platform/desktop.h"
#include "platform/file_table.h"
#include "platform/numbers.h"
#include "platform/paths.h"

namespace quorvane {

void mnuExeDDE_Click(Worksheet& sheet) { desktop->SetClipboardText(CompileDocument(1, sheet.Tag)); }

std::string AddFunctionHeader(std::string& path, const std::string& script) {
    const std::string_view fileName = FileNameOf(path);
    const bool hasFolder = fileName.size() < path.size();
    const auto name = LowerCase(fileName.substr(0, fileName.find('.')));
    path.resize(path.size() - fileName.size() + name.size());
    return hasFolder ? "function " + name + ";\r\n" + script + "end\r\n" : script;
}

void mnuExeFile_Click(Worksheet& sheet) {
    std::string path;
    const bool chosen = Attempt(
        [&] { path = desktop->SaveFileDialog("Mathlab Files (*.m)|*.m|All Files (*.*)|*.*", ""); });
    if (!chosen) return;
    auto script = CompileDocument(1, sheet.Tag);
    if (script.empty()) {
        Tell("No file to make, check your algorithm.", Icon::Exclamation);
        return;
    }
    const auto answer =
        desktop->MsgBox({"Do you want to add a function header ?", Icon::Question, Buttons::YesNo});
    if (answer == Answer::Yes) script = AddFunctionHeader(path, script);
    Attempt([&] { ReplaceFile(path, script + "\r\n"); });
}

}  // namespace quorvane

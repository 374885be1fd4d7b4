// SPDX-License-Identifier: MIT
#pragma once

#include "diagram/preferences.h"
#include "files/document_fixture.h"
#include "platform/file_table.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/raised_error.h"
#include "shell/forms.h"
#include "shell/menus.h"
#include "support/table_file.h"
#include "support/words.h"
#include "toolbox/toolbox.h"

namespace quorvane::testing {

/// Plays tables of what a user does and of what then stands in the records. A row that begins with
/// the name of a case begins the program anew; the other cells are "STEP ARGUMENTS",
/// "VALUE ARGUMENTS = EXPECTED" or "VALUE ARGUMENTS := NEW"; a run-time error is seen as "error
/// 53". Those behind "at FORM" are carried out each time that this form is shown.
///
/// All tables know the commands of the menus ("mnuArrow_Click 2" in document 2,
/// "frame.mnuFileExit"), the events of the forms ("frmPrefs_cmdOK") and their values ("frmPrefs",
/// "frmPrefs.txtDrives"); a subclass adds the words of its folder.
class StepTest : public DocumentTest {
protected:
    StepTest() {
        Know({
            {"NewDocument", Seen([](A) { return NewDocument(); })},
            {"EditMode", Global(EditMode)},
            {"NextBox", Global(NextBox)},
            {"ProgramDirectory", Global(ProgramDirectory)},
            {"record", Seen([](A a) { return Boxes[a[0]]; })},
            {"Modified", OfState(&DocumentState::Modified)},
            {"Closed", OfState(&DocumentState::Closed)},
            {"Caption", OfSheet(&Worksheet::Caption)},
            {"scrH", OfSheet(&Worksheet::scrH, &ScrollBar::Value)},
            {"scrV", OfSheet(&Worksheet::scrV, &ScrollBar::Value)},
            {"shpCopy", OfSheet(&Worksheet::shpCopy)},
            {"told", Seen([this](A) { return Taken(screen.Messages); })},
            {"shown", Seen([this](A) { return Taken(screen.FormsShown); })},
            {"choose", Step([this](A a) { screen.Paths.push_back(folder / a.Text); })},
            {"asked", Seen([this](A) { return Taken(screen.FileDialogs); })},
            {"answer", Step([this](A a) {
                 const std::map<std::string, Answer> answers = {
                     {"yes", Answer::Yes}, {"no", Answer::No}, {"cancel", Answer::Cancel}};
                 screen.MessageAnswers = {answers.at(a.Text)};
             })},
            {"toolbox", Seen([](A) -> std::string {
                 if (!frmPictures.Form.Loaded) return "gone";
                 return frmPictures.Form.Visible ? "shown" : "loaded";
             })},
            {"Columns", Global(frmPictures.Columns)},
            {"ReloadMarker", Global(frmPictures.ReloadMarker)},
            {"checked", Seen([](A a) { return MenuOf(a).Checked; })},
            {"caption", Seen([](A a) { return MenuOf(a).Caption; })},
        });
        Know(FileWords());
        for (const auto& row : documentMenu) {
            words[std::string(row.Control) + "_Click"] =
                Step([&row](A a) { RunMenuCommand(row, Sheet(a[0])); });
        }
        for (const auto& row : frameMenu) {
            if (row.Command) {
                words["frame." + std::string(row.Control)] = Step([&row](A) { row.Command(); });
            }
        }
        for (const auto& form : Forms()) AddForm(form);
    }

    void PlayTable(const std::string& path) {
        for (auto row : ReadTable(path)) {
            const auto place = row.back();
            row.pop_back();
            if (!row[0].empty()) {
                EXPECT_EQ(awaited_, "") << "was not shown before " << place;
                Restart();
            }
            row[0].clear();
            CarryOut(row, place);
        }
        EXPECT_EQ(awaited_, "");
    }

    /// What was noted since it was asked last, separated by " | ".
    template <class T>
    static std::string Taken(std::vector<T>& notes) {
        std::string text;
        for (const auto& note : notes) text += (text.empty() ? "" : " | ") + Show(note);
        notes.clear();
        return text;
    }

    /// Adds words, in place of those of the same name.
    void Know(const Words& some) {
        for (const auto& [name, word] : some) words[name] = word;
    }

    /// Cuts off what stands before the first blank.
    static std::string TakeWord(std::string& text) {
        auto word = text.substr(0, text.find(' '));
        text.erase(0, word.size() + 1);
        return word;
    }

    /// "$" at the beginning of a path is the folder in which the program begins.
    std::string InFolder(std::string path) const {
        return path.starts_with('$') ? path.replace(0, 1, folder.Path.string()) : path;
    }
    std::string Here(std::string path) const {
        const auto root = folder.Path.string();
        return path.starts_with(root) ? path.replace(0, root.size(), "$") : path;
    }

private:
    Words FileWords() {
        return {
            {"put", Step([](A a) {
                 auto bytes = a.Text;
                 const auto name = TakeWord(bytes);
                 WriteAll(name, bytes);
             })},
            {"get", Seen([](A a) { return ReadAll(a.Text); })},
            {"names", Seen([](A) { return NamesIn("."); })},
            {"folder", Step([](A a) { std::filesystem::create_directories(a.Text); })},
            {"enter", Step([this](A a) { ChangeDirectory(InFolder(a.Text)); })},
            {"where", Seen([this](A) { return Here(CurrentDirectory()); })},
            {"open", Step([](A a) { OpenForInput(a[0], a.Text); })},
            {"ended", Seen([](A a) { return EndOfFile(a[0]); })},
            {"FreeFile", Seen([](A) { return FreeFile(); })},
        };
    }

    void AddForm(const Form& form) {
        words[form.Name] = Global(form.State->Visible);
        words[form.Name + ".Loaded"] = Global(form.State->Loaded);
        words[form.Name + ".Caption"] = Global(form.State->Caption);
        for (const auto& row : form.Controls) {
            if (row.Event) {
                words[form.Name + "_" + row.Name] = Step([&row](A) { row.Event(); });
            }
            std::visit(
                [&](auto* control) {
                    auto& word = words[form.Name + "." + row.Name];
                    if constexpr (requires { control->Caption; }) {
                        word = words[form.Name + "." + row.Name + ".Caption"] =
                            Global(control->Caption);
                    }
                    if constexpr (requires { control->Text; }) word = Global(control->Text);
                    if constexpr (requires { control->Value; }) word = Global(control->Value);
                    if constexpr (requires { control->List; }) {
                        words[form.Name + "." + row.Name + ".List"] =
                            Seen([control](A) { return control->List; });
                    }
                    if constexpr (requires { control->ListIndex; }) {
                        words[form.Name + "." + row.Name + ".ListIndex"] =
                            Global(control->ListIndex);
                    }
                },
                row.Record);
        }
    }

    /// The entry that is named, of a document's menu, or of the frame's for number 0.
    static const MenuItem& MenuOf(A a) {
        if (a[0] == 0) return *MenuRecord(frmMDI, a.Text, -1);
        return *MenuRecord(Sheet(a[0]), a.Text, -1);
    }

    void CarryOut(const std::vector<std::string>& cells, const std::string& place) {
        for (auto next = cells.begin(); next != cells.end();) {
            const auto& cell = *next++;
            SCOPED_TRACE(::testing::Message() << place << " " << cell);
            if (cell.starts_with("at ")) {
                EXPECT_EQ(awaited_, "");
                awaited_ = cell.substr(3);
                screen.Forms[awaited_] = [this, place, rest = std::vector(next, cells.end())] {
                    awaited_.clear();
                    CarryOut(rest, place);
                };
                return;
            }
            try {
                if (!cell.empty()) CarryOut(cell);
            } catch (const std::exception& error) {
                ADD_FAILURE() << error.what();
            }
        }
    }

    void CarryOut(const std::string& cell) {
        const auto equals = (cell + " ").find("= ");
        const bool sets = equals != std::string::npos && cell[equals - 1] == ':';
        std::string left = cell.substr(0, sets ? equals - 1 : equals);
        if (equals != std::string::npos) left.erase(left.find_last_not_of(' ') + 1);
        const auto name = TakeWord(left);
        Arguments a;
        for (auto rest = left; !left.empty(); left = rest) {
            const auto number = TakeWord(rest);
            if (!IsNumeric(number)) break;
            a.Given.push_back(TextToNumber(number));
        }
        a.Text = left;
        const auto& word = words.at(name);
        if (equals == std::string::npos) return word.Do(a);
        const auto right = equals + 2 < cell.size() ? cell.substr(equals + 2) : "";
        if (sets) return word.Set(a, right);
        std::string seen;
        const int error = RaisedError([&] {
            if (word.See) {
                seen = word.See(a);
            } else {
                word.Do(a);
            }
        });
        EXPECT_EQ(error == 0 ? seen : "error " + std::to_string(error), right);
    }

    Words words;
    std::string awaited_;  ///< A form that has yet to be shown
};

}  // namespace quorvane::testing

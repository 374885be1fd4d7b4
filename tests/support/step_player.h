// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include "diagram/preferences.h"
#include "files/work_folder.h"
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

/// Plays tables of what a user does and of what is then seen. A row that begins with the name of a
/// case begins the program anew; the other cells are "STEP ARGUMENTS", "VALUE ARGUMENTS = EXPECTED"
/// or "VALUE ARGUMENTS := NEW"; a run-time error is seen as "error 53". Those behind "at FORM" are
/// carried out when this form is shown.
///
/// All tables know the values of records and forms ("frmPrefs", "frmPrefs.txtDrives"), the events
/// of forms ("frmPrefs_cmdOK") and files; the tests add the words of their folder.
class StepPlayer {
public:
    explicit StepPlayer(const WorkFolder& home) : home_(home.Path.string()) {
        Know({
            {"EditMode", Global(EditMode)},
            {"NextBox", Global(NextBox)},
            {"ProgramDirectory", Global(ProgramDirectory)},
            {"record", Seen([](A a) { return Boxes[a[0]]; })},
            {"BoxType", OfBox(&Box::BoxType)},
            {"BoxText", OfBox(&Box::BoxText)},
            {"BoxMark", OfBox(&Box::BoxMark)},
            {"BoxDocument", OfBox(&Box::BoxDocument)},
            {"BoxIn", OfBox(&Box::BoxIn)},
            {"BoxOut", OfBox(&Box::BoxOut)},
            {"BoxLineColor", OfBox(&Box::BoxLineColor)},
            {"BoxLeft", OfBox(&Box::BoxLeft)},
            {"BoxTop", OfBox(&Box::BoxTop)},
            {"Modified", OfState(&DocumentState::Modified)},
            {"Closed", OfState(&DocumentState::Closed)},
            {"Caption", OfSheet(&Worksheet::Caption)},
            {"scrH", OfSheet(&Worksheet::scrH, &ScrollBar::Value)},
            {"scrV", OfSheet(&Worksheet::scrV, &ScrollBar::Value)},
            {"shpCopy", OfSheet(&Worksheet::shpCopy)},
            {"HoldsArrow", OfSheet(&Worksheet::pnlArrow, &ArrowPanel::HoldsArrow)},
            {"txtEvent", Global(frmMDI.txtEvent)},
            {"frmMDI.Toolbox", Global(frmMDI.mnuOptionsToolbox.Checked)},
            {"frmMDI.CurrentToolbox", Global(frmMDI.mnuOptionsCurrentToolbox.Caption)},
            {"toolbox", Seen([](A) -> std::string {
                 if (!frmPictures.Form.Loaded) return "gone";
                 return frmPictures.Form.Visible ? "shown" : "loaded";
             })},
            {"Columns", Global(frmPictures.Columns)},
            {"ReloadMarker", Global(frmPictures.ReloadMarker)},
        });
        Know(FileWords());
        for (const auto& form : Forms()) AddForm(form);
    }
    virtual ~StepPlayer() = default;
    StepPlayer(const StepPlayer&) = delete;
    StepPlayer& operator=(const StepPlayer&) = delete;

protected:
    virtual void BeginAnew() = 0;
    /// Has the steps carried out when this form is shown.
    virtual void AtForm(const std::string& form, std::function<void()> steps) = 0;

    void PlayTable(const std::string& path) {
        for (auto row : ReadTable(path)) {
            const auto place = row.back();
            row.pop_back();
            if (!row[0].empty()) BeginAnew();
            row[0].clear();
            CarryOut(row, place);
        }
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
        return path.starts_with('$') ? path.replace(0, 1, home_) : path;
    }
    std::string Here(std::string path) const {
        return path.starts_with(home_) ? path.replace(0, home_.size(), "$") : path;
    }

    Words words;

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
            {"link", Step([this](A a) {
                 auto to = a.Text;
                 const auto name = InFolder(TakeWord(to));
                 std::filesystem::create_symlink(to, name);
             })},
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

    void CarryOut(const std::vector<std::string>& cells, const std::string& place) {
        for (auto next = cells.begin(); next != cells.end();) {
            const auto& cell = *next++;
            SCOPED_TRACE(::testing::Message() << place << " " << cell);
            if (cell.starts_with("at ")) {
                const std::vector rest(next, cells.end());
                return AtForm(cell.substr(3), [=, this] { CarryOut(rest, place); });
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
        if (!words.contains(name)) throw std::runtime_error("no word " + name);
        const auto& word = words[name];
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

    const std::string home_;
};

}  // namespace quorvane::testing

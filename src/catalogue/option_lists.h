// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// An option of a list and what it makes of the box.
struct ListOption {
    /// Its index in the array; NoIndex for a button of its own, which leaves the remembered index.
    int Index;
    std::string_view Caption;  ///< "" for a row that has no button
    std::string_view BoxType;  ///< "" when it is not written
    const char* BoxText;       ///< nullptr when it is not written; "{field}": the further field
    const char* Entries;       ///< The open ones by their digits; nullptr for the list's default
    std::string_view Control;  ///< The name of a button of its own
};
/// For an option outside the array, and for a field that belongs to none.
constexpr int NoIndex = -1;

/// The field that some lists have beside their options.
struct ListField {
    enum class Kind { None, Text, Check };
    Kind What = Kind::None;
    std::string_view Control = "";
    std::string_view Caption = "";
    std::string_view Default = "";
    int Beside = NoIndex;    ///< Index of the option that the field belongs to
    bool SkipEmpty = false;  ///< An empty field writes no text
    bool Number = false;     ///< Takes a number alone
};

/// A dialog in which one of a list is picked. All of them are alike and know nothing of boxes: the
/// row of the picked option tells what the box becomes.
struct OptionList {
    std::string_view Dialog;
    std::string_view Caption;
    std::string_view FrameCaption;  ///< Of the frame around the options
    const char* Entries;            ///< Open entries where an option names none
    std::vector<ListOption> Options;
    ListField Field = {};            ///< The further field, if the list has one
    std::string_view Array = "opn";  ///< The name of the option array
    std::string_view FirstIndex =
        "0";  ///< The index that OK takes when nothing was clicked, as decimal text
};
extern const std::vector<OptionList> optionLists;

/// The list of this dialog, nullptr when it is none.
const OptionList* FindOptionList(std::string_view dialog);

/// The object name of an option: "opn(3)", "btnOps(1)", "add"; "" where there is no button.
std::string OptionName(const OptionList& list, const ListOption& option);

}  // namespace quorvane

// SPDX-License-Identifier: MIT
#include "catalogue/engine_refusals.h"

namespace quorvane {

namespace {

struct Refusal {
    std::string_view Dialog, Option, Told;
};

// clang-format off
// Dialog, option, what GNU Octave 7.3 says. The engine tests try every option and compare.
constexpr Refusal refusals[] = {
    {"frmCheck", "opn(8)", "'finite' undefined"},
    {"frmConst", "opn(4)", "'flops' undefined"},
    {"frmDiff", "opn(0)", "parse error"},
    {"frmDiff", "opn(1)", "parse error"},
    {"frmDiff", "opn(2)", "parse error"},
    {"frmDiff", "opn(3)", "parse error"},
    {"frmMatAnalysis", "opn(1)", "parse error"},
    {"frmMatAnalysis", "opn(2)", "parse error"},
    {"frmMatAnalysis", "opn(3)", "parse error"},
    {"frmMatAnalysis", "opn(5)", "parse error"},
    {"frmMatAnalysis", "opn(8)", "parse error"},
    {"frmMatMan", "opn(0)", "'ag' undefined"},
    {"frmMatMan", "opn(1)", "'iplr' undefined"},
    {"frmMatMan", "opn(2)", "'ipud' undefined"},
    {"frmMatMan", "opn(3)", "'t90' undefined"},
    {"frmMatMan", "opn(4)", "'anspose' undefined"},
    {"frmMatMan", "opn(5)", "'il' undefined"},
    {"frmMatMan", "opn(6)", "'iu' undefined"},
    {"frmNumeric", "opn(3)", "'quad8' undefined"},
    {"frmNumeric", "opn(5)", "'interp' undefined"},
    {"frmPoly", "opn(0)", "box: function called with too many outputs"},
    {"frmPoly", "opn(1)", "box: function called with too many outputs"},
    {"frmRound", "opn(3)", "Invalid call to rem"},
    {"frmSound", "opn(0)", "parse error"},
    {"frmSound", "opn(2)", "parse error"},
    {"frmSound", "opn(3)", "parse error"},
    {"frmSound", "opn(6)", "parse error"},
    {"frmSound", "opn(7)", "parse error"},
    {"frmSpecMat", "opn(1)", "gallery: NAME must be a string"},
    {"frmStrCompare", "opn(0)", "parse error"},
    {"frmStrCompare", "opn(1)", "parse error"},
    {"frmStrCompare", "opn(4)", "parse error"},
    {"frmStrCompare", "opn(5)", "parse error"},
    {"frmStrConvert", "opn(0)", "'str2mat' undefined"},
};
// clang-format on

}  // namespace

std::string_view EngineRefusal(std::string_view dialog, std::string_view option) {
    for (const auto& row : refusals) {
        if (row.Dialog == dialog && row.Option == option) return row.Told;
    }
    return "";
}

}  // namespace quorvane

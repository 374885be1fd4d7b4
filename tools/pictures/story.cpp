// SPDX-License-Identifier: MIT
// The pictures of README, docs/first_hour.md, the manual and the software centre.
#include "picture.h"

namespace quorvane {

namespace {

constexpr QSize Page(832, 520);

// clang-format off
const Picture story[] = {
    {"docs/story/1-welcome.png", Page, "frmMDI", {"begin"}},
    {"docs/story/2-menu.png", Page, "frmMDI menus pointer", {"key Ctrl+N", "menu mnuMatMakeVec"}},
    {"docs/story/3-vector.png", Page, "frmMDI frmMakeVector", {
        "key Escape", "key Escape", "key Escape",
        "choose mnuMatMakeVec", "until frmMakeVector", "set txtMin 0", "set txtStep 0.1", "set txtMax 10"}},
    {"docs/story/4-find.png", Page, "frmMDI quickPopup pointer", {
        "click cmdOK", "click surface 40 40", "hover surface 150 90", "key Ctrl+K", "type sin"}},
    {"docs/story/5-plot.png", Page, "frmMDI frmPlot", {
        "key Return", "gone quickPopup", "click surface 150 90",
        "choose mnuOutputPlot", "until frmPlot", "pick cmbType 2-D Plot", "click chkInput1(2)", "click chkInput2(1)", "pick cmbLineColor Blue", "set txtTitle A sine"}},
    {"docs/story/6-arrow.png", Page, "frmMDI pointer", {
        "click cmdOK", "click surface 260 140", "choose mnuArrow", "click box(1)", "hover box(2) 20 14"}},
    {"docs/story/7-finding.png", Page, "frmMDI", {
        "click box(2)", "choose mnuArrow", "click box(2)", "click box(3)", "key F7"}},
    {"docs/story/8-mended.png", Page, "frmMDI pointer", {
        "choose mnuArrow", "click box(1)", "click box(3)", "hover box(2) 20 14"}},
    {"docs/story/9-run.png", {960, 540}, "frmMDI figure", {
        "hover surface 5 5", "key F7", "key F8", "key F5", "until message", "key Return",
        "until frmDirectory", "item lstEngines Octave", "click cmdOK", "until message", "figure 360 205", "key Return", "gone message"}, true},
    {"docs/story/10-print.png", Page, "frmMDI preview", {"key Ctrl+P", "until preview", "wait 500"}, true},
};

// For the column of text in the help window.
const Picture manual[] = {
    {"resources/help/img/welcome.png", {580, 400}, "frmMDI", {"begin"}},
    {"resources/help/img/window.png", {500, 340}, "frmMDI frmPictures", {"drop sine.qvm", "hover surface 300 200"}},
    {"resources/help/img/tour.png", {580, 380}, "frmMDI", {"choose mnuHelpTour", "click pnlTour", "click pnlTour", "click pnlTour"}},
    {"resources/help/img/find.png", {}, "quickPopup", {"hover surface 200 100", "key Ctrl+K", "type vec"}},
    {"resources/help/img/plot.png", {}, "frmPlot", {
        "key Escape", "gone quickPopup", "choose mnuOutputPlot", "until frmPlot", "pick cmbType 2-D Plot",
        "click chkInput1(2)", "click chkInput2(1)", "pick cmbLineColor Blue", "set txtTitle A sine"}},
    {"resources/help/img/script.png", {1100, 360}, "scriptPanel", {"click cmdOK", "click surface 400 200", "key F7", "hover box(2)"}},
    {"resources/help/img/boxes.png", {1100, 360}, "boxesPanel", {
        "hover surface 5 5", "key F8", "key F5", "until message", "key Return", "until frmDirectory", "item lstEngines Octave", "click cmdOK",
        "until message", "key Return", "gone message"}, true},
};

const Picture covers[] = {
    {"docs/window.png", {800, 450}, "frmMDI", {"begin", "drop spectrum.qvm"}},
    {"docs/workbench.png", {1200, 675}, "frmMDI tip pointer", {
        "begin", "drop damped_oscillation.qvm", "key F7", "key F8", "key F5", "until message", "key Return",
        "until frmDirectory", "item lstEngines Octave", "click cmdOK", "until message", "key Return", "gone message", "click cmdOK",
        "rest box(3) 20 14", "until qtooltip_label"}, true},
};
// clang-format on

}  // namespace

std::span<const Picture> StoryPictures() { return story; }
std::span<const Picture> ManualPictures() { return manual; }
std::span<const Picture> CoverPictures() { return covers; }

}  // namespace quorvane

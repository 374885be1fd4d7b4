// SPDX-License-Identifier: MIT
#include "commands/plot_reading.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "commands/plot_box.h"
#include "platform/quiet_desktop.h"

namespace quorvane {

namespace {

using Texts = std::vector<std::string>;

/// A text as it stands before it is saved: loading leaves ";;" for a line end.
std::string WithLineEnds(const std::string& text) {
    if (text.find("\r\n") != std::string::npos) return text;
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        // Of "grid;;;" the first semicolon is the statement's own.
        const bool isEnd = text.compare(i, 2, ";;") == 0 && text.compare(i, 3, ";;;") != 0;
        lines += isEnd ? "\r\n" : text.substr(i, 1);
        if (isEnd) ++i;
    }
    return lines;
}

/// What stands in the quotation marks of a command's line.
Texts Styles(const std::string& line) {
    Texts styles;
    for (auto at = line.find('\''); at != std::string::npos; at = line.find('\'', at)) {
        const auto end = line.find('\'', at + 1);
        if (end == std::string::npos) break;
        styles.push_back(line.substr(at + 1, end - at - 1));
        at = end + 1;
    }
    return styles;
}

/// The text of a line such as "title('...')"; "" without one.
std::string Label(const std::string& text, const std::string& command) {
    const auto head = "\r\n" + command + "('";
    const auto at = text.find(head);
    if (at == std::string::npos) return "";
    const auto end = text.find("')\r\n", at);
    const auto start = at + head.size();
    return end == std::string::npos ? "" : text.substr(start, end - start);
}

/// Colours, by their first letters, in the order in which they are offered, so that "b" is blue.
void ShowLineStyles(const Texts& styles) {
    if (styles.empty()) return;
    const auto& style = styles.front();
    const auto& types = frmPlot.cmbLineType.List;
    if (std::find(types.begin(), types.end(), style) != types.end()) {
        frmPlot.LineTypes.Fill(style);
        frmPlot.cmbLineType.Text = style;
        return;
    }
    const auto tail = style.substr(std::min<std::size_t>(1, style.size()));
    constexpr std::pair<const char*, const char*> tails[] = {
        {"-", "Solid"}, {":", "Dotted"}, {"--", "Dashed"}, {"-.", "Dot-Dash"}, {".", "Points"}};
    for (const auto& [written, type] : tails) {
        if (tail == written) frmPlot.cmbLineType.Text = type;
    }
    if (tail == "o" || tail == "*" || tail == "+") frmPlot.cmbPoints.Text = tail;
}

/// The colours that a line may have: its own of the design, or one whose letter stands in a style.
Texts ColorsOf(int line, const Texts& styles) {
    Texts colors = {frmPlot.LineColors[line]};
    for (const auto& color : frmPlot.cmbLineColor.List) {
        const auto letter = static_cast<char>(color[0] | 0x20);
        const bool written = std::any_of(styles.begin(), styles.end(),
                                         [&](const auto& style) { return style[0] == letter; });
        if (written && color != "Black" && color != colors[0]) colors.push_back(color);
    }
    return colors;
}

/// Marks axes by the bits of `marks`, three for each input.
void Mark(int marks) {
    const auto bit = [&](int number) { return marks >> number & 1; };
    for (int axis = 1; axis <= 3; ++axis) {
        frmPlot.chkInput1[axis].Value = bit(axis - 1);
        frmPlot.chkInput2[axis].Value = bit(axis + 2);
        frmPlot.chkInput3[axis].Value = bit(axis + 5);
    }
}

/// True when the dialog composes this text by what it shows.
bool Composes(const std::string& text) {
    frmPlot.commands.clear();
    frmPlot_cmdOK_Click();
    return frmPlot.commands == text;
}

/// Looks for marks and colours by which the text is composed. Inputs are marked that have an open
/// entry.
bool FindMarks(const Box& former, const std::string& text, const Texts& styles) {
    const auto fits = [&](int marks, int input) {
        return ((marks >> (3 * (input - 1)) & 7) != 0) == (former.BoxIn[input] != LockedSlot);
    };
    const Texts colors[] = {ColorsOf(1, styles), ColorsOf(2, styles), ColorsOf(3, styles)};
    for (int marks = 0; marks < 512; ++marks) {
        if (!fits(marks, 1) || !fits(marks, 2) || !fits(marks, 3)) continue;
        Mark(marks);
        for (const auto& first : colors[0]) {
            for (const auto& second : colors[1]) {
                for (const auto& third : colors[2]) {
                    frmPlot.LineColors[1] = first;
                    frmPlot.LineColors[2] = second;
                    frmPlot.LineColors[3] = third;
                    if (Composes(text)) return true;
                }
            }
        }
    }
    return false;
}

bool TryType(const GraphType& type, const Box& former, const std::string& text) {
    const bool figure = text.find(";figure;\r\n") != std::string::npos;
    const auto head =
        std::string(type.Icon) + (figure ? ";figure;\r\n" : ";") + std::string(type.Command);
    if (!text.starts_with(head)) return false;
    frmPlot_Load();
    frmPlot.cmbType.Text = type.Name;
    frmPlot_cmbType_Change();
    frmPlot.chkFigure.Value = figure ? 1 : 0;
    frmPlot.chkGrid.Value = text.find("\r\ngrid;\r\n") != std::string::npos ? 1 : 0;
    frmPlot.chkHold.Value = text.ends_with("\r\nhold;\r\n") ? 1 : 0;
    frmPlot.txtTitle.Text = Label(text, "title");
    frmPlot.txtXLabel.Text = Label(text, "xlabel");
    frmPlot.txtYLabel.Text = Label(text, "ylabel");
    frmPlot.txtZLabel.Text = Label(text, "zlabel");
    const auto line = text.substr(0, text.find("\r\n", head.size()));
    const auto styles = Styles(line.substr(head.size()));
    ShowLineStyles(styles);
    return FindMarks(former, text, styles);
}

}  // namespace

void ShowPlot(const Box& former) {
    const auto text = WithLineEnds(former.BoxText);
    QuietDesktop nobody;
    auto* const user = std::exchange(desktop, &nobody);
    const bool found = std::any_of(graphTypes.begin(), graphTypes.end(),
                                   [&](const auto& type) { return TryType(type, former, text); });
    desktop = user;
    if (!found) frmPlot_Load();
    frmPlot.commands.clear();
    frmPlot.cmbLineColor.Text = frmPlot.LineColors[1];
    frmPlot.Form.Visible = false;
}

}  // namespace quorvane

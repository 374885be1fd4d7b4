// SPDX-License-Identifier: MIT
#include "files/settings.h"

#include "files/document_fixture.h"
#include "platform/raised_error.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

/// What the preferences say, and what the frame's menu shows of them, in one line.
std::string State() {
    const auto& p = frmPrefs;
    return p.txtLineWidth.Text + std::to_string(p.sclWidth.Value) + std::to_string(p.DrawWidth) +
           " " + std::to_string(p.chkShowBubbles.Value) + std::to_string(p.chkInput.Value) +
           std::to_string(p.chkShowToolbox.Value) +
           (frmMDI.mnuOptionsToolbox.Checked ? "+ " : "- ") + p.txtToolbox.Text + "|" +
           p.lbltoolboxsize.Caption + "|" + p.txtDrives.Text + "|" +
           frmMDI.mnuOptionsCurrentToolbox.Caption;
}

class Settings : public DocumentTest {
protected:
    /// The state of a new program after it has read a file of these bytes.
    std::string StateAfter(const std::string& bytes) {
        ResetApplication();
        ProgramDirectory = folder.Path.string();
        WriteAll(folder / "Quorvane.ini", bytes);
        ReadSettings();
        return State();
    }
};

const std::string Design = "111 101+ default.tlb||abcdef|Current Toolbox: default.tlb";

std::string Drawn() {
    std::string lines;
    for (const auto& line : frmPrefs.Surface) {
        for (const double part : {line.X1, line.Y1, line.X2, line.Y2}) {
            lines += std::to_string(static_cast<int>(part)) + " ";
        }
    }
    return lines + "width " + std::to_string(frmPrefs.DrawWidth);
}

TEST_F(Settings, ValuesThatCountAreTaken) {
    const std::string head = "[Prefrences]\r\n";
    const auto with = [](std::string text, const std::string& part, const std::string& other) {
        return text.replace(text.find(part), part.size(), other);
    };
    const auto toolbox = [](const std::string& name) {
        return "111 101+ " + name + "||abcdef|Current Toolbox: " + name;
    };
    std::string asTemplate;
    for (const auto line : settingsTemplate) asTemplate += std::string(line) + "\r\n";
    const std::pair<std::string, std::string> rows[] = {
        {"", Design},
        {asTemplate, Design},
        {head, Design},
        {head + "Line Width=3\r\nShow Bubbles=0\r\nUnused Boxs for Input=1\r\nShow Toolbox=0\r\n"
                "Default Toolbox=Mine.tlb\r\nToolbox Size=4X2\r\nScan Drives=cd",
         "333 000- Mine.tlb|4X2|cd|Current Toolbox: Mine.tlb"},
        {head + "Line Width=12", Design},
        {head + "Line Width=25", with(Design, "111", "222")},
        {head + "Line Width=4.5", with(Design, "111", "444")},
        {head + "Line Width=0", Design},
        {head + "Line Width=9", with(Design, "111", "444")},
        {head + "Show Bubbles=01\nShow Toolbox=no", with(Design, "101", "001")},
        {head + "Show Bubbles=-1\nShow Toolbox=00", with(Design, "101+", "100-")},
        {head + "Line Width=Not Used\nShow Bubbles=Not Used 0\nDefault Toolbox=Not Usedx", Design},
        {head + "Default Toolbox=not used", toolbox("not used")},
        {head + "Line Width=\nShow Toolbox=\nDefault Toolbox=\nScan Drives=", Design},
        {head + "Toolbox Size=123456789", with(Design, "||", "|123456789|")},
        {head + "Toolbox Size=1234567890", Design},
        {head + "Default Toolbox=" + std::string(300, 'x'), toolbox(std::string(254, 'x'))},
        {"[Preferences]\nLine Width=3", Design},
    };
    for (const auto& [bytes, state] : rows) {
        SCOPED_TRACE(bytes.substr(0, 80));
        EXPECT_EQ(StateAfter(bytes), state);
    }
}

TEST_F(Settings, NoFileIsTooBad) {
    std::string binary;
    for (unsigned i = 0; i < 100000; ++i) binary += static_cast<char>(i * i % 251);
    std::string lines = "[Prefrences]\r\n";
    for (int i = 0; i < 100000; ++i) lines += "key" + std::to_string(i % 1000) + "=value\r\n";
    const std::string files[] = {
        binary,
        std::string(1000000, '['),
        std::string(100000, '\0'),
        "[Prefrences",
        "[Prefrences]\nLine Width",
        "=\n=\n[]\n[]=",
        "\xFF\xFE[\0P\0r\0",
        lines,
        "[Prefrences]\nShow Bubbles=" + std::string(8000000, '1'),
    };
    for (const auto& bytes : files) {
        SCOPED_TRACE(bytes.substr(0, 40));
        EXPECT_EQ(StateAfter(bytes), Design);
    }
    EXPECT_EQ(StateAfter(lines + "Scan Drives=z\r\n").find("|z|"), Design.find("|abcdef|"));
    for (const char* width : {"x", "-1", ".5", "\xC3\xA4"}) {
        const auto bytes = "[Prefrences]\nShow Bubbles=0\nLine Width=" + std::string(width);
        EXPECT_EQ(RaisedError([&] { StateAfter(bytes); }), 13) << width;
        EXPECT_EQ(frmPrefs.chkShowBubbles.Value, 1) << "nothing behind it is read";
    }
}

TEST_F(Settings, RecentFilesAreShown) {
    screen.Store["Recent Files"] = {{"RecentFile1", "a"}, {"RecentFile2", "b"}};
    StateAfter("");
    EXPECT_EQ(frmMDI.mnuFileArray[1].Caption, "b");
    EXPECT_TRUE(frmMDI.mnuFileArray[0].Visible);
}

TEST_F(Settings, SavedValuesComeBackButForOne) {
    StateAfter("; kept\r\n[Other]\r\nLine Width=9\r\n");
    frmPrefs.txtLineWidth.Text = "3";
    frmPrefs.chkShowBubbles.Value = 0;
    frmPrefs.chkInput.Value = 1;
    frmPrefs.txtToolbox.Text = "my box.tlb";
    frmPrefs.lbltoolboxsize.Caption = "4X2";
    frmPrefs.txtDrives.Text = "";
    frmPrefs.Form.Visible = true;
    frmPrefs_cmdSave_Click();
    EXPECT_TRUE(frmPrefs.Form.Visible);
    const auto saved = ReadAll(folder / "Quorvane.ini");
    EXPECT_EQ(saved,
              "; kept\r\n[Other]\r\nLine Width=9\r\n[Prefrences]\r\nShow Bubbles=0\r\n"
              "Line Width=3\r\nUnused Boxs for Input=1\r\nShow Toolbox=1\r\n"
              "Default Toolbox=my box.tlb\r\nToolbox Size=4X2\r\nScan Drives=\r\n");
    EXPECT_EQ(StateAfter(saved), "333 001+ my box.tlb|4X2|abcdef|Current Toolbox: my box.tlb");
    std::filesystem::remove(folder / "Quorvane.ini");
    frmPrefs_cmdSave_Click();
    EXPECT_EQ(NamesIn(folder.Path), std::set<std::string>{"quorvane.ini"});
}

TEST_F(Settings, TheLineWidthIsKeptInItsRange) {
    const std::pair<const char*, const char*> rows[] = {
        {"abc", "1"},   {"", "1"},      {"0", "1"},   {"9", "4"},    {"-3", "1"},
        {"2", "2"},     {"3.", "3."},   {"0.9", "1"}, {"4.01", "4"}, {" 2 ", " 2 "},
        {"1e0", "1e0"}, {"1e999", "1"}, {"2,5", "1"}, {"12", "4"},
    };
    for (const auto& [typed, text] : rows) {
        SCOPED_TRACE(typed);
        frmPrefs.Surface.clear();
        frmPrefs.txtLineWidth.Text = typed;
        frmPrefs_txtLineWidth_Change();
        EXPECT_EQ(frmPrefs.txtLineWidth.Text, text);
        EXPECT_EQ(Drawn(), "3100 480 4200 480 width " + std::to_string(std::stoi(text)));
        EXPECT_EQ(frmPrefs.sclWidth.Value, 1);
    }
    frmPrefs.sclWidth.Value = 3;
    frmPrefs_sclWidth_Change();
    EXPECT_EQ(frmPrefs.txtLineWidth.Text, "3");
    EXPECT_EQ(Drawn(), "3100 480 4200 480 width 3");
}

TEST_F(Settings, CancelPutsWidthAndBubblesBackAlone) {
    frmPrefs.txtLineWidth.Text = "2";
    frmPrefs.chkShowBubbles.Value = 0;
    frmPrefs.Form.Visible = true;
    frmPrefs_Activate();
    EXPECT_EQ(Drawn(), "3100 480 4200 480 width 1");
    frmPrefs.txtLineWidth.Text = "4";
    frmPrefs_txtLineWidth_Change();
    frmPrefs.chkShowBubbles.Value = 1;
    frmPrefs.chkInput.Value = 1;
    frmPrefs.txtDrives.Text = "z";
    frmPrefs.txtToolbox.Text = "t";
    frmPrefs_cmdCancel_Click();
    EXPECT_FALSE(frmPrefs.Form.Visible);
    EXPECT_EQ(State(), "222 011- t||z|Current Toolbox: default.tlb");
}

}  // namespace

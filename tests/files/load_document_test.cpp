// SPDX-License-Identifier: MIT
#include <random>

#include "files/document_fixture.h"
#include "platform/file_table.h"

using namespace quorvane;
using quorvane::testing::WriteAll;

namespace {

using Texts = std::vector<std::string>;

class LoadingDocuments : public quorvane::testing::DocumentTest {
protected:
    /// Loads a file of these bytes and gives the number of its document.
    static int Load(const std::string& bytes) {
        WriteAll("loaded.qvm", bytes);
        LoadDocument("loaded.qvm");
        return Documents.UpperBound();
    }
};

const char* const NotFound = "File not found !";
const char* const Abnormal = "Abnormal termination of file";
const char* const TooMany =
    "Loading this file will result in more than the maximum number of boxes allowed, so it will "
    "not "
    "load ...";

/// The three lines of a box without links.
const std::string Plain = "Sin~\r\n-1~-1~-1~0~0~0~0~0~0~0~0~0~0\r\n100~200~\r\n";

std::string Repeated(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += Plain;
    return text;
}

TEST_F(LoadingDocuments, LinksMoveBehindTheBoxesThatAreThere) {
    Draw({{"Cos", ""}, {"Cos", ""}});
    const auto kept = Boxes[2];
    DocumentStates[1].Modified = -1;
    const int document = Load(
        "2\r\nKeyboard Input~a=5;\r\n0~-1~0~2~255~-1~0~0~7~-3~-2~0~2147483647\r\n480~960~\r\n"
        "Screen Output~\r\n1~0~0~0~0~0~0~0~0~0~0~0~0\r\n1920~-960~\r\n\r\n");
    EXPECT_EQ(document, 2);
    EXPECT_EQ(NextBox, 5);
    EXPECT_EQ(Boxes[2], kept);
    Box first;
    first.BoxType = "Keyboard Input";
    first.BoxText = "a=5;";
    first.BoxDocument = 2;
    first.BoxIn[2] = -1;
    first.BoxOut[1] = 4;
    first.BoxOut[2] = -1;
    first.BoxOut[4] = -3;
    first.BoxLineColor[1] = 255;
    first.BoxLineColor[3] = 7;
    first.BoxLineColor[4] = -2;
    first.BoxLineColor[5] = 2147483647;
    first.BoxTop = 480;
    first.BoxLeft = 960;
    EXPECT_EQ(Boxes[3], first);
    EXPECT_EQ(Boxes[4].BoxIn[1], 3);
    auto& window = *Documents[2];
    EXPECT_EQ(window.Caption, "loaded.qvm");
    EXPECT_EQ(window.Tag, "2");
    EXPECT_TRUE(window.Shown);
    EXPECT_TRUE(window.box[3].Visible);
    EXPECT_EQ(window.box[3].Picture, 72);
    EXPECT_EQ(window.box[4].Picture, 119);
    EXPECT_EQ(window.box[4].Top, 1920);
    EXPECT_EQ(window.box[4].Left, -960);
    ASSERT_EQ(window.Surface.size(), 3U) << "the arrow";
    EXPECT_EQ(window.Surface[0].Color, 255);
    for (const int i : {1, 2}) EXPECT_DOUBLE_EQ(Documents[i]->pnlResource.Value, 4 / 350.0 * 100);
    EXPECT_EQ(DocumentStates[1].Modified, -1);
    EXPECT_EQ(DocumentStates[2].Modified, 0);
    EXPECT_EQ(EditMode, 1);
    EXPECT_TRUE(screen.Store.empty() || screen.Store["Recent Files"]["RecentFile1"].empty());
    EXPECT_TRUE(screen.Messages.empty());
    EXPECT_EQ(FreeFile(), 1);
}

TEST_F(LoadingDocuments, AReusedWindowIsScrolledAndItsSelectionCleared) {
    NewDocument();
    DocumentStates[2].Closed = -1;
    DocumentStates[2].Modified = -1;
    auto& window = *Documents[2];
    window.scrV.Value = 30;
    window.scrH.Value = 50;
    window.shpCopy = {1, 2, 3, 4, true};
    Load("1\r\n" + Plain);
    EXPECT_EQ(window.box[1].Top, 70);
    EXPECT_EQ(window.box[1].Left, 150);
    EXPECT_EQ(Boxes[1].BoxTop, 100);
    EXPECT_FALSE(window.shpCopy.Visible);
    EXPECT_EQ(DocumentStates[2].Modified, -1) << "a load leaves the mark as it stood";
}

TEST_F(LoadingDocuments, FilesGoodAndBad) {
    const std::string badFirst = "Sin~\r\nx~0~~0~red~99999~0~0~0~0~0~0~0\r\n1~2~\r\n";
    const std::string shortLine = "Sin~\r\n-1~-1~-1\r\n100~200~\r\n";
    const std::string noPlace = "Sin~\r\n-1~-1~-1~0~0~0~0~0~0~0~0~0~0\r\nup~\r\n";
    struct Row {
        const char* Case;
        std::string Bytes;
        int Used;  ///< Boxes in the table afterwards
        bool Captioned;
        Texts Messages;
    };
    const Row rows[] = {
        {"empty diagram", "0\r\n\r\n", 0, true, {}},
        {"without the empty line", "1\r\n" + Plain, 1, true, {}},
        {"lines of another system",
         "1\nSin~\n-1~-1~-1~0~0~0~0~0~0~0~0~0~0\n100~200~\n\n",
         1,
         true,
         {}},
        {"more boxes than counted", "1\r\n" + Repeated(3), 1, true, {}},
        {"blanks and signs",
         " +1 \r\nSin~\r\n -1 ~-1~-1~0~1e2~0~0~0~0~0~0~0~0\r\n100~ 2.5 ~",
         1,
         true,
         {}},
        {"count is no number", "one\r\n" + Plain, 0, true, {NotFound}},
        {"count is too large", "40000\r\n" + Plain, 0, true, {NotFound}},
        {"first box with bad numbers",
         "1\r\n" + badFirst,
         1,
         true,
         {NotFound, NotFound, NotFound, NotFound}},
        {"first box without exits", "1\r\n" + shortLine, 1, true, Texts(10, NotFound)},
        {"first box without a place", "1\r\n" + noPlace, 1, true, {NotFound, NotFound}},
        {"second box with bad numbers", "2\r\n" + Plain + badFirst, 2, true, {}},
        {"second box without anything", "3\r\n" + Plain + shortLine + noPlace, 3, true, {}},
        {"cut behind the count", "2\r\n", 0, false, {Abnormal}},
        {"cut between boxes", "3\r\n" + Repeated(2), 0, false, {Abnormal}},
        {"cut inside the second box", "2\r\n" + Plain + "Cos~a\r\n-1~", 2, true, {}},
        {"cut inside the second of three", "3\r\n" + Plain + "Cos~a\r\n", 0, false, {Abnormal}},
        {"the empty line is taken for a box", "2\r\n" + Plain + "\r\n", 2, true, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Case);
        ResetBoxTable();
        const int document = Load(row.Bytes);
        EXPECT_EQ(NextBox, row.Used + 1);
        EXPECT_EQ(Documents[document]->Caption,
                  row.Captioned ? "loaded.qvm" : "Untitled:" + std::to_string(document));
        for (const auto& message : screen.Messages) {
            const bool abnormal = message.Text == Abnormal;
            EXPECT_EQ(message.Picture, abnormal ? Icon::Exclamation : Icon::Critical);
            EXPECT_EQ(message.Choice, Buttons::Ok);
            EXPECT_EQ(message.Title, "Quorvane");
        }
        EXPECT_EQ(TakeMessages(), row.Messages);
        EXPECT_EQ(FreeFile(), 1) << "the file was left open";
    }
}

TEST_F(LoadingDocuments, ABadFieldLeavesTheOthersWhole) {
    const std::string bad = "Sin~a\r\nx~2~~1~red~99999~8~0~9~0~0~0~0\r\nup~50~\r\n";
    Load("2\r\n" + bad + bad);
    for (const int i : {1, 2}) {
        SCOPED_TRACE(i);
        EXPECT_EQ(Boxes[i].BoxText, "a");
        EXPECT_EQ(Boxes[i].BoxIn[1], 0);
        EXPECT_EQ(Boxes[i].BoxIn[2], 2);
        EXPECT_EQ(Boxes[i].BoxOut[1], 1);
        EXPECT_EQ(Boxes[i].BoxLineColor[1], 0);
        EXPECT_EQ(Boxes[i].BoxOut[2], 0);
        EXPECT_EQ(Boxes[i].BoxLineColor[2], 8);
        EXPECT_EQ(Boxes[i].BoxLineColor[3], 9);
        EXPECT_EQ(Boxes[i].BoxLeft, 50);
        EXPECT_TRUE(Documents[2]->box[i].Visible);
    }
    EXPECT_EQ(TakeMessages().size(), 5U) << "five bad fields in the first box";
}

TEST_F(LoadingDocuments, ABrokenOffLoadKeepsItsBoxesUncounted) {
    const int document = Load("3\r\n" + Repeated(2));
    EXPECT_EQ(NextBox, 1);
    EXPECT_EQ(Boxes[2].BoxType, "Sin");
    EXPECT_EQ(Boxes[2].BoxDocument, document);
    EXPECT_TRUE(Documents[document]->box.Has(2));
    EXPECT_FALSE(Documents[document]->box.Has(3));
    TakeMessages();
    EXPECT_EQ(Load("1\r\n" + Plain), document + 1) << "the next load takes the numbers over";
    EXPECT_EQ(NextBox, 2);
    EXPECT_EQ(TakeMessages(), Texts());
}

TEST_F(LoadingDocuments, TheTableTakes350AndNoMore) {
    Load("350\r\n" + Repeated(350));
    EXPECT_EQ(NextBox, 351);
    EXPECT_DOUBLE_EQ(Documents[1]->pnlResource.Value, 100);
    EXPECT_EQ(TakeMessages(), Texts());
    Load("0\r\n\r\n");
    EXPECT_EQ(TakeMessages(), Texts()) << "an empty diagram always finds room";
    ResetBoxTable();
    Draw({{"Cos", ""}});
    Load("349\r\n" + Repeated(349));
    EXPECT_EQ(NextBox, 351);
    EXPECT_EQ(TakeMessages(), Texts());
}

TEST_F(LoadingDocuments, ARefusedFileBlocksFurtherLoadsButNoSave) {
    Draw({{"Cos", ""}});
    const auto before = Boxes;
    const int document = Load("350\r\n" + Repeated(350));
    ASSERT_EQ(screen.Messages.size(), 1U);
    EXPECT_EQ(screen.Messages[0].Picture, Icon::None);
    EXPECT_EQ(TakeMessages(), Texts{TooMany});
    EXPECT_EQ(Boxes, before);
    EXPECT_EQ(NextBox, 2);
    EXPECT_EQ(Documents[document]->Caption, "Untitled:2");
    WriteAll("good.qvm", "1\r\n" + Plain);
    for (int again = 3; again <= 4; ++again) {
        LoadDocument("good.qvm");
        EXPECT_EQ(TakeMessages(), Texts{NotFound});
        EXPECT_EQ(Documents[again]->Caption, "Untitled:" + std::to_string(again));
        EXPECT_EQ(NextBox, 2);
    }
    EXPECT_EQ(Saved("saved.qvm").substr(0, 8), "1\r\nCos~\r");
    EXPECT_EQ(TakeMessages(), Texts());
}

TEST_F(LoadingDocuments, OnlyTheLastPartOfANameCounts) {
    WriteAll("x.qvm", "1\r\n" + Plain);
    for (const std::string name : {"x.qvm", "C:\\far\\away\\x.qvm", "/far/away/x.qvm"}) {
        SCOPED_TRACE(name);
        LoadDocument(name);
        EXPECT_EQ(Documents[Documents.UpperBound()]->Caption, "x.qvm");
        EXPECT_EQ(TakeMessages(), Texts());
    }
    std::filesystem::create_directory("d");
    WriteAll("d/y.qvm", "1\r\n" + Plain);
    LoadDocument(folder / "d/y.qvm");
    EXPECT_EQ(TakeMessages(), Texts{NotFound}) << "the folder of a name does not count";
    EXPECT_EQ(Documents[5]->Caption, "Untitled:5");
    EXPECT_EQ(NextBox, 4);
}

/// A file dialog that moves to the folder of the file, as some do.
struct WanderingDesktop : quorvane::testing::ScriptedDesktop {
    std::string OpenFileDialog(const std::string& filter, const std::string& name) override {
        auto path = ScriptedDesktop::OpenFileDialog(filter, name);
        ChangeDirectory(std::string(FolderOf(path)));
        return path;
    }
};

TEST_F(LoadingDocuments, TheUserIsAskedForAFile) {
    WanderingDesktop wandering;
    desktop = &wandering;
    EditMode = 3;
    LoadDocument("");
    EXPECT_EQ(Documents.UpperBound(), 1) << "cancelling made a document";
    EXPECT_EQ(EditMode, 3);
    EXPECT_EQ(wandering.FileDialogs,
              Texts{"open|Quorvane Files (*.qvm)|*.qvm|All Files (*.*)|*.*|"});
    std::filesystem::create_directory("d");
    const auto path = folder / "d/y.qvm";
    WriteAll(path, "1\r\n" + Plain);
    wandering.Paths = {path};
    LoadDocument("");
    EXPECT_EQ(Documents[2]->Caption, path);
    EXPECT_EQ(NextBox, 2);
    EXPECT_EQ(CurrentDirectory(), folder.Path.string());
    EXPECT_TRUE(wandering.Messages.empty());
    desktop = &screen;
}

TEST_F(LoadingDocuments, FacesGoByTheIconKey) {
    struct Row {
        const char *Type, *Text;
        int Cell;
    };
    const Row rows[] = {
        {"Sin", "", 118},
        {"Plot Output", "Polar;polar(Input1);", 96},
        {"Plot Output", "Polar", 104},
        {"Matrix Manipulation", "Diag|3", 35},
        {"Matrix Manipulation", "Fliplr", 85},
        {"Logic Operator", "xor", 104},
        {"Double Subroutine", "Subroutine", 130},
        {"End Subroutine", "Subroutine", 130},
        {"wavwrite", "", 104},
        {"sin", "", 104},
        {"Sort", "", 122},
    };
    std::string bytes = std::to_string(std::size(rows)) + "\r\n";
    for (const auto& row : rows) {
        bytes += std::string(row.Type) + "~" + row.Text + Plain.substr(Plain.find('\r'));
    }
    Load(bytes);
    int number = 1;
    for (const auto& row : rows) {
        EXPECT_EQ(Documents[2]->box[number++].Picture, row.Cell) << row.Type << " " << row.Text;
    }
}

/// Boxes with a text of their own each, linked at random; links of 0 and below are locked or empty.
void FillTable(std::mt19937& random, int count) {
    const auto upTo = [&](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random);
    };
    const auto link = [&] { return static_cast<std::int16_t>(std::max(upTo(-count, count), -1)); };
    for (int i = 1; i <= count; ++i) {
        Box& box = Boxes[i];
        box = Box();
        box.BoxType = "type " + std::to_string(upTo(1, 9));
        box.BoxText = "text " + std::to_string(i);
        box.BoxDocument = 1;
        for (auto& slot : box.BoxIn) slot = link();
        for (auto& slot : box.BoxOut) slot = link();
        for (auto& color : box.BoxLineColor) color = upTo(INT32_MIN, INT32_MAX);
        box.BoxLeft = upTo(INT32_MIN, INT32_MAX);
        box.BoxTop = upTo(INT32_MIN, INT32_MAX);
    }
    NextBox = static_cast<std::int16_t>(count + 1);
}

TEST_F(LoadingDocuments, WhatWasSavedComesBack) {
    for (const unsigned seed : {1U, 2U, 3U, 4U}) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const int count = 40 + static_cast<int>(random() % 130);
        FillTable(random, count);
        ASSERT_FALSE(Saved("round.qvm").empty());
        LoadDocument("round.qvm");
        ASSERT_EQ(NextBox, 2 * count + 1);
        // Where each box went: its text is its own.
        std::vector<std::int16_t> loadedAs(static_cast<std::size_t>(count) + 1, 0);
        for (int i = count + 1; i < NextBox; ++i) {
            loadedAs[std::stoul(Boxes[i].BoxText.substr(5))] = static_cast<std::int16_t>(i);
        }
        for (int i = 1; i <= count; ++i) {
            SCOPED_TRACE(i);
            Box expected = Boxes[i];
            const auto moved = [&](auto& slots) {
                for (auto& slot : slots) {
                    if (slot > 0) slot = loadedAs[static_cast<std::size_t>(slot)];
                }
            };
            moved(expected.BoxIn);
            moved(expected.BoxOut);
            expected.BoxDocument = static_cast<std::int16_t>(Documents.UpperBound());
            const int number = loadedAs[static_cast<std::size_t>(i)];
            ASSERT_GT(number, count);
            EXPECT_TRUE(Boxes[number] == expected);
        }
    }
}

TEST_F(LoadingDocuments, ANewDocumentCopiesTheFramesMenus) {
    frmMDI.mnuOptionsToolbox.Checked = true;
    frmMDI.mnuOptionsCurrentToolbox.Caption = "Current Toolbox: my.tlb";
    frmMDI.mnuFileArray[0].Visible = true;
    frmMDI.mnuFileArray[2].Visible = true;
    frmMDI.mnuFileArray[2].Caption = "two.qvm";
    frmMDI.mnuFileArray[3].Caption = "hidden.qvm";
    EditMode = 0;
    EXPECT_EQ(NewDocument(), 2);
    const auto& window = *Documents[2];
    EXPECT_EQ(window.Caption, "Untitled:2");
    EXPECT_EQ(window.Tag, "2");
    EXPECT_TRUE(window.mnuOptionsToolbox.Checked);
    EXPECT_EQ(window.mnuOptionsCurrentToolbox.Caption, "Current Toolbox: my.tlb");
    for (int k = 0; k <= 4; ++k) EXPECT_EQ(window.mnuFileArray[k].Visible, k == 0 || k == 2) << k;
    EXPECT_EQ(window.mnuFileArray[2].Caption, "two.qvm");
    EXPECT_EQ(EditMode, 1);
}

}  // namespace

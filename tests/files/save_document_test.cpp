// SPDX-License-Identifier: MIT
#include "files/document_fixture.h"
#include "platform/file_table.h"
#include "platform/raised_error.h"

using namespace quorvane;

namespace {

class SavingDocuments : public quorvane::testing::DocumentTest {};

const std::string Filter = "Quorvane Files (*.qvm)|*.qvm|All Files (*.*)|*.*";

TEST_F(SavingDocuments, FieldsEndAtTheFirstTilde) {
    struct Row {
        const char* Text;
        std::size_t End;
    };
    for (const auto& row : {Row{"", 1}, Row{"~", 1}, Row{"a", 2}, Row{"ab~c~", 3}, Row{"~a", 1}}) {
        EXPECT_EQ(FindFieldEnd(row.Text), row.End) << row.Text;
    }
}

TEST_F(SavingDocuments, TwoBoxesByteByByte) {
    Draw({{"Keyboard Input", "a=5;", {0, 0, 0}, {2}}, {"Screen Output", "", {1, 0, 0}}});
    Boxes[1].BoxTop = 480;
    Boxes[2].BoxTop = 1920;
    Boxes[1].BoxLeft = Boxes[2].BoxLeft = 960;
    DocumentStates[1].Modified = -1;
    EXPECT_EQ(Saved("two.qvm"),
              "2\r\n"
              "Keyboard Input~a=5;\r\n"
              "0~0~0~2~0~0~0~0~0~0~0~0~0\r\n"
              "480~960~\r\n"
              "Screen Output~\r\n"
              "1~0~0~0~0~0~0~0~0~0~0~0~0\r\n"
              "1920~960~\r\n"
              "\r\n");
    EXPECT_EQ(DocumentStates[1].Modified, 0);
    EXPECT_TRUE(screen.FileDialogs.empty());
    EXPECT_TRUE(screen.Messages.empty());
}

TEST_F(SavingDocuments, EveryFieldHasItsPlace) {
    Draw({{"A", "", {-1, 0, -5}, {0, -1, 1, -32768, 0}}});
    for (int j = 1; j <= 5; ++j) Boxes[1].BoxLineColor[j] = 11 * j;
    Boxes[1].BoxLineColor[5] = -2147483647 - 1;
    Boxes[1].BoxTop = -15;
    Boxes[1].BoxLeft = 2147483647;
    EXPECT_EQ(
        Saved("a.qvm"),
        "1\r\nA~\r\n-1~0~-5~0~11~-1~22~1~33~-32768~44~0~-2147483648\r\n-15~2147483647~\r\n\r\n");
}

TEST_F(SavingDocuments, AnEmptyDocumentIsALineAndAnEmptyOne) {
    NewDocument();
    Draw({{"Sin", ""}}, 2);
    EXPECT_EQ(Saved("empty.qvm"), "0\r\n\r\n");
}

TEST_F(SavingDocuments, BoxesAreNumberedByFirstMention) {
    struct Row {
        const char* Case;
        std::vector<quorvane::testing::TestBox> Drawn;
        std::vector<int> DocumentOf;
        std::string Order;  ///< Types in the file
        std::vector<std::string> LinkLines;
    };
    const std::string none = "~0~0~0~0~0~0~0~0~0~0";
    const auto exitLine = [](const std::string& entries, int exit) {
        return entries + "~" + std::to_string(exit) + "~0~0~0~0~0~0~0~0~0";
    };
    const std::vector<Row> rows = {
        {"an exit to a later box",
         {{"a", "", {0, 0, 0}, {3}}, {"b", "", {0, 0, 0}}, {"c", "", {1, 0, 0}}},
         {1, 1, 1},
         "acb",
         {exitLine("0~0~0", 2), "1~0~0" + none, "0~0~0" + none}},
        {"entries come before exits",
         {{"a", "", {3, 0, 0}, {2}}, {"b", "", {1, 0, 0}}, {"c", "", {0, 0, 0}, {1}}},
         {1, 1, 1},
         "acb",
         {exitLine("2~0~0", 3), exitLine("0~0~0", 1), "1~0~0" + none}},
        {"a box of another document takes a number",
         {{"a", "", {0, 0, 0}, {2}}, {"x", ""}, {"b", "", {1, 0, 0}}},
         {1, 2, 1},
         "ab",
         {exitLine("0~0~0", 2), "1~0~0" + none}},
        {"a record behind the table",
         {{"a", "", {0, 0, 0}, {300}}},
         {1},
         "a",
         {exitLine("0~0~0", 2)}},
    };
    NewDocument();
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Case);
        ResetBoxTable();
        for (const auto& box : row.Drawn) Draw({box});
        for (int i = 1; i < NextBox; ++i) {
            Boxes[i].BoxDocument =
                static_cast<std::int16_t>(row.DocumentOf[static_cast<std::size_t>(i - 1)]);
        }
        std::string expected = std::to_string(row.Order.size()) + "\r\n";
        for (std::size_t k = 0; k < row.Order.size(); ++k) {
            expected += std::string(1, row.Order[k]) + "~\r\n" + row.LinkLines[k] + "\r\n0~0~\r\n";
        }
        EXPECT_EQ(Saved("order.qvm"), expected + "\r\n");
    }
}

TEST_F(SavingDocuments, LineBreaksBecomeSemicolonsForGood) {
    struct Row {
        std::string Text, InFile, Loaded;
    };
    const Row rows[] = {
        {"x=1;\r\ny=2;", "x=1;;;y=2;", "x=1;;;y=2;"},
        {"x=1\r\ny=2", "x=1;;y=2", "x=1;;y=2"},
        {"x=1;\r\n\r\ny=2;\r\n", "x=1;;;;;y=2;;;", "x=1;;;;;y=2;;;"},
        {"x\r", "x;", "x;"},
        {"\r", ";", ";"},
        {"a\rbc", "a;;c", "a;;c"},
        {"a\r\r\nb", "a;;\nb", "a;;"},
        {"a~b~c", "a~b~c", "a"},
        {"~", "~", ""},
        {"\xC3\xA4\xFF \t;", "\xC3\xA4\xFF \t;", "\xC3\xA4\xFF \t;"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.InFile);
        ResetBoxTable();
        Draw({{"Comment", row.Text}});
        const auto bytes = Saved("breaks.qvm");
        EXPECT_EQ(bytes.substr(0, bytes.find("\r\n-1~")), "1\r\nComment~" + row.InFile);
        EXPECT_EQ(Boxes[1].BoxText, row.Text) << "saving changed the box";
        LoadDocument("breaks.qvm");
        EXPECT_EQ(Boxes[2].BoxText, row.Loaded);
    }
}

TEST_F(SavingDocuments, WhoIsAskedForAName) {
    struct Row {
        const char* Caption;
        int Mode;
        const char* Chosen;  ///< "" cancels
        const char* Asked;   ///< Name that the dialog shows, "-" for no dialog
        const char* Becomes;
    };
    const Row rows[] = {
        {"Untitled:1", 1, "a.qvm", "", "a.qvm"},
        {"Untitled:1", 2, "a.qvm", "", "a.qvm"},
        {"Untitled.qvm", 1, "a.qvm", "", "a.qvm"},
        {"untitled.qvm", 1, "a.qvm", "-", "untitled.qvm"},
        {"old.qvm", 1, "a.qvm", "-", "old.qvm"},
        {"old.qvm", 2, "a.qvm", "old.qvm", "a.qvm"},
        {"old.qvm", 2, "Untitled2.qvm", "old.qvm", "Untitled2.qvm"},
        {"Untitled:1", 1, "", "", "Untitled:1"},
        {"old.qvm", 2, "", "old.qvm", "old.qvm"},
        {"old.qvm", 2, "*.qvm", "old.qvm", "old.qvm"},
        {"Untitled:1", 1, "*.qvm", "", "Untitled:1"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.Caption) + ", " + row.Chosen);
        for (const auto& name : quorvane::testing::NamesIn(".")) std::filesystem::remove(name);
        screen = {};
        Documents[1]->Caption = row.Caption;
        DocumentStates[1].Modified = -1;
        if (*row.Chosen) screen.Paths = {row.Chosen};
        SaveDocument(1, static_cast<std::int16_t>(row.Mode));
        const bool saved = row.Asked == std::string("-") || (*row.Chosen && row.Chosen[0] != '*');
        const std::vector<std::string> dialogs = {"save|" + Filter + "|" + row.Asked};
        EXPECT_EQ(screen.FileDialogs,
                  row.Asked == std::string("-") ? std::vector<std::string>() : dialogs);
        EXPECT_EQ(Documents[1]->Caption, row.Becomes);
        EXPECT_EQ(DocumentStates[1].Modified, saved ? 0 : -1);
        EXPECT_EQ(screen.Store["Recent Files"]["RecentFile1"], saved ? row.Becomes : "");
        using Names = std::set<std::string>;
        EXPECT_EQ(quorvane::testing::NamesIn("."), saved ? Names{row.Becomes} : Names());
    }
}

TEST_F(SavingDocuments, AFailingSaveLooksLikeAnyOther) {
    Draw({{"Sin", ""}});
    std::filesystem::create_directory("d");
    for (const std::string name : {"none/a.qvm", "d"}) {
        SCOPED_TRACE(name);
        DocumentStates[1].Modified = -1;
        Documents[1]->Caption = "Untitled:1";
        screen.Paths = {name};
        SaveDocument(1, 1);
        EXPECT_EQ(Documents[1]->Caption, name);
        EXPECT_EQ(DocumentStates[1].Modified, 0);
        EXPECT_EQ(screen.Store["Recent Files"]["RecentFile1"], name);
        EXPECT_TRUE(screen.Messages.empty());
        EXPECT_EQ(FreeFile(), 1) << "the failed save kept its number";
    }
    EXPECT_EQ(quorvane::testing::NamesIn("."), (std::set<std::string>{"d"}));
    EXPECT_EQ(quorvane::testing::RaisedError([] { SaveDocument(9, 1); }), 9);
}

}  // namespace

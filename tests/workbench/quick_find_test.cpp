// SPDX-License-Identifier: MIT
#include "workbench/quick_find.h"

#include "catalogue/box_commands.h"
#include "catalogue/catalogue_fixture.h"
#include "diagram/preferences.h"
#include "files/work_folder.h"

namespace quorvane::testing {

struct QuickFind : CatalogueTest {
    /// The first `count` finds, each with where it stands.
    static std::string Found(const char* text, std::size_t count, bool boxesOnly = false) {
        std::string found;
        for (const auto& row : FindQuick(text, boxesOnly)) {
            if (count-- == 0) break;
            found += (found.empty() ? "" : "|") + row.Text + " (" + row.Where + ")";
        }
        return found;
    }
    /// Picks what is found first, and returns the box that came of it.
    const Box& Pick(const QuickRow& row) {
        Restart();
        ChooseQuick(row, Sheet());
        return Boxes[NextBox - 1];
    }
};

TEST_F(QuickFind, TheBestComesFirst) {
    Draw({{"Sin", "", {}, {}}, {"Comment", "some noise", {}, {}}});
    EXPECT_EQ(Found("sin", 1), "Sin (Trigonometric Functions)") << "an equal text";
    EXPECT_EQ(Found("si", 1), "Sin (Trigonometric Functions)") << "shorter than Size";
    EXPECT_EQ(Found("2", 1), "2-D Plot (Plot)");
    EXPECT_EQ(Found("matrix m", 1), "Matrix Manipulation (Matrix and Vector Commands)");
    EXPECT_EQ(Found("to ZERO", 1), "To zero (Round Numbers)");
    EXPECT_EQ(Found("cplxpair", 1),
              "Sort numbers into complex conjugate pairs (Complex Number Manipulation)");
    EXPECT_EQ(Found("surfl", 1), "3-D Shaded Surface w/Lighting (Plot)");
    EXPECT_EQ(Found("cals", 1), "Create a Linearly Spaced Vector (Matrix and Vector Commands)");
    EXPECT_EQ(Found("box2", 1), "box2  Comment  some noise (Untitled:1)");
    EXPECT_EQ(Found("noise", 1), "box2  Comment  some noise (Untitled:1)");
    EXPECT_EQ(Found("page v", 1), "Page View (View)");
    EXPECT_EQ(Found(" ", 9), "");
    EXPECT_EQ(Found("no such thing", 9), "");
    EXPECT_EQ(Found("", 9, true), "box1  Sin (Untitled:1)|box2  Comment  some noise (Untitled:1)");
    EXPECT_EQ(Found("sin", 9, true), "box1  Sin (Untitled:1)");
}

/// An option that is found makes the box that its dialog makes, and asks only for a further field;
/// a graph type opens its dialog.
TEST_F(QuickFind, AnOptionMakesTheBoxOfItsDialog) {
    int options = 0, graphs = 0;
    std::vector<QuickRow> rows;
    for (const char letter : std::string("abcdefghijklmnopqrstuvwxyz0123456789+-*/^|")) {
        for (auto& row : FindQuick(std::string(1, letter))) rows.push_back(std::move(row));
    }
    std::set<std::string> seen;
    for (const auto& row : rows) {
        if (!seen.insert(row.Where + row.Text).second) continue;
        SCOPED_TRACE(row.Where + " " + row.Text);
        if (row.Graph) {
            Restart();
            screen.Forms["frmPlot"] = [&] { EXPECT_EQ(frmPlot.cmbType.Text, row.Text); };
            ChooseQuick(row, Sheet());
            EXPECT_EQ(screen.FormsShown, Texts{"frmPlot"});
            ++graphs;
        }
        if (!row.List) continue;
        const auto& option = row.List->Options[static_cast<std::size_t>(row.Option)];
        const bool asks =
            option.BoxText && std::string(option.BoxText).find('{') != std::string::npos;
        const Box picked = Pick(row);
        EXPECT_EQ(screen.FormsShown.size(), asks ? 1U : 0U);
        const int picture = Sheet().box[1].Picture;
        Restart();
        const Box& made = Make(std::string(row.List->Dialog), OptionName(*row.List, option));
        // A constant is asked for anew as long as none is typed.
        if (row.Text.starts_with("Arbit")) continue;
        EXPECT_TRUE(picked == made) << picked.BoxType << "~" << picked.BoxText;
        EXPECT_EQ(Sheet().box[1].Picture, picture);
        ++options;
    }
    EXPECT_EQ(graphs, 23);
    EXPECT_EQ(options, 147 - 2) << "one row has no button, and one is the arbitrary constant";
}

TEST_F(QuickFind, MenusAndExamplesAreChosen) {
    const WorkFolder folder;
    std::filesystem::create_directory(folder / "examples");
    WriteAll(folder / "examples/two_sines.qvm",
             "1\r\nSin~\r\n0~0~0~0~0~0~0~0~0~0~0~0~0\r\n0~0~\r\n\r\n");
    ProgramDirectory = folder.Path.string();
    EXPECT_EQ(Found("two s", 1), "two sines (example)");
    ChooseQuick(FindQuick("two s")[0], Sheet());
    EXPECT_EQ(Boxes[1].BoxType, "Sin");
    EXPECT_EQ(Boxes[1].BoxDocument, 2);
    ChooseQuick(FindQuick("move boxes")[0], Sheet());
    EXPECT_EQ(EditMode, 5);
    ChooseQuick(FindQuick("square root")[0], Sheet());
    EXPECT_EQ(Boxes[2].BoxType, "Sqrt");
    EXPECT_EQ(EditMode, 2);
}

}  // namespace quorvane::testing

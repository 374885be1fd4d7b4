// SPDX-License-Identifier: MIT
#include "files/recent_files.h"

#include "files/document_fixture.h"

using namespace quorvane;

namespace {

class RecentFiles : public quorvane::testing::DocumentTest {
protected:
    /// The stored names, newest first, parted by blanks.
    std::string Stored() {
        std::string names;
        for (const auto& row : screen.ReadStoreSection("Recent Files")) names += " " + row.second;
        return names;
    }
    /// Entries 0 to 4 of a menu: "|" for the separator, "." for what is hidden.
    static std::string Shown(const CheckedArray<MenuItem, 0, 4>& menu) {
        std::string entries = menu[0].Visible ? "|" : ".";
        for (int i = 1; i <= 4; ++i) entries += " " + (menu[i].Visible ? menu[i].Caption : ".");
        return entries;
    }
};

TEST_F(RecentFiles, EachSaveMovesStoreAndMenus) {
    struct Row {
        const char *Saved, *Stored, *Frame, *Document;
    };
    const Row rows[] = {
        {"a", " a", ". . . . .", ". . . . ."},       {"b", " b a", "| a . . .", "| . a . ."},
        {"a", " b a", "| a . . .", "| . a . ."},     {"A", " A b a", "| b a . .", "| . b a ."},
        {"A", " A A b a", "| A b a .", "| . A b a"}, {"c", " c A A b", "| A A b .", "| . A A b"},
        {"b", " c A A b", "| A A b .", "| . A A b"}, {"a", " a c A A", "| c A A .", "| . c A A"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.Saved) + row.Stored);
        Documents[1]->Caption = row.Saved;
        SaveDocument(1, 1);
        EXPECT_EQ(Stored(), row.Stored);
        EXPECT_EQ(Shown(frmMDI.mnuFileArray), row.Frame);
        EXPECT_EQ(Shown(Documents[1]->mnuFileArray), row.Document);
    }
    NewDocument();
    EXPECT_EQ(Shown(Documents[2]->mnuFileArray), "| c A A .") << "a new document copies the frame";
    RefreshRecentFileMenus();
    EXPECT_EQ(Shown(Documents[2]->mnuFileArray), "| c c A A");
}

TEST_F(RecentFiles, OnlyOpenDocumentsAndAnExactNameCount) {
    NewDocument();
    DocumentStates[1].Closed = -1;
    ShiftRecentFiles("a.qvm");
    ShiftRecentFiles("b.qvm");
    EXPECT_EQ(Shown(frmMDI.mnuFileArray), ". . . . .");
    RefreshRecentFileMenus();
    EXPECT_EQ(Shown(Documents[1]->mnuFileArray), ". . . . .");
    EXPECT_EQ(Shown(Documents[2]->mnuFileArray), "| . a.qvm . .");
    EXPECT_TRUE(IsRecentFile("a.qvm"));
    EXPECT_FALSE(IsRecentFile("A.qvm"));
    EXPECT_FALSE(IsRecentFile("b.qvm")) << "the newest name shows nowhere";
    screen.Store.clear();
    screen.Store["Recent Files"]["RecentFile2"] = "z.qvm";
    RefreshRecentFileMenus();
    EXPECT_EQ(Shown(frmMDI.mnuFileArray), "| a.qvm . . .")
        << "without a newest name nothing changes";
}

}  // namespace

// SPDX-License-Identifier: MIT
// Loads the input as a diagram file, checks it, compiles it, saves it and loads it again. A run may
// end in any of its ways, in a run-time error too; it may not crash, hang, ask for ever or leave
// marks behind, and what was saved must come back.

#include <random>

#include "check/check_document.h"
#include "commands/matrix_input.h"
#include "diagram/box_table.h"
#include "diagram/worksheet.h"
#include "files/document_file.h"
#include "files/settings.h"
#include "fuzz/fuzz_support.h"
#include "generator/compile_document.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

/// Answers at random, by the input's hash.
struct RandomDesktop : ScriptedDesktop {
    std::uint32_t Hash = 0;
    std::minstd_rand Chance;
    int Calls = 0;
    std::string SavedAs;

    template <class T>
    T Any(std::initializer_list<T> choices) {
        Check(++Calls <= 200000, "the run never comes to its end");
        return choices.begin()[Chance() % choices.size()];
    }
    Answer MsgBox(const Message& message) override {
        using enum Answer;
        if (message.Choice == Buttons::Ok) return Any({Ok});
        if (message.Choice == Buttons::AbortRetryIgnore) return Any({Retry, Ignore, Ignore, Abort});
        return Any({Yes, Yes, Yes, No});
    }
    std::string InputBox(const std::string&, const std::string&, const std::string& text) override {
        return Any<std::string>({text, "1 2 3", "", "1~2"});
    }
    std::string OpenFileDialog(const std::string&, const std::string&) override {
        std::string path = Any({"", "/data/values.txt", "values", "C:\\data\\a.m", ".txt", "/"});
        if (path.empty()) throw RuntimeError(32755);
        return path;
    }
    std::string SaveFileDialog(const std::string& filter, const std::string& name) override {
        return filter == DocumentFilter ? SavedAs : OpenFileDialog(filter, name);
    }
    void ShowModal(std::string_view form) override {
        Check(form == "frmMatrix", "the run opens the form " + std::string(form));
        const int wayOut = Any({0, 1, 2});
        if (wayOut == 2) frmMatrix.grid.Cell(1, 1) = "3";
        if (wayOut != 0) frmMatrix_cmdOK_Click();
    }
};

/// The box as one of another document whose links count otherwise.
template <class Renumber>
Box Relinked(Box box, std::int16_t document, Renumber&& renumber) {
    const auto relink = [&](auto& links) {
        for (auto& link : links) link = link > 0 ? static_cast<std::int16_t>(renumber(link)) : link;
    };
    relink(box.BoxIn);
    relink(box.BoxOut);
    box.BoxDocument = document;
    return box;
}

/// Loads a file that is loaded already. Behind its own boxes the same ones must stand, with links
/// that are shifted by their number.
void LoadBehindItself(const std::string& path) {
    const int shift = NextBox - 1;
    LoadDocumentFile(path);
    if (!lastLoad.Finished) return;
    Check(NextBox == 2 * shift + 1, "a second load brought another number of boxes");
    const auto moved = [&](int link) { return link + shift <= INT16_MAX ? link + shift : 0; };
    for (int i = 1; i <= shift; ++i) {
        Check(Boxes[i + shift] == Relinked(Boxes[i], 2, moved),
              "box " + std::to_string(i) + " differs behind others");
    }
}

void Compile(const RandomDesktop& screen, int document) {
    const auto mode = static_cast<std::int16_t>(screen.Hash & 1U);
    frmPrefs.chkInput.Value = (screen.Hash & 2U) != 0 ? 1 : 0;
    try {
        const auto script = CompileDocument(mode, Documents[document]->Tag);
        Check(mode == 1 || script.empty(), "mode 0 gives back a script");
        Check(lastRunEnd != RunEnd::None, "a run ended without saying how");
    } catch (const RuntimeError&) {
        Check(lastRunEnd == RunEnd::None, "a run that failed says that it ended");
    }
    for (int i = 1; i < NextBox; ++i) Check(Boxes[i].BoxMark.empty(), "a run left a mark");
    for (int i = 1; i <= Documents.UpperBound(); ++i) {
        Check(Documents[i]->MousePointer == PointerDefault, "a run left the hourglass");
    }
}

/// Takes the boxes of a document as a file holds them: by their places in the order of their first
/// mention. False when a text or a link can't go through a file.
bool AsSaved(int document, std::map<int, Box>& saved) {
    std::map<int, int> order;
    const auto numberOf = [&](int number) {
        return order.try_emplace(number, static_cast<int>(order.size()) + 1).first->second;
    };
    bool fits = true;
    for (int i = 1; i < NextBox; ++i) {
        const Box& box = Boxes[i];
        if (box.BoxDocument != document) continue;
        const int place = numberOf(i);
        saved[place] = Relinked(box, 1, numberOf);
        fits &= (box.BoxType + box.BoxText).find_first_of("~\r\n") == std::string::npos;
    }
    // A number that no box of the document has is a link that leads out of it.
    return fits && order.size() == saved.size();
}

void SaveAndLoadAgain(RandomDesktop& screen, int document) {
    std::map<int, Box> saved;
    const bool comparable = AsSaved(document, saved);
    SaveDocument(static_cast<std::int16_t>(document), 2);
    ResetApplication();
    LoadDocumentFile(screen.SavedAs);
    Check(lastLoad.Finished && !lastLoad.ReadPastEnd, "a saved document doesn't load");
    Check(NextBox - 1 == static_cast<int>(saved.size()),
          "a saved document loads with another number of boxes");
    for (int i = 1; comparable && i < NextBox; ++i) {
        Check(Boxes[i] == saved[i], "box " + std::to_string(i) + " came back changed");
    }
}

/// A check tells each finding with its advice and changes nothing.
void CheckLeavesNoTrace(int document) {
    const auto boxes = Boxes;
    const auto* const before = desktop;
    for (const auto& finding : CheckDocument(document)) {
        Check(finding.Box >= 0 && finding.Box < NextBox, "a finding at no box");
        Check(!finding.Text.empty() && !finding.Advice.empty(), "a finding without a text");
    }
    Check(Boxes == boxes && desktop == before, "a check left a trace");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return RunInput("input.qvm", data, size, [](const std::string& bytes, const std::string& path) {
        RandomDesktop screen;
        screen.Hash = DigestOf(bytes);
        screen.SavedAs = FuzzFolder() / "saved.qvm";
        desktop = &screen;
        matlabLink = screen.Link();
        screen.Chance.seed(screen.Hash);
        matlabLink.Open = [&] {
            const int failure = screen.Any({0, 0, 0, 0, 282, 5});
            if (failure != 0) throw RuntimeError(failure);
        };
        LoadDocumentFile(path);
        if (screen.Hash / 256 % 4 == 0) LoadBehindItself(path);
        Check(NextBox >= 1 && NextBox <= MaxBoxes + 1, "a load left a wrong number of boxes");
        const int document = Documents.UpperBound();
        CheckLeavesNoTrace(document);
        Compile(screen, document);
        SaveAndLoadAgain(screen, document);
    });
}

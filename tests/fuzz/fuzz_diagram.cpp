// SPDX-License-Identifier: MIT
// Loads the input as a diagram file, compiles it, saves it and loads it again. A run may end in any
// of its ways, in a run-time error too; it may not crash, hang, ask for ever or leave marks behind,
// and what was saved must come back.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "catalogue/matrix_input.h"
#include "diagram/box_table.h"
#include "diagram/worksheet.h"
#include "files/document_file.h"
#include "files/settings.h"
#include "generator/compile_document.h"
#include "platform/runtime_error.h"
#include "shell/application.h"
#include "support/scripted_desktop.h"

using namespace quorvane;

namespace {

constexpr int MostQuestions = 50;
constexpr int MostCalls = 200000;

[[noreturn]] void Finding(const std::string& what) {
    std::cerr << "FINDING: " << what << std::endl;
    std::abort();
}

void Check(bool holds, const std::string& what) {
    if (!holds) Finding(what);
}

/// A folder in memory where there is such a thing, gone at the end of the program.
struct WorkFolder {
    std::string Path;

    WorkFolder() {
        namespace fs = std::filesystem;
        const fs::path memory = "/dev/shm";
        std::error_code error;
        const auto parent = fs::is_directory(memory, error) ? memory : fs::temp_directory_path();
        for (int i = 1; Path.empty(); ++i) {
            Check(i <= 10000, "no work folder can be made in " + parent.string());
            const auto folder = parent / ("quorvane_fuzz_" + std::to_string(i));
            if (fs::create_directory(folder, error)) Path = folder.string();
        }
    }
    ~WorkFolder() {
        std::error_code error;
        std::filesystem::remove_all(Path, error);
    }
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    std::string File(const char* name) const { return Path + "/" + name; }
};

const WorkFolder& Folder() {
    static const WorkFolder folder;
    return folder;
}

/// Answers in a circle, from a place that the input's hash tells, and gives up after a while.
struct CyclicDesktop : quorvane::testing::ScriptedDesktop {
    std::uint32_t Hash = 0;
    int Calls = 0;
    int Questions = 0;
    std::string SavedAs;

    void Count() { Check(++Calls <= MostCalls, "the run never comes to its end"); }
    /// The next of `choices` in the circle.
    template <class T, std::size_t N>
    T Next(const T (&choices)[N]) {
        return choices[(Hash + static_cast<std::uint32_t>(Questions)) % N];
    }

    Answer MsgBox(const Message& message) override {
        Count();
        if (message.Choice == Buttons::Ok) return Answer::Ok;
        const bool tired = ++Questions > MostQuestions;
        if (message.Choice == Buttons::AbortRetryIgnore) {
            constexpr Answer patient[] = {Answer::Retry, Answer::Ignore, Answer::Ignore};
            constexpr Answer all[] = {Answer::Retry, Answer::Ignore, Answer::Abort};
            if (tired) return Answer::Abort;
            return Hash & 4U ? Next(all) : Next(patient);
        }
        constexpr Answer some[] = {Answer::Yes, Answer::Yes, Answer::Yes, Answer::No};
        return tired ? Answer::No : Next(some);
    }
    std::string InputBox(const std::string&, const std::string&,
                         const std::string& defaultText) override {
        Count();
        ++Questions;
        const std::string texts[] = {defaultText, "1 2 3", "", "1~2"};
        return Next(texts);
    }
    std::string OpenFileDialog(const std::string&, const std::string&) override {
        return ChosenPath();
    }
    std::string SaveFileDialog(const std::string& filter, const std::string&) override {
        return filter == DocumentFilter ? SavedAs : ChosenPath();
    }
    std::string ChosenPath() {
        Count();
        ++Questions;
        const char* const paths[] = {"", "/data/values.txt", "values", "C:\\data\\a.m", ".txt",
                                     "/"};
        const std::string path = Next(paths);
        if (path.empty()) throw RuntimeError(32755);
        return path;
    }
    void ShowModal(std::string_view form) override {
        Count();
        ++Questions;
        Check(form == "frmMatrix", "the run opens the form " + std::string(form));
        constexpr int waysOut[] = {0, 1, 2};
        const int way = Next(waysOut);
        if (way == 0) return;
        if (way == 2) frmMatrix.grid.Cell(1, 1) = "3";
        frmMatrix_cmdOK_Click();
    }
    void LinkOpen() override {
        Count();
        constexpr int failures[] = {0, 0, 0, 282, 5};
        const int failure = failures[(Hash / 16U + static_cast<std::uint32_t>(Calls)) % 5];
        if ((Hash & 8U) != 0 && failure != 0) throw RuntimeError(failure);
    }
    void LinkExecute(const std::string&) override { Count(); }
    std::string LinkRequest() override {
        Count();
        return "ans =\r\n";
    }
    void StartMatlab() override { Count(); }
};

/// FNV-1a. The choices of a run hang on it, so that no byte of the input is spent on them.
std::uint32_t HashOf(const std::uint8_t* data, std::size_t size) {
    std::uint32_t hash = 2166136261U;
    for (std::size_t i = 0; i < size; ++i) hash = (hash ^ data[i]) * 16777619U;
    return hash ^ (hash >> 15);
}

void WriteInput(const std::string& path, const std::uint8_t* data, std::size_t size) {
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    const std::unique_ptr<std::FILE, Closer> file(std::fopen(path.c_str(), "wb"));
    const bool written = file && (size == 0 || std::fwrite(data, 1, size, file.get()) == size);
    Check(written, "the input can't be written to " + path);
}

/// Loads a file that is loaded already. Behind its own boxes the same ones must stand, with links
/// that are shifted by their number.
void LoadBehindItself(const std::string& path) {
    const int shift = NextBox - 1;
    LoadDocumentFile(path);
    if (!lastLoad.Finished) return;
    Check(NextBox == 2 * shift + 1, "a second load brought another number of boxes");
    const auto shifted = [shift](std::int16_t slot) {
        const int moved = slot > 0 ? slot + shift : slot;
        return static_cast<std::int16_t>(moved <= INT16_MAX ? moved : 0);
    };
    for (int i = 1; i <= shift; ++i) {
        Box expected = Boxes[i];
        expected.BoxDocument = 2;
        for (auto& slot : expected.BoxIn) slot = shifted(slot);
        for (auto& slot : expected.BoxOut) slot = shifted(slot);
        Check(Boxes[i + shift] == expected, "box " + std::to_string(i) + " differs behind others");
    }
}

void Compile(const CyclicDesktop& screen, int document) {
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

/// The boxes of a document as a file can hold them: in the order of their first mention and with
/// their places in that order for links. False when a text or a link can't go through a file.
bool AsSaved(int document, std::vector<Box>& saved) {
    std::vector<int> order;
    const auto placeOf = [&](int number) {
        auto found = std::find(order.begin(), order.end(), number);
        if (found == order.end()) found = order.insert(order.end(), number);
        return static_cast<std::int16_t>(found - order.begin() + 1);
    };
    std::vector<std::pair<int, Box>> boxes;
    for (int i = 1; i < NextBox; ++i) {
        if (Boxes[i].BoxDocument != document) continue;
        Box box = Boxes[i];
        if ((box.BoxType + box.BoxText).find_first_of("~\r\n") != std::string::npos) return false;
        box.BoxDocument = 1;
        const int place = placeOf(i);
        for (auto& slot : box.BoxIn) slot = slot > 0 ? placeOf(slot) : slot;
        for (auto& slot : box.BoxOut) slot = slot > 0 ? placeOf(slot) : slot;
        boxes.emplace_back(place, std::move(box));
    }
    // A number that no box of the document has is a link that leads out of it.
    if (order.size() != boxes.size()) return false;
    saved.resize(boxes.size());
    for (auto& [place, box] : boxes) saved[static_cast<std::size_t>(place) - 1] = std::move(box);
    return true;
}

void SaveAndLoadAgain(CyclicDesktop& screen, int document) {
    std::vector<Box> saved;
    const bool comparable = AsSaved(document, saved);
    screen.SavedAs = Folder().File("saved.qvm");
    SaveDocument(static_cast<std::int16_t>(document), 2);
    int boxes = 0;
    for (int i = 1; i < NextBox; ++i) boxes += Boxes[i].BoxDocument == document ? 1 : 0;

    ResetApplication();
    LoadDocumentFile(screen.SavedAs);
    Check(lastLoad.Finished && !lastLoad.ReadPastEnd, "a saved document doesn't load");
    Check(NextBox == boxes + 1, "a saved document loads with another number of boxes");
    if (!comparable) return;
    for (int i = 1; i < NextBox; ++i) {
        Check(Boxes[i] == saved[static_cast<std::size_t>(i) - 1],
              "box " + std::to_string(i) + " came back changed");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto path = Folder().File("input.qvm");
    WriteInput(path, data, size);
    CyclicDesktop screen;
    screen.Hash = HashOf(data, size);
    ResetApplication();
    desktop = &screen;
    LoadDocumentFile(path);
    if (screen.Hash / 256 % 4 == 0) LoadBehindItself(path);
    Check(NextBox >= 1 && NextBox <= MaxBoxes + 1, "a load left a wrong number of boxes");
    const int document = Documents.UpperBound();
    Compile(screen, document);
    SaveAndLoadAgain(screen, document);
    ResetApplication();
    desktop = nullptr;
    return 0;
}

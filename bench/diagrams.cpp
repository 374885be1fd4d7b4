// SPDX-License-Identifier: MIT
#include "diagrams.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "diagram/worksheet.h"
#include "files/document_file.h"
#include "generator/compile_document.h"
#include "generator/emission_chain.h"
#include "generator/front.h"
#include "platform/numbers.h"
#include "shell/application.h"

namespace quorvane::bench {

namespace {

constexpr int BoxesInRow = 10;

/// A box at its place of a grid, with locked entries and empty exits. `number` is its box number.
Box NewBox(int number, std::string_view type, std::string_view text = "") {
    Box box;
    box.BoxType = type;
    box.BoxText = text;
    box.BoxDocument = 1;
    box.BoxIn.Fill(LockedSlot);
    box.BoxTop = 480 + (number - 1) / BoxesInRow * 700;
    box.BoxLeft = 480 + (number - 1) % BoxesInRow * 700;
    return box;
}

Box& Numbered(std::vector<Box>& boxes, int number) {
    return boxes.at(static_cast<std::size_t>(number) - 1);
}

/// Joins two boxes by the first free exit of the one and the first locked entry of the other.
void Connect(std::vector<Box>& boxes, int source, int destination) {
    for (auto& exit : Numbered(boxes, source).BoxOut) {
        if (exit != 0) continue;
        exit = static_cast<std::int16_t>(destination);
        break;
    }
    for (auto& entry : Numbered(boxes, destination).BoxIn) {
        if (entry != LockedSlot) continue;
        entry = static_cast<std::int16_t>(source);
        break;
    }
}

/// A source and its sine's sine's sine.
std::vector<Box> Chain(int count) {
    std::vector<Box> boxes{NewBox(1, "Constant Input", "3")};
    for (int n = 2; n <= count; ++n) {
        boxes.push_back(NewBox(n, "Sin"));
        Connect(boxes, n - 1, n);
    }
    return boxes;
}

/// Every box feeds five others, level by level, so that most boxes wait in the front together.
std::vector<Box> Fan(int count) {
    std::vector<Box> boxes{NewBox(1, "Constant Input", "3")};
    for (int n = 2; n <= count; ++n) {
        boxes.push_back(NewBox(n, "Cos"));
        Connect(boxes, (n - 2) / 5 + 1, n);
    }
    return boxes;
}

/// Blocks one behind the other: a branch in a loop in a loop. What is left over is a chain.
std::vector<Box> Nested(int count) {
    constexpr int blockSize = 7;
    std::vector<Box> boxes{NewBox(1, "Constant Input", "3")};
    int n = 1;
    while (n + blockSize <= count) {
        const int outer = n + 1, inner = n + 2, test = n + 3, arm = n + 4, endOfArm = n + 5;
        const int innerNext = n + 6, outerNext = n + 7;
        boxes.push_back(NewBox(outer, "For", "1:3"));
        boxes.push_back(NewBox(inner, "While", BoxName(outer) + ">2"));
        boxes.push_back(NewBox(test, "If", BoxName(inner) + ">1"));
        boxes.push_back(NewBox(arm, "Matlab Command", "Output=Input1*2;"));
        boxes.push_back(NewBox(endOfArm, "End If"));
        boxes.push_back(NewBox(innerNext, "Next"));
        boxes.push_back(NewBox(outerNext, "Next"));
        Connect(boxes, n, outer);
        Connect(boxes, outer, inner);
        Connect(boxes, inner, test);
        Connect(boxes, test, arm);
        Connect(boxes, arm, endOfArm);
        // The walk continues after a branch by the third exit.
        Numbered(boxes, test).BoxOut[3] = static_cast<std::int16_t>(innerNext);
        Numbered(boxes, innerNext).BoxIn[1] = static_cast<std::int16_t>(test);
        Connect(boxes, innerNext, outerNext);
        n = outerNext;
    }
    while (++n <= count) {
        boxes.push_back(NewBox(n, "Sin"));
        Connect(boxes, n - 1, n);
    }
    return boxes;
}

/// A chain of sums, each of which takes two Pickups before the sum in front of it.
std::vector<Box> Pickups(int count) {
    std::vector<Box> boxes{NewBox(1, "Constant Input", "3")};
    int last = 1;
    int n = 2;
    for (; n + 2 <= count; n += 3) {
        boxes.push_back(NewBox(n, "Pickup", "box1"));
        boxes.push_back(NewBox(n + 1, "Pickup", "box1"));
        boxes.push_back(NewBox(n + 2, "+", "."));
        Connect(boxes, n, n + 2);
        Connect(boxes, n + 1, n + 2);
        Connect(boxes, last, n + 2);
        last = n + 2;
    }
    for (; n <= count; ++n) {
        boxes.push_back(NewBox(n, "Sin"));
        Connect(boxes, last, n);
        last = n;
    }
    return boxes;
}

/// One look at a slot, for a walk in which no box asks anything. False when nothing has moved.
bool Visit(Run& run, int slot) {
    const int found = Front[slot];
    if (Boxes[found].BoxMark == "OK") {
        RemoveFromFront(slot);
        return true;
    }
    if (found != 0) {
        const auto indent = static_cast<std::size_t>(std::max<int>(nestingDepth, 0)) * 3;
        if (!run.scriptText.ends_with("   ")) run.scriptText.append(indent, ' ');
        EmitBox(run, found, slot);
    }
    const Box& now = Boxes[Front[slot]];
    if (now.BoxMark != "OK") return false;
    for (int j = now.BoxType == "If" ? 3 : 1; j <= 5; ++j) {
        if (now.BoxOut[j] != 0) AddToFront(now.BoxOut[j]);
    }
    RemoveFromFront(slot);
    return true;
}

}  // namespace

const std::vector<Shape> shapes = {
    {"chain", Chain},
    {"fan", Fan},
    {"nested", Nested},
    {"pickups", Pickups},
};

void DrawOnNewSheet(const std::vector<Box>& boxes) {
    ResetApplication();
    NewDocument();
    for (const auto& box : boxes) {
        auto& control = Documents[1]->box.Load(NextBox);
        control.Left = box.BoxLeft;
        control.Top = box.BoxTop;
        Boxes[NextBox++] = box;
    }
}

WalkSize MeasureWalk() {
    ResetFront();
    Run run;
    run.Document = 1;
    WalkSize size;
    AddToFront(1);  // the one source of every shape
    int idlePasses = 0;
    for (; !IsFrontEmpty(); ++size.Passes) {
        const int bound = frontWidth;
        bool moved = false;
        for (int slot = 1; slot <= bound; ++slot) moved = Visit(run, slot) || moved;
        size.Visits += bound;
        idlePasses = moved ? 0 : idlePasses + 1;
        if (idlePasses > 4) throw std::logic_error("the walk stalls");
    }
    size.ScriptBytes = run.scriptText.size();
    ClearMarks();
    ResetFront();
    const auto script = CompileDocument(1, "1");
    if (script != run.scriptText) throw std::logic_error("the counting walk goes another way");
    return size;
}

const std::string& WorkFolder() {
    struct Folder {
        std::string Path;
        Folder() {
            namespace fs = std::filesystem;
            std::error_code error;
            const fs::path memory = "/dev/shm";
            const auto parent =
                fs::is_directory(memory, error) ? memory : fs::temp_directory_path();
            for (int i = 1; Path.empty(); ++i) {
                const auto folder = parent / ("quorvane_bench_" + NumberText(i));
                if (i > 10000)
                    throw std::runtime_error("no folder for files in " + parent.string());
                if (fs::create_directory(folder, error)) Path = folder.string();
            }
        }
        ~Folder() {
            std::error_code error;
            std::filesystem::remove_all(Path, error);
        }
        Folder(const Folder&) = delete;
        Folder& operator=(const Folder&) = delete;
    };
    static const Folder folder;
    return folder.Path;
}

}  // namespace quorvane::bench

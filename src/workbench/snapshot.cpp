// SPDX-License-Identifier: MIT
#include "workbench/snapshot.h"

#include <algorithm>
#include <iterator>

#include "diagram/placement.h"
#include "diagram/selection.h"
#include "files/document_file.h"
#include "platform/numbers.h"

namespace quorvane {

namespace {

std::size_t keptBytes = 0;

/// A part of a snapshot, which several may share. It counts as long as one has it.
template <class T>
std::shared_ptr<const T> Keep(T value, std::size_t bytes) {
    bytes += sizeof(T);
    keptBytes += bytes;
    return {new T(std::move(value)), [bytes](const T* part) {
                keptBytes -= bytes;
                delete part;
            }};
}

std::size_t TextBytes(const Box& box) {
    return box.BoxType.capacity() + box.BoxMark.capacity() + box.BoxText.capacity();
}

/// The same box to a user, whatever the generator has marked.
bool IsSameBox(const Box& a, const Box& b) {
    return a.BoxType == b.BoxType && a.BoxText == b.BoxText && a.BoxDocument == b.BoxDocument &&
           a.BoxIn == b.BoxIn && a.BoxOut == b.BoxOut && a.BoxLineColor == b.BoxLineColor &&
           a.BoxLeft == b.BoxLeft && a.BoxTop == b.BoxTop;
}

/// A shape or control as it lies on the sheet, or back in the window, by the sign of the scroll
/// position.
DrawnShape Moved(DrawnShape shape, double across, double down) {
    shape.X1 += across;
    shape.Y1 += down;
    if (shape.Shape == DrawnShape::Kind::Line) {
        shape.X2 += across;
        shape.Y2 += down;
    }
    return shape;
}

BoxControl Moved(BoxControl control, double across, double down) {
    control.Left += across;
    control.Top += down;
    return control;
}

using Controls = std::vector<SheetControl>;

SheetControl ControlOf(const Worksheet& window, int number) {
    return {number, Moved(window.box[number], window.scrH.Value, window.scrV.Value)};
}

/// All controls but that of an armed box: a load that was cut short leaves some behind the last
/// box.
bool IsKept(const Worksheet& window, int number, int nextBox) {
    const bool isArmed = number == nextBox && nextBox != NextBox &&
                         Boxes[number].BoxDocument == DocumentNumber(window);
    return window.box.Has(number) && !isArmed;
}

Controls ControlsOf(const Worksheet& window, int nextBox) {
    Controls controls;
    for (int i = 1; i < window.box.Size(); ++i) {
        if (IsKept(window, i, nextBox)) controls.push_back(ControlOf(window, i));
    }
    return controls;
}

bool AreControlsOf(const Worksheet& window, int nextBox, const Controls& controls) {
    std::size_t at = 0;
    for (int i = 1; i < window.box.Size(); ++i) {
        if (!IsKept(window, i, nextBox)) continue;
        if (at == controls.size() || !(controls[at] == ControlOf(window, i))) return false;
        ++at;
    }
    return at == controls.size();
}

using Block = std::vector<DrawnShape>;
constexpr std::size_t BlockSize = 96;

void UpdateSurface(DocumentSnapshot& document, const Worksheet& window) {
    const auto& shapes = window.Surface;
    auto& blocks = document.Surface;
    blocks.resize((shapes.size() + BlockSize - 1) / BlockSize);
    const auto onSheet = [&](const DrawnShape& shape) {
        return Moved(shape, window.scrH.Value, window.scrV.Value);
    };
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        const auto* first = shapes.data() + i * BlockSize;
        const auto* last = shapes.data() + std::min(shapes.size(), (i + 1) * BlockSize);
        const bool isSame =
            blocks[i] &&
            std::equal(first, last, blocks[i]->begin(), blocks[i]->end(),
                       [&](const auto& shape, const auto& kept) { return onSheet(shape) == kept; });
        if (isSame) continue;
        Block block;
        block.reserve(static_cast<std::size_t>(last - first));
        std::transform(first, last, std::back_inserter(block), onSheet);
        const auto bytes = block.capacity() * sizeof(DrawnShape);
        blocks[i] = Keep(std::move(block), bytes);
    }
}

WorksheetSettings SettingsOf(const Worksheet& window) {
    return {.AcrossValue = window.scrH.Value,
            .AcrossMax = window.scrH.Max,
            .DownValue = window.scrV.Value,
            .DownMax = window.scrV.Max,
            .DrawWidth = window.DrawWidth,
            .MultipleArrows = window.mnuMultipleArrows.Checked,
            .Bubbles = window.mnuOptionsBubbleShow.Checked};
}

void GiveSettings(Worksheet& window, const WorksheetSettings& settings) {
    window.scrH.Max = settings.AcrossMax;
    window.scrH.Value = settings.AcrossValue;
    window.scrV.Max = settings.DownMax;
    window.scrV.Value = settings.DownValue;
    window.DrawWidth = settings.DrawWidth;
    window.mnuMultipleArrows.Checked = settings.MultipleArrows;
    window.pnlArrow.HoldsArrow = settings.MultipleArrows;
    window.mnuOptionsBubbleShow.Checked = settings.Bubbles;
}

bool HasWindow(int document) {
    return document <= Documents.UpperBound() && Documents[document] != nullptr;
}

void UpdateStoredText(DocumentSnapshot& document, int number) {
    const int stored = DocumentStates[number].Stored;
    if (document.HasWindow && document.State.Stored == stored) return;
    auto text = stored > 0 ? DocumentText(static_cast<std::int16_t>(number)) : "";
    const auto bytes = text.capacity();
    document.StoredText = Keep(std::move(text), bytes);
    document.State.Stored = stored;
}

void UpdateDocument(DocumentSnapshot& document, int number, int nextBox) {
    const auto& state = DocumentStates[number];
    if (!HasWindow(number)) {
        document = {};
        document.State = state;
        return;
    }
    const auto& window = *Documents[number];
    UpdateStoredText(document, number);
    document.HasWindow = true;
    document.State = state;
    if (document.Caption != window.Caption) document.Caption = window.Caption;
    document.LineColor = window.pnlArrow.BackColor;
    document.Settings = SettingsOf(window);
    if (!document.Controls || !AreControlsOf(window, nextBox, *document.Controls)) {
        auto controls = ControlsOf(window, nextBox);
        const auto bytes = controls.capacity() * sizeof(SheetControl);
        document.Controls = Keep(std::move(controls), bytes);
    }
    UpdateSurface(document, window);
}

void RestoreBoxes(const Snapshot& snapshot) {
    const int end = std::max<int>(NextBox, snapshot.NextBox);
    for (int i = 1; i < std::min(end, MaxBoxes + 1); ++i) {
        if (i < static_cast<int>(snapshot.Boxes.size())) {
            Boxes[i] = *snapshot.Boxes[static_cast<std::size_t>(i)];
        } else {
            FreeRecord(Boxes[i]);
        }
    }
    NextBox = snapshot.NextBox;
}

void RestoreControls(Worksheet& window, const Controls& controls) {
    std::vector<bool> wanted(static_cast<std::size_t>(MaxBoxes) + 1);
    for (const auto& [number, control] : controls) {
        wanted[static_cast<std::size_t>(number)] = true;
        if (!window.box.Has(number)) window.box.Load(number);
        window.box[number] = Moved(control, -window.scrH.Value, -window.scrV.Value);
    }
    for (int i = 1; i < window.box.Size(); ++i) {
        const bool stays = i <= MaxBoxes && wanted[static_cast<std::size_t>(i)];
        if (!stays && window.box.Has(i)) window.box.Unload(i);
    }
}

void RestoreWindow(const DocumentSnapshot& document, int number) {
    if (!HasWindow(number)) {
        OpenWindow(static_cast<std::int16_t>(number));
        GiveSettings(*Documents[number], document.Settings);
    }
    auto& window = *Documents[number];
    window.Caption = document.Caption;
    window.pnlArrow.BackColor = document.LineColor;
    RestoreControls(window, *document.Controls);
    window.Surface.clear();
    for (const auto& block : document.Surface) {
        for (const auto& shape : *block) {
            window.Surface.push_back(Moved(shape, -window.scrH.Value, -window.scrV.Value));
        }
    }
    window.shpCopy = {};
    window.txtboxname.Visible = false;
}

/// Files on disk are not part of a snapshot: a worksheet keeps its name and what is stored of it.
void KeepFiles(DocumentSnapshot& document, const DocumentSnapshot& present) {
    if (!document.HasWindow || !present.HasWindow) return;
    document.Caption = present.Caption;
    document.StoredText = present.StoredText;
    document.State.Stored = present.State.Stored;
    document.State.SaveFailed = present.State.SaveFailed;
}

void RestoreDocuments(Snapshot& snapshot, const Snapshot& present) {
    const int last = static_cast<int>(snapshot.Documents.size()) - 1;
    Documents.Resize(last);
    DocumentStates.Resize(last);
    for (int i = 1; i <= last; ++i) {
        auto& document = snapshot.Documents[static_cast<std::size_t>(i)];
        if (i < static_cast<int>(present.Documents.size())) {
            KeepFiles(document, present.Documents[static_cast<std::size_t>(i)]);
        }
        if (document.HasWindow) {
            RestoreWindow(document, i);
            const bool stored = DocumentText(static_cast<std::int16_t>(i)) == *document.StoredText;
            document.State.Modified = static_cast<std::int16_t>(stored ? 0 : -1);
        } else {
            Documents[i].reset();
        }
        DocumentStates[i] = document.State;
    }
}

}  // namespace

bool IsDiagramOf(const Snapshot& snapshot, int nextBox) {
    if (snapshot.NextBox != nextBox) return false;
    for (int i = 1; i < nextBox; ++i) {
        if (!IsSameBox(*snapshot.Boxes[static_cast<std::size_t>(i)], Boxes[i])) return false;
    }
    const int last =
        std::max(Documents.UpperBound(), static_cast<int>(snapshot.Documents.size()) - 1);
    for (int i = 1; i <= last; ++i) {
        static const DocumentSnapshot none;
        const bool known = i < static_cast<int>(snapshot.Documents.size());
        const auto& document = known ? snapshot.Documents[static_cast<std::size_t>(i)] : none;
        if (document.HasWindow != HasWindow(i)) return false;
        if (HasWindow(i) && document.LineColor != Documents[i]->pnlArrow.BackColor) return false;
    }
    return true;
}

void UpdateSnapshot(Snapshot& snapshot, int nextBox) {
    snapshot.NextBox = static_cast<std::int16_t>(nextBox);
    snapshot.Boxes.resize(static_cast<std::size_t>(std::max(nextBox, 1)));
    for (int i = 1; i < nextBox; ++i) {
        auto& box = snapshot.Boxes[static_cast<std::size_t>(i)];
        if (!box || !(*box == Boxes[i])) box = Keep(Box(Boxes[i]), TextBytes(Boxes[i]));
    }
    snapshot.Documents.resize(static_cast<std::size_t>(Documents.UpperBound()) + 1);
    for (int i = 1; i <= Documents.UpperBound(); ++i) {
        UpdateDocument(snapshot.Documents[static_cast<std::size_t>(i)], i, nextBox);
    }
}

void UpdateStoredTexts(Snapshot& snapshot) {
    for (int i = 1; i < static_cast<int>(snapshot.Documents.size()); ++i) {
        auto& document = snapshot.Documents[static_cast<std::size_t>(i)];
        if (document.HasWindow && HasWindow(i)) UpdateStoredText(document, i);
    }
}

void RestoreSnapshot(Snapshot& snapshot, const Snapshot& present) {
    RestoreBoxes(snapshot);
    RestoreDocuments(snapshot, present);
    EditMode = 1;
    SelectedBoxes.Resize(0);
    SetPointerAll(PointerDefault);
    UpdateBoxGauge(BoxTableFill());
}

std::size_t SnapshotBytes() { return keptBytes; }

}  // namespace quorvane

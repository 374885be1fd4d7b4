// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "diagram/box_table.h"
#include "generator/link_door.h"
#include "platform/runtime_error.h"

namespace quorvane {

enum class BoxRun { None, Running, Done, Failed };

/// What the last run left at a box.
struct BoxReport {
    BoxRun State = BoxRun::None;
    std::string Message;  ///< Why it failed, in one line
    std::string Value;    ///< Class, size, range and first elements of its variable, or ""
    /// Up to 64 points of a real vector, from 0 for the lowest to 89, NaN where it isn't finite.
    std::vector<double> Points;
};

/// A box as it was in a run.
struct BoxAsRun {
    std::uint32_t Id = 0;  ///< 0 for no box
    std::string Type;
    std::string Text;
    CheckedArray<std::int16_t, 1, 3> In;
};

/// One for each box, from 1 on. There are none before the first is asked for, so that a program
/// that never runs anything starts without them. An index outside raises error 9.
template <class T>
class OneForEachBox {
public:
    T& operator[](int box) {
        if (box < 1 || box > MaxBoxes) throw RuntimeError(9);
        if (all_.empty()) all_.resize(MaxBoxes);
        return all_[static_cast<std::size_t>(box - 1)];
    }
    auto begin() const { return all_.begin(); }
    auto end() const { return all_.end(); }

private:
    std::vector<T> all_;
};

/// What the last run into MATLAB left, written by the link. A script of several boxes, which is a
/// block, is run when its last box has been sent.
struct LinkReport {
    bool wantsValues = false;  ///< Values are asked for. The frame sets it; a run leaves it
    int Box = 0;               ///< The box that was sent last in a run that goes on, 0 for none
    int Sent = 0;              ///< How many boxes have been sent
    int Total = 0;             ///< How many boxes the document has that are run
    int Runs = 0;              ///< How many runs have begun
    /// By the numbers that the boxes had in the run; ReportOf (workbench/run_report.h) follows them
    /// to those of today.
    OneForEachBox<BoxReport> Of;
    OneForEachBox<BoxAsRun> Ran;
};
extern LinkReport linkReport;

/// A run of so many boxes starts: all that the last one left is cleared.
void BeginReport(int total);
/// The boxes of these lines have been sent.
void ReportSent(const LineBoxes& lines);
/// A script of these lines starts.
void ReportRunning(const LineBoxes& lines);
/// It has ended. When it failed in a box, the boxes before that one are done and those behind it
/// were not reached; `failed` is 0 otherwise. A script that was `stopped` leaves nothing done.
void ReportEnd(const LineBoxes& lines, std::int16_t failed, bool stopped);
void ReportFailure(std::int16_t box, std::string_view message);
/// Takes the text of a value as the engine tells it: the box, ":", the value, a line end, and a
/// letter for each point, "!" for 0 and a blank for NaN.
void ReportValue(const std::string& told);

void ResetReport();

}  // namespace quorvane

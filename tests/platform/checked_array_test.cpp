// SPDX-License-Identifier: MIT
#include "platform/checked_array.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "platform/controls.h"
#include "platform/paths.h"
#include "platform/raised_error.h"

using namespace quorvane;
using quorvane::testing::RaisedError;

namespace {

TEST(CheckedArrays, FixedBounds) {
    CheckedArray<int, 1, 3> slots;
    slots[1] = 4;
    slots[3] = 6;
    EXPECT_EQ(slots[1] + slots[2] + slots[3], 10);
    const auto& readOnly = slots;
    for (const int index : {-1, 0, 4, 32767}) {
        SCOPED_TRACE(index);
        EXPECT_EQ(RaisedError([&] { slots[index] = 1; }), 9);
        EXPECT_EQ(RaisedError([&] { static_cast<void>(readOnly[index]); }), 9);
    }
}

TEST(CheckedArrays, GrowingKeepsTheContents) {
    GrowableArray<std::string> names;
    EXPECT_EQ(names.UpperBound(), 0);
    names[0] = "none";
    EXPECT_EQ(RaisedError([&] { names[1] = ""; }), 9);
    EXPECT_EQ(RaisedError([&] { names[-1] = ""; }), 9);
    names.Append("a");
    names.Resize(3);
    EXPECT_EQ(names[0] + names[1] + names[2] + names[3], "nonea");
    names.Resize(1);
    EXPECT_EQ(names[1], "a");
    EXPECT_EQ(RaisedError([&] { names[2] = ""; }), 9);
    EXPECT_EQ(RaisedError([&] { names.Resize(-1); }), 9);
    EXPECT_EQ(names.UpperBound(), 1);
}

TEST(ControlArrays, ElementsAreLoadedOneByOne) {
    ControlArray<Label> labels;
    const auto& readOnly = labels;
    EXPECT_EQ(RaisedError([&] { labels[0].Caption = ""; }), 340);
    EXPECT_EQ(RaisedError([&] { labels.Unload(0); }), 340);
    EXPECT_EQ(RaisedError([&] { labels.Load(-1); }), 340);
    auto& third = labels.Load(3);
    third.Caption = "three";
    labels.Load(300);
    EXPECT_EQ(&labels[3], &third) << "growing moved an element";
    EXPECT_EQ(readOnly[3].Caption, "three");
    EXPECT_EQ(RaisedError([&] { labels.Load(3); }), 360);
    EXPECT_EQ(labels[3].Caption, "three");
    for (const int index : {-1, 0, 2, 4, 299, 301, 32767}) {
        SCOPED_TRACE(index);
        EXPECT_FALSE(labels.Has(index));
        EXPECT_EQ(RaisedError([&] { static_cast<void>(readOnly[index]); }), 340);
        EXPECT_EQ(RaisedError([&] { labels.Unload(index); }), 340);
    }
    labels.Unload(3);
    EXPECT_FALSE(labels.Has(3));
    EXPECT_EQ(labels.Load(3).Caption, "");
}

TEST(ErrorPolicies, OnlyARuntimeErrorIsDropped) {
    const auto fail = [] { throw RuntimeError(13); };
    EXPECT_FALSE(Attempt(fail));
    EXPECT_EQ(RaisedError([&] { Attempt(ErrorPolicy::Fatal, fail); }), 13);
    EXPECT_EQ(AttemptValue(ErrorPolicy::Ignore, 7, []() -> int { throw RuntimeError(6); }), 7);
    EXPECT_EQ(AttemptValue(ErrorPolicy::Ignore, 7, [] { return 8; }), 8);
    EXPECT_THROW(Attempt([] { throw std::logic_error("a fault"); }), std::logic_error);
    EXPECT_EQ(RuntimeError(340).Description, "Control array element doesn't exist");
}

TEST(Paths, BothSeparatorsPartAPath) {
    struct Row {
        const char *Path, *Folder, *Name;
    };
    const Row rows[] = {
        {"a.qvm", "", "a.qvm"},
        {"/x/y/a.qvm", "/x/y", "a.qvm"},
        {"C:\\x\\a.qvm", "C:\\x", "a.qvm"},
        {"/x\\y/a.qvm", "/x\\y", "a.qvm"},
        {"/x/y\\a.qvm", "/x/y", "a.qvm"},
        {"/a.qvm", "", "a.qvm"},
        {"/x/", "/x", ""},
        {"", "", ""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(FolderOf(row.Path), row.Folder) << row.Path;
        EXPECT_EQ(FileNameOf(row.Path), row.Name) << row.Path;
    }
    EXPECT_EQ(RaisedError([] { ChangeDirectory("/no/such/folder"); }), 76);
}

}  // namespace

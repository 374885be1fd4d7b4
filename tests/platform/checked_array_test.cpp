// SPDX-License-Identifier: MIT
#include "platform/checked_array.h"

#include <gtest/gtest.h>

#include <utility>

#include "platform/controls.h"
#include "platform/paths.h"
#include "platform/raised_error.h"
#include "support/table_file.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

template <class Array>
int ErrorAt(Array& array, int index) {
    return RaisedError([&] { static_cast<void>(array[index]); });
}

TEST(CheckedArrays, AnIndexOutsideRaises9) {
    CheckedArray<int, 1, 3> slots;
    GrowableArray<std::string> names;
    names.Append("a");
    names.Resize(3);
    names.Resize(1);
    EXPECT_EQ(names[1], "a");
    EXPECT_EQ(RaisedError([&] { names.Resize(-1); }), 9);
    for (const int index : {-1, 0, 2, 4, 32767}) {
        const bool inside = index == 2, named = index == 0;
        EXPECT_EQ(ErrorAt(slots, index), inside ? 0 : 9) << index;
        EXPECT_EQ(ErrorAt(std::as_const(slots), index), inside ? 0 : 9) << index;
        EXPECT_EQ(ErrorAt(names, index), named ? 0 : 9) << index;
    }
}

TEST(ControlArrays, ElementsAreLoadedOneByOne) {
    ControlArray<Label> labels;
    auto& third = labels.Load(3);
    third.Caption = "three";
    labels.Load(300);
    EXPECT_EQ(&std::as_const(labels)[3], &third) << "growing moved an element";
    EXPECT_EQ(RaisedError([&] { labels.Load(3); }), 360);
    EXPECT_EQ(RaisedError([&] { labels.Load(-1); }), 340);
    for (const int index : {-1, 0, 2, 4, 299, 301, 32767}) {
        EXPECT_EQ(ErrorAt(labels, index), 340) << index;
        EXPECT_EQ(ErrorAt(std::as_const(labels), index), 340) << index;
        EXPECT_EQ(RaisedError([&] { labels.Unload(index); }), 340) << index;
    }
    labels.Unload(3);
    EXPECT_FALSE(labels.Has(3));
    EXPECT_EQ(labels.Load(3).Caption, "");
}

TEST(ErrorPolicies, OnlyARuntimeErrorIsDropped) {
    const auto fail = []() -> int { throw RuntimeError(13); };
    EXPECT_FALSE(Attempt(fail));
    EXPECT_EQ(RaisedError([&] { Attempt(ErrorPolicy::Fatal, fail); }), 13);
    EXPECT_EQ(AttemptValue(ErrorPolicy::Ignore, 7, fail), 7);
    EXPECT_EQ(AttemptValue(ErrorPolicy::Ignore, 7, [] { return 8; }), 8);
    EXPECT_THROW(Attempt([] { throw std::logic_error("a fault"); }), std::logic_error);
    EXPECT_EQ(RuntimeError(340).Description, "Control array element doesn't exist");
}

TEST(Paths, BothSeparatorsPartAPath) {
    for (const auto& row : ReadTable("platform/paths.tsv")) {
        EXPECT_EQ(FolderOf(row[0]), row[1]) << row.back();
        EXPECT_EQ(FileNameOf(row[0]), row[2]) << row.back();
    }
    EXPECT_EQ(RaisedError([] { ChangeDirectory("/no/such/folder"); }), 76);
}

}  // namespace

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "diagram/box_info.h"
#include "diagram/box_table.h"
#include "diagram/worksheet.h"
#include "platform/desktop.h"

namespace quorvane::testing {

using Reals = std::vector<double>;

/// What stands behind a word of a table: numbers, then text. A number that is left out is 1.
struct Arguments {
    Reals Given;
    std::string Text;

    double X(std::size_t i) const { return i < Given.size() ? Given[i] : 1; }
    int operator[](std::size_t i) const { return static_cast<int>(X(i)); }
};
using A = const Arguments&;

/// A word of the tables: a step, or a value to be seen and perhaps set.
struct Word {
    std::function<void(A)> Do;
    std::function<std::string(A)> See;
    std::function<void(A, const std::string&)> Set;
};
using Words = std::map<std::string, Word>;

template <class T>
std::string Show(const T& value);
inline std::string Show(const std::string& text) { return text; }
/// What is hidden has "-" behind it.
inline std::string Show(const Label& label) { return label.Caption + (label.Visible ? "" : "-"); }
inline std::string Show(const CheckBox& box) { return Show(box.Value) + (box.Visible ? "" : "-"); }
inline std::string Show(const Area& a) { return Show(Reals{a.Left, a.Top, a.Width, a.Height}); }
inline std::string Show(const RectangleShape& r) {
    return Show(Reals{r.Left, r.Top, r.Width, r.Height}) + (r.Visible ? "" : "-");
}
inline std::string Show(const Bubble& b) {
    return b.Caption + (b.Visible ? " at " + Show(Reals{b.Left, b.Top}) : "-");
}
inline std::string Show(const BoxControl& c) {
    return Show(Reals{c.Left, c.Top}) + (c.Visible ? "" : "-");
}
inline std::string Show(const DrawnShape& s) {
    const auto color = Show(s.Color) + (s.Width == 1 ? "" : "w" + Show(s.Width));
    if (s.Shape == DrawnShape::Kind::Line) return color + ":" + Show(Reals{s.X1, s.Y1, s.X2, s.Y2});
    return color + "<" + Show(Reals{s.X1, s.Y1, s.Radius, s.StartAngle, s.EndAngle});
}
inline std::string Show(const Message& m) {
    return std::string("-i?!x").substr(static_cast<std::size_t>(m.Picture), 1) +
           (m.Choice == Buttons::Ok ? "" : " asks") + " " + m.Title + ": " + m.Text;
}
/// The numbers of a control array's elements, without element 0.
inline std::string Show(const ControlArray<BoxControl>& box) {
    std::string text;
    for (int i = 1; i < box.Size(); ++i) {
        if (box.Has(i)) text += (text.empty() ? "" : " ") + Show(i) + (box[i].Visible ? "" : "-");
    }
    return text;
}
/// A whole record.
inline std::string Show(const Box& b) {
    return b.BoxType + "/" + b.BoxText + "/" + b.BoxMark + "/" + Show(b.BoxDocument) + "/" +
           Show(b.BoxIn) + "/" + Show(b.BoxOut) + "/" + Show(b.BoxLineColor) + "/" +
           Show(Reals{double(b.BoxLeft), double(b.BoxTop)});
}

template <class T>
std::string Show(const T& value) {
    if constexpr (std::is_arithmetic_v<T>) {
        return (std::ostringstream() << value).str();
    } else {
        std::string text;
        for (const auto& element : value) text += (text.empty() ? "" : " ") + Show(element);
        return text;
    }
}

inline void Read(std::istream& in, std::string& text) { std::getline(in, text); }
inline void Read(std::istream& in, CheckBox& box) { in >> box.Value; }
inline void Read(std::istream& in, RectangleShape& r) {
    in >> r.Left >> r.Top >> r.Width >> r.Height;
    r.Visible = true;
}
inline void Read(std::istream& in, BoxControl& c) { in >> c.Left >> c.Top; }
template <class T>
void Read(std::istream& in, T& value) {
    if constexpr (std::is_arithmetic_v<T>) {
        in >> value;
    } else {
        for (auto& element : value) Read(in, element);
    }
}

inline Word Step(std::function<void(A)> step) { return {std::move(step), {}, {}}; }
template <class Access>
Word Seen(Access access) {
    return {{}, [access](A a) { return Show(access(a)); }, {}};
}
template <class Access>
Word Value(Access access) {
    auto word = Seen(access);
    word.Set = [access](A a, const std::string& text) {
        std::istringstream in(text);
        Read(in, access(a));
        if (!in && !text.empty()) throw std::invalid_argument("no such value");
    };
    return word;
}
template <class T>
Word Global(T& variable) {
    return Value([&variable](A) -> auto& { return variable; });
}
/// A field of the record whose number is given.
template <class Field>
Word OfBox(Field Box::*field) {
    return Value([field](A a) -> auto& { return Boxes[a[0]].*field; });
}
template <class Field>
Word OfState(Field DocumentState::*field) {
    return Value([field](A a) -> auto& { return DocumentStates[a[0]].*field; });
}
/// A field of the worksheet whose document is given, or of a control there.
template <class Field>
Word OfSheet(Field Worksheet::*field) {
    return Value([field](A a) -> auto& { return (*Documents[a[0]]).*field; });
}
template <class Control, class Field>
Word OfSheet(Control Worksheet::*control, Field field) {
    return Value([=](A a) -> auto& { return (*Documents[a[0]]).*control.*field; });
}
/// A field of the box control whose number and document are given.
template <class Field>
Word OfControl(Field BoxControl::*field) {
    return Value([field](A a) -> auto& { return Documents[a[1]]->box[a[0]].*field; });
}

}  // namespace quorvane::testing

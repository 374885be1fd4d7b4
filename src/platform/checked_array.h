// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "platform/runtime_error.h"

namespace quorvane {

/// A fixed array whose indices run from Low to High. An index outside raises error 9.
template <class T, int Low, int High>
class CheckedArray {
public:
    static constexpr int LowerBound = Low;
    static constexpr int UpperBound = High;

    T& operator[](int index) { return elements_[Offset(index)]; }
    const T& operator[](int index) const { return elements_[Offset(index)]; }
    void Fill(const T& value) { elements_.fill(value); }
    auto begin() { return elements_.begin(); }
    auto end() { return elements_.end(); }
    auto begin() const { return elements_.begin(); }
    auto end() const { return elements_.end(); }

    friend bool operator==(const CheckedArray&, const CheckedArray&) = default;

private:
    static std::size_t Offset(int index) {
        if (index < Low || index > High) Raise(9);
        return static_cast<std::size_t>(index - Low);
    }

    std::array<T, High - Low + 1> elements_{};
};

/// An array from 0 to UpperBound() that can grow. An index outside raises error 9.
template <class T>
class GrowableArray {
public:
    explicit GrowableArray(int upperBound = 0) { Resize(upperBound); }

    int UpperBound() const { return static_cast<int>(elements_.size()) - 1; }
    /// Sets a new upper bound, 0 or more, and keeps what lies below it. Error 9 for a negative one.
    void Resize(int upperBound) {
        if (upperBound < 0) Raise(9);
        elements_.resize(static_cast<std::size_t>(upperBound) + 1);
    }
    void Append(T value) { elements_.push_back(std::move(value)); }

    T& operator[](int index) { return elements_[Offset(index)]; }
    const T& operator[](int index) const { return elements_[Offset(index)]; }
    T* Data() { return elements_.data(); }
    const T* Data() const { return elements_.data(); }

private:
    std::size_t Offset(int index) const {
        if (index < 0 || index > UpperBound()) Raise(9);
        return static_cast<std::size_t>(index);
    }

    std::vector<T> elements_;
};

/// The elements of a control array, which are loaded and unloaded one by one. Reading or unloading
/// an element that is not there raises error 340, loading one that is there error 360. An element
/// keeps its place in memory until it is unloaded.
template <class Control>
class ControlArray {
public:
    bool Has(int index) const { return index >= 0 && index < Size() && Element(index).has_value(); }
    Control& Load(int index) {
        if (index < 0) Raise(340);
        if (Has(index)) Raise(360);
        while (index >= BlockSize * static_cast<int>(blocks_.size())) {
            blocks_.push_back(std::make_unique<Block>());
        }
        if (index >= size_) size_ = index + 1;
        return Element(index).emplace();
    }
    void Unload(int index) {
        if (!Has(index)) Raise(340);
        Element(index).reset();
    }
    Control& operator[](int index) {
        if (!Has(index)) Raise(340);
        return *Element(index);
    }
    const Control& operator[](int index) const {
        if (!Has(index)) Raise(340);
        return *Element(index);
    }
    /// One more than the highest index that was ever loaded.
    int Size() const { return size_; }
    void Clear() {
        blocks_.clear();
        size_ = 0;
    }

private:
    static constexpr int BlockSize = 16;
    using Block = std::array<std::optional<Control>, BlockSize>;

    std::optional<Control>& Element(int index) const {
        const auto at = static_cast<std::size_t>(index);
        return (*blocks_[at / BlockSize])[at % BlockSize];
    }

    std::vector<std::unique_ptr<Block>> blocks_;
    int size_ = 0;
};

}  // namespace quorvane

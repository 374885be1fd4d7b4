// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <span>

#include "picture.h"

class QWidget;

namespace quorvane {

/// Where the program of the pictures finds and puts its things.
struct Stage {
    QString Sources;  ///< The root of the sources
    /// The user's home, which is made anew. It has the same name each time, since pictures show it.
    QString Home = "/tmp/quorvane";
    QString Octave;  ///< "" when there is no engine that can draw
};
extern Stage stage;

/// Does what the pictures say, by mouse and keys, and calls `keep` when one can be taken. A step
/// that can't be done ends the program with one line that tells which.
void PlayPictures(std::span<const Picture> pictures,
                  const std::function<void(const Picture&)>& keep);

/// The window or control of this name that shows, nullptr without one.
QWidget* Seek(const QString& name);

/// Says why, and ends the program.
[[noreturn]] void Fail(const QString& text);

}  // namespace quorvane

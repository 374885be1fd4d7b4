// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>
#include <span>
#include <vector>

namespace quorvane {

/// One picture: what the user does after the picture before it, and what of the screen is kept.
struct Picture {
    /// The file below the root of the sources, or the window's name on the contact sheet.
    const char* Name;
    /// Of the frame with its title, in logical pixels; an empty one leaves the frame as it is.
    QSize Size;
    /// The window that fills the picture, and those that lie on it, parted by blanks; beside names
    /// of windows "menus", "tip", "pointer" and "figure".
    const char* Windows;
    /// In the words of player.cpp, each on its own: "click cmdOK".
    std::vector<const char*> Steps;
    bool NeedsEngine = false;
};

/// The first hour and the manual's windows, at their own size; and the pictures that stand alone,
/// at double scale.
std::span<const Picture> StoryPictures();
std::span<const Picture> ManualPictures();
std::span<const Picture> CoverPictures();
/// Every window of the program.
std::span<const Picture> AllWindows();

}  // namespace quorvane

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/file_table.h"

namespace quorvane {

/// The filter of the dialogs that load and save a diagram.
extern const char* const DocumentFilter;

/// How the last load ended. A load reports by messages; this is for a caller that can't show them.
struct LoadOutcome {
    int Document = 0;  ///< The new document
    bool Opened = false;
    bool HasCount = false;     ///< It begins with a number of boxes, as every diagram does
    bool Finished = false;     ///< It was read to its end: neither refused nor cut short
    bool EndsEarly = false;    ///< It ends between two boxes
    bool ReadPastEnd = false;  ///< A line was asked for after the end of the file
};
extern LoadOutcome lastLoad;

/// Makes a document and its window, captioned "Untitled:" and its number. Returns the number.
std::int16_t NewDocument();

/// Makes the window of a document that has none, and brings its menus in line with the frame's.
void OpenWindow(std::int16_t document);

/// Loads a diagram; its boxes come after those in the table. An empty name asks the user for a
/// file; of any other only the last component counts, which is looked for in the current folder.
void LoadDocument(const std::string& name);

/// Gives the file at `path` a number to read it by.
using OpenForLoad = std::function<void(int number, const std::string& path)>;

/// Loads the file at `path` into a new document. The caption becomes the path.
void LoadDocumentFile(const std::string& path, const OpenForLoad& open = OpenForInput);

/// Saves a document, 1 under its name or 2 under a name that the user gives. A document whose
/// caption begins with "Untitled" is always asked for.
void SaveDocument(std::int16_t document, std::int16_t mode);

/// What a saved file of this document holds, without the empty line at its end.
std::string DocumentText(std::int16_t document);

void ResetDocumentFile();

/// Numbers boxes by their first mention while saving; 0 and below stay as they are.
std::int16_t MapBoxNumber(std::int16_t tableIndex);

/// The position, from 1, of the first "~", or one past the end of a text without one.
std::size_t FindFieldEnd(std::string_view text);

}  // namespace quorvane

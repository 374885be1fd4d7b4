// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// Files are opened and used by number, 1 to 511. Lines end in CR LF when written; CR LF, LF or CR
/// ends a line when read. A number that is open, or a path that is open for the other use, raises
/// error 55; a number that is not open for the use asked for raises error 52 or 54.

/// A line longer than this many bytes raises error 14, so that no file can fill the memory.
constexpr std::size_t MaxLineLength = 1024 * 1024;

/// The lowest number that is not open; error 67 when all are.
int FreeFile();

/// Error 53 when there is no such file, 75 when it can't be read or is no plain file.
void OpenForInput(int number, const std::string& path);
bool EndOfFile(int number);
/// The next line without its end; error 62 at the end of the file. The text stays valid until the
/// next read from any file.
std::string_view LineInput(int number);
/// As LineInput, but a comma ends the read, too, and is taken with it. Blanks and quotation marks
/// are text like any other.
std::string_view InputField(int number);

/// Opens a file that will replace the one at `path`. What is printed goes to a new file beside it,
/// which takes its place when it is closed: a full disk or a kill leaves the old file whole.
/// Error 75 when the folder can't be written.
void OpenForOutput(int number, const std::string& path);
/// Writes text as it stands; error 61 when the disk is full. After a failure the file is given up:
/// the old one stays.
void Print(int number, std::string_view text);
/// Closes a file; nothing happens for a number that is not open. Error 61 or 75 when the new file
/// can't take the old one's place.
void CloseFile(int number);
void CloseAllFiles();

}  // namespace quorvane

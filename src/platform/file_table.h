// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// Files are read by number, 1 to 511, and written as a whole. Lines end in CR LF when written;
/// CR LF, LF or CR ends a line when read. A number that is open raises error 55, one that is not
/// open, or none at all, error 52.

/// From here on standard input, output and error carry bytes as they are. Windows would turn line
/// ends into its own and back.
void KeepStandardBytes();

/// A line longer than this many bytes raises error 14, so that no file can fill the memory.
constexpr std::size_t MaxLineLength = 1024 * 1024;

/// The lowest number that is not open; error 67 when all are.
int FreeFile();

/// Error 53 when there is no such file, 75 when it can't be read or is no plain file.
void OpenForInput(int number, const std::string& path);
/// Reads standard input; closing the number leaves it open.
void OpenStandardInput(int number);
/// Reads a text as if it were a file.
void OpenText(int number, std::string_view text);
bool EndOfFile(int number);
/// The next line without its end; error 62 at the end of the file. The text stays valid until the
/// next read from any file.
std::string_view LineInput(int number);
/// As LineInput, but a comma ends the read too and is skipped. Blanks and quotation marks are text
/// like any other.
std::string_view InputField(int number);
/// True when a comma ended the last read: the next one continues in the same line.
bool LineGoesOn(int number);

/// Nothing happens for a number that is not open.
void CloseFile(int number);
void CloseAllFiles();

/// Replaces the file at `path` by one with this text. The text goes to a new file beside it, which
/// replaces it once everything is stored: a full disk or a kill leaves the old file whole, and a
/// reader keeps reading the old one. A device or a pipe is written to. Error 75 when the file or
/// its folder can't be written, 61 when the disk is full, 57 for any other failure. With Unsynced
/// it doesn't wait for the disk: the file outlives this process, but maybe not a loss of power.
void ReplaceFile(const std::string& path, std::string_view text, bool synced = true);
constexpr bool Unsynced = false;

}  // namespace quorvane

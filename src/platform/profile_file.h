// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// Values in a file of sections, "[name]", and lines "key=value". The case of the letters counts
/// neither in the names of sections and keys nor in that of the file.

/// The first value of this key in the section, without the blanks around it; `defaultText` when
/// there is none or the file can't be read. A file above 16 MB counts as unreadable.
std::string GetPrivateProfileString(std::string_view section, std::string_view key,
                                    const std::string& defaultText, const std::string& file);

/// Stores a value: in place of the one that is there, else after the last key of the section. A
/// missing section is added at the end, a missing file is made. All other lines stay as they are,
/// but for their ends, which become CR LF. The value goes up to the first line end or NUL in it.
/// What can't be written is not reported; the old file then stays.
void WritePrivateProfileString(std::string_view section, std::string_view key,
                               std::string_view value, const std::string& file);

}  // namespace quorvane

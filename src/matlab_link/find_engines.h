// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/desktop.h"

namespace quorvane {

/// The programs in "bin" of an engine's folder; the first one that is there is started.
extern const std::vector<std::string> enginePrograms;

/// A folder that has MATLAB or Octave in its "bin".
struct FoundEngine {
    std::string Folder;
    std::string Name;  ///< With the version, as far as the folders tell it: "Octave 7.3"
};

/// The engine in a folder; its name is "" where there is none.
FoundEngine EngineIn(const std::string& folder);

/// The engines in these places, each once. Only folders are looked at, nothing is started.
std::vector<FoundEngine> FindEngines(const ProgramPlaces& places);

}  // namespace quorvane

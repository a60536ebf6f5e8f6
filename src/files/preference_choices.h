// The rules of the preferences dialog's OK: which of the chosen settings are stored.
#pragma once

#include <string>
#include <vector>

#include "files/preferences.h"

namespace flexley {

inline constexpr const char* kBeamDefinitionFileMissing =
    "Specified beam definition file does not exist.";
inline constexpr const char* kWorkingFilesPathMissing =
    "Specified working files path does not exist.";

// Stores each of the chosen settings into `stored` on its own: a beam definition path that names
// no file, or a working files path that names no folder, is refused and keeps its old value
// without holding back the others. An empty working files path is stored, as it means none.
// Paths are kept exactly as typed, since the file system tells case apart. Returns the messages
// of the refused settings, in the order the dialog shows them.
std::vector<std::string> apply_preference_choices(Preferences& stored, const Preferences& chosen);

}  // namespace flexley

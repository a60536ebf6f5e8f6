// The settings kept beside beams.prf in a file of their own, so that beams.prf keeps its one-line
// layout: the recently used load files and the integration method.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/beam_model.h"
#include "model/status.h"

namespace flexley {

inline constexpr const char* kExtraPreferencesFileName = "flexley.prf";

struct ExtraPreferences {
    IntegrationMethod integration_method = IntegrationMethod::exact;
    std::vector<std::string> recent_files;  // newest first, at most kMaxRecentFiles
};

// One keyed line per setting ("integration","exact" and "recent","/path/beam.lod"), CRLF ended.
// A path holding a double quote or a line break cannot be written in this syntax and is left out.
std::string extra_preferences_text(const ExtraPreferences& preferences);

// Lines that cannot be read, unknown keys and recent files beyond the fifth are passed over, so
// a damaged or newer file still gives what it can; no file at all gives the defaults.
ExtraPreferences read_extra_preferences_text(std::string_view text);

ExtraPreferences open_extra_preferences(const std::string& directory);

// Failure carries kUnableToSavePreferences, as for beams.prf.
Status write_extra_preferences(const ExtraPreferences& preferences, const std::string& directory);

}  // namespace flexley

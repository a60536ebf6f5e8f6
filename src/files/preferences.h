// The preferences file beams.prf: its defaults, reading it at start and writing it at the end.
#pragma once

#include <string>
#include <string_view>

#include "model/status.h"

namespace flexley {

inline constexpr const char* kPreferencesFileName = "beams.prf";
inline constexpr const char* kNoPreferencesFile =
    "No existing preferences file.  You can create one by selecting 'Preferences' in 'File' menu.";
inline constexpr const char* kUnableToSavePreferences = "Unable to save preferences.";

struct Preferences {
    std::string beam_definition_path;
    std::string working_files_path;  // empty means none
    std::string default_units;       // "metric" or "english"
    bool outline_only = false;
};

// The preferences of a first run started in `current_dir`.
Preferences default_preferences(std::string_view current_dir);

struct PreferencesResult {
    Preferences preferences;
    // Failure carries kNoPreferencesFile; the preferences are then the defaults.
    Status status = Status::success();
};

// The one line of the file, CRLF included.
std::string preferences_text(const Preferences& preferences);

PreferencesResult read_preferences_text(std::string_view text, std::string_view current_dir);

// Reads beams.prf from `current_dir`, the directory the program was started in.
PreferencesResult open_preferences(const std::string& current_dir);

// Writes beams.prf into `current_dir`; failure carries kUnableToSavePreferences.
Status write_preferences(const Preferences& preferences, const std::string& current_dir);

}  // namespace flexley

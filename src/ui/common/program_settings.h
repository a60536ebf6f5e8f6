// What the program keeps for its whole run besides the beam: the preferences and where files are.
#pragma once

#include <string>

#include "files/extra_preferences.h"
#include "files/preferences.h"
#include "ui/common/prompts.h"

namespace flexley {

struct ProgramSettings {
    Preferences preferences;
    // The recent files and the integration method, kept in their own file beside beams.prf.
    ExtraPreferences extra;
    std::string preferences_dir;      // the folder that holds beams.prf
    std::string start_dir;            // the folder the program was started in
    std::string shipped_definitions;  // the beam definition file installed with the program
    std::string last_dir;             // the folder a file dialog showed last
};

// Reads beams.prf and the file beside it. Without a readable beams.prf the user is told so and
// the defaults hold: English, working files in the start folder, the shipped beam definition
// file. The file beside it is read silently: without it there are no recent files and slope and
// deflection are found exactly.
void load_preferences(ProgramSettings& settings, Prompts& prompts);

// Writes beams.prf and the file beside it, telling the user once when either fails.
void save_preferences(const ProgramSettings& settings, Prompts& prompts);

// The beam definition file in use: the preferred one, or the shipped one when none is set.
std::string beam_definition_file(const ProgramSettings& settings);

}  // namespace flexley

// What the program keeps for its whole run besides the beam: the preferences and where files are.
#include "ui/common/program_settings.h"

namespace flexley {

void load_preferences(ProgramSettings& settings, Prompts& prompts) {
    PreferencesResult read = open_preferences(settings.preferences_dir);
    if (!read.status.ok()) {
        prompts.message(QString::fromStdString(read.status.message()));
        read.preferences = default_preferences(settings.start_dir);
        // An empty path stands for the shipped list, wherever the program is installed.
        read.preferences.beam_definition_path.clear();
    }
    settings.preferences = std::move(read.preferences);
    settings.extra = open_extra_preferences(settings.preferences_dir);
}

void save_preferences(const ProgramSettings& settings, Prompts& prompts) {
    Preferences saved = settings.preferences;
    // The shipped list is written as an empty path, so moving the installation cannot strand it.
    if (saved.beam_definition_path == settings.shipped_definitions) {
        saved.beam_definition_path.clear();
    }
    const Status written = write_preferences(saved, settings.preferences_dir);
    const Status extra_written = write_extra_preferences(settings.extra, settings.preferences_dir);
    const Status& failed = written.ok() ? extra_written : written;
    if (!failed.ok()) prompts.message(QString::fromStdString(failed.message()));
}

std::string beam_definition_file(const ProgramSettings& settings) {
    const std::string& preferred = settings.preferences.beam_definition_path;
    return preferred.empty() ? settings.shipped_definitions : preferred;
}

}  // namespace flexley

// The rules of the preferences dialog's OK: which of the chosen settings are stored.
#include "files/preference_choices.h"

#include <filesystem>
#include <system_error>

#include "files/file_names.h"

namespace flexley {
namespace {

bool names_a_folder(const std::string& path) {
    std::error_code error;
    return path.empty() || std::filesystem::is_directory(path, error);
}

}  // namespace

std::vector<std::string> apply_preference_choices(Preferences& stored, const Preferences& chosen) {
    std::vector<std::string> refusals;
    if (file_exists(chosen.beam_definition_path)) {
        stored.beam_definition_path = chosen.beam_definition_path;
    } else {
        refusals.emplace_back(kBeamDefinitionFileMissing);
    }
    if (names_a_folder(chosen.working_files_path)) {
        stored.working_files_path = chosen.working_files_path;
    } else {
        refusals.emplace_back(kWorkingFilesPathMissing);
    }
    stored.default_units = chosen.default_units;
    stored.outline_only = chosen.outline_only;
    return refusals;
}

}  // namespace flexley

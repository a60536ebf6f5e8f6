// The preferences file beams.prf: its defaults, reading it at start and writing it at the end.
#include "files/preferences.h"

#include <optional>
#include <utility>

#include "files/file_names.h"
#include "files/text_fields.h"
#include "files/text_file.h"

namespace flexley {
namespace {

// One line of two paths and a word: anything larger is not a preferences file.
constexpr std::size_t kMaxPreferencesBytes = 64 * 1024;

// An empty directory leaves the name relative to wherever the process runs.
std::string path_in(std::string_view directory, std::string_view file_name) {
    if (directory.empty()) return std::string(file_name);
    return complete_directory(directory) + std::string(file_name);
}

std::optional<Preferences> parse_preferences(std::string_view text) {
    LineCursor lines(text);
    const std::optional<std::string_view> line = lines.next_line();
    const auto fields = line ? split_fields(*line) : std::nullopt;
    if (!fields || fields->size() != 4) return std::nullopt;
    const auto definition_path = parse_string((*fields)[0]);
    const auto working_path = parse_string((*fields)[1]);
    const auto units = parse_string((*fields)[2]);
    const auto outline = parse_boolean((*fields)[3]);
    if (!definition_path || !working_path || !units || !outline) return std::nullopt;
    return Preferences{std::string(*definition_path), std::string(*working_path),
                       std::string(*units), *outline};
}

}  // namespace

Preferences default_preferences(std::string_view current_dir) {
    return {path_in(current_dir, "beams.lst"), std::string(current_dir), "english", false};
}

std::string preferences_text(const Preferences& preferences) {
    std::string text = quoted(preferences.beam_definition_path) + "," +
                       quoted(preferences.working_files_path) + "," +
                       quoted(preferences.default_units) + ",";
    text += boolean_text(preferences.outline_only);
    text += kLineEnd;
    return text;
}

PreferencesResult read_preferences_text(std::string_view text, std::string_view current_dir) {
    if (std::optional<Preferences> preferences = parse_preferences(text)) {
        return {std::move(*preferences), Status::success()};
    }
    return {default_preferences(current_dir), Status::failure(kNoPreferencesFile)};
}

PreferencesResult open_preferences(const std::string& current_dir) {
    const TextRead file =
        read_text_file(path_in(current_dir, kPreferencesFileName), kMaxPreferencesBytes);
    return read_preferences_text(file.text, current_dir);
}

Status write_preferences(const Preferences& preferences, const std::string& current_dir) {
    const Status written =
        replace_file(path_in(current_dir, kPreferencesFileName), preferences_text(preferences));
    return written.ok() ? written : Status::failure(kUnableToSavePreferences);
}

}  // namespace flexley

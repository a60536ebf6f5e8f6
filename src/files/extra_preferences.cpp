// The settings kept beside beams.prf in a file of their own, so that beams.prf keeps its one-line
// layout: the recently used load files and the integration method.
#include "files/extra_preferences.h"

#include <optional>
#include <utility>

#include "files/file_names.h"
#include "files/preferences.h"
#include "files/recent_files.h"
#include "files/text_fields.h"
#include "files/text_file.h"

namespace flexley {
namespace {

constexpr std::size_t kMaxExtraPreferencesBytes = 64 * 1024;
constexpr std::string_view kIntegrationKey = "integration";
constexpr std::string_view kRecentKey = "recent";
constexpr std::string_view kExact = "exact";
constexpr std::string_view kTrapezoid = "trapezoid";

std::string keyed_line(std::string_view key, std::string_view value) {
    std::string line = quoted(key) + "," + quoted(value);
    line += kLineEnd;
    return line;
}

std::optional<std::pair<std::string_view, std::string_view>> keyed_value(std::string_view line) {
    const auto fields = split_fields(line);
    if (!fields || fields->size() != 2) return std::nullopt;
    const auto key = parse_string((*fields)[0]);
    const auto value = parse_string((*fields)[1]);
    if (!key || !value) return std::nullopt;
    return std::pair(*key, *value);
}

// Beside beams.prf, which an empty directory leaves relative to wherever the process runs.
std::string file_path(const std::string& directory) {
    if (directory.empty()) return kExtraPreferencesFileName;
    return complete_directory(directory) + kExtraPreferencesFileName;
}

}  // namespace

std::string extra_preferences_text(const ExtraPreferences& preferences) {
    std::string text = keyed_line(
        kIntegrationKey,
        preferences.integration_method == IntegrationMethod::exact ? kExact : kTrapezoid);
    for (const std::string& path : preferences.recent_files) {
        if (path.find_first_of("\"\r\n") == std::string::npos) text += keyed_line(kRecentKey, path);
    }
    return text;
}

ExtraPreferences read_extra_preferences_text(std::string_view text) {
    ExtraPreferences preferences;
    LineCursor lines(text);
    while (const std::optional<std::string_view> line = lines.next_line()) {
        const auto entry = keyed_value(*line);
        if (!entry) continue;
        const auto [key, value] = *entry;
        if (key == kIntegrationKey && (value == kExact || value == kTrapezoid)) {
            preferences.integration_method =
                value == kExact ? IntegrationMethod::exact : IntegrationMethod::trapezoid;
        } else if (key == kRecentKey && !value.empty() &&
                   preferences.recent_files.size() < kMaxRecentFiles) {
            preferences.recent_files.emplace_back(value);
        }
    }
    return preferences;
}

ExtraPreferences open_extra_preferences(const std::string& directory) {
    const TextRead file = read_text_file(file_path(directory), kMaxExtraPreferencesBytes);
    return file.ok() ? read_extra_preferences_text(file.text) : ExtraPreferences{};
}

Status write_extra_preferences(const ExtraPreferences& preferences, const std::string& directory) {
    const Status written = replace_file(file_path(directory), extra_preferences_text(preferences));
    return written.ok() ? written : Status::failure(kUnableToSavePreferences);
}

}  // namespace flexley

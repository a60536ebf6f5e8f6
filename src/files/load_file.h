// Reading and writing load configuration files: one whole beam as comma-separated text lines.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/beam_model.h"
#include "model/status.h"

namespace flexley {

inline constexpr const char* kFileAccessError = "File access error";
// Asked by the Save dialog before it replaces an existing file; the writer itself never asks.
inline constexpr const char* kOverwriteQuestion = "File exists.  Do you wish to overwrite?";

// The current layout, or the older one with five fields on line 3 and one intensity per
// distributed load. Nothing in a file tells the two apart; the user's command chooses.
enum class LoadFormat { current, version1 };

// What the Loading Screen must create for a feature number after a file was read: the feature's
// own label group, or four blank placeholders that keep the number's places (a removed feature).
enum class LabelGroup { feature, placeholder };

struct LoadResult {
    Status status = Status::success();
    // label_groups[n - 1] belongs to feature number n; empty when reading failed.
    std::vector<LabelGroup> label_groups;
};

// The file's text, CRLF line ends included.
std::string load_configuration_text(const BeamModel& model);

// Writes the model to `path` without ever leaving a half-written file there: the text goes to a
// temporary file in the same directory, which replaces the target only once it is complete.
// On failure the old file is untouched and the message says why.
Status write_load_configuration(const BeamModel& model, const std::string& path);

// Empties the beam (clear_beam) and reads the text into it. Any fault, a beam the geometry rules
// refuse and a table entry that not exactly one feature names included, gives kFileAccessError
// with the line and the reason as its detail ("Line 7: support position 300 lies outside the beam
// (0 to 240).") and an empty beam; the length and unit flags keep what was read before the fault.
// A resolution that is not a whole number from 10 to 200,000 is brought to the nearest one, and
// the status is then a warning that says so.
LoadResult read_load_configuration_text(std::string_view text, BeamModel& model,
                                        LoadFormat format = LoadFormat::current);

// The same, from a file. A missing or unreadable file, or a directory, is a fault as well; its
// detail says which.
LoadResult read_load_configuration(const std::string& path, BeamModel& model,
                                   LoadFormat format = LoadFormat::current);

}  // namespace flexley

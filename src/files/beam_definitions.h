// Reading the beam definition file: standard sections grouped under five headers.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace flexley {

inline constexpr int kMaxSectionRecords = 500;
inline constexpr const char* kFileNotFound = "File not found.";
inline constexpr const char* kBeamDefinitionPathPrompt =
    "Enter full path to beam definition file.  Include filename in path.  "
    "Example: 'C:\\Program Files\\Flexley\\beams.lst'";

struct SectionKind {
    std::string_view header;   // the exact, case-sensitive field that opens the section
    std::string_view caption;  // the chooser's tab caption
};

inline constexpr int kSectionKindCount = 5;
inline constexpr std::array<SectionKind, kSectionKindCount> kSectionKinds{{
    {"W BEAMS", "Wide Flange (W) Beams"},
    {"S BEAMS", "S Beams"},
    {"CHANNEL", "Channel"},
    {"ANGLE", "Angle"},
    {"USER-DEFINED", "User-Defined"},
}};

// One standard section, every field as the file spells it; numbers are converted only when a
// value must change unit system.
struct SectionRecord {
    std::string name;
    std::string i_xx;       // I about X-X
    std::string c_xx;       // c about X-X
    std::string i_yy;       // I about Y-Y
    std::string c_yy;       // c about Y-Y
    std::string unit_flag;  // "E": in^4 and in; "M": 10^6 mm^4 and mm
};

struct BeamDefinitions {
    // sections[k] holds the records under kSectionKinds[k].header, in file order, at most 500.
    std::array<std::vector<SectionRecord>, kSectionKindCount> sections;
};

BeamDefinitions parse_beam_definitions(std::string_view text);

// Nothing when the file cannot be opened (missing, unreadable, a directory).
std::optional<BeamDefinitions> read_beam_definitions(const std::string& path);

}  // namespace flexley

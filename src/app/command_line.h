// The program's command line: nothing, a load file to open, or --help.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace flexley {

struct CommandLine {
    std::optional<std::string> load_file;
    bool show_help = false;
    std::string error;  // not empty when the command line cannot be used
};

inline constexpr const char* kUsage =
    "usage: flexley [FILE.lod]\n"
    "  Starts Flexley. With a load configuration file, opens it on the Loading Screen.\n"
    "  --help  shows this text.\n";

// Arguments after the program name.
CommandLine parse_command_line(const std::vector<std::string>& arguments);

}  // namespace flexley

// The program's command line: nothing, a load file to open, or --help.
#include "app/command_line.h"

namespace flexley {

CommandLine parse_command_line(const std::vector<std::string>& arguments) {
    CommandLine command_line;
    for (const std::string& argument : arguments) {
        if (argument == "--help" || argument == "-h") {
            command_line.show_help = true;
        } else if (argument.starts_with('-')) {
            command_line.error = "unknown option " + argument;
        } else if (command_line.load_file) {
            command_line.error = "only one file can be opened";
        } else {
            command_line.load_file = argument;
        }
    }
    return command_line;
}

}  // namespace flexley

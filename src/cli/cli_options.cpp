// Parsing the command line of flexley-cli; anything unexpected is a usage error with its reason.
#include "cli/cli_options.h"

#include <charconv>
#include <map>

#include "model/beam_settings.h"
#include "model/typed_number.h"

namespace flexley::cli {
namespace {

std::optional<int> parse_integer(const std::string& text) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

// Which options each command takes, so that a misplaced one is reported rather than ignored.
const std::map<std::string, std::vector<std::string>>& allowed_options() {
    static const std::map<std::string, std::vector<std::string>> allowed = {
        {"analyze", {"--v1", "--resolution", "--integration", "--json", "--at"}},
        {"table", {"--v1", "--resolution", "--integration"}},
        {"convert", {"--v1", "--metric", "--english"}},
        {"report",
         {"--v1", "--resolution", "--integration", "--title", "--point", "--unit", "--sig-figs",
          "--no-reactions"}},
    };
    return allowed;
}

class Parser {
  public:
    explicit Parser(const std::vector<std::string>& arguments) : arguments_(arguments) {}

    std::variant<CliOptions, UsageError> parse() {
        if (arguments_.empty()) return UsageError{"no command given"};
        const std::string& command = arguments_[0];
        const auto allowed = allowed_options().find(command);
        if (allowed == allowed_options().end()) return UsageError{"unknown command " + command};
        options_.command = command == "analyze"   ? Command::analyze
                           : command == "table"   ? Command::table
                           : command == "convert" ? Command::convert
                                                  : Command::report;
        std::vector<std::string> files;
        for (next_ = 1; next_ < arguments_.size();) {
            const std::string argument = arguments_[next_++];
            if (argument.rfind("--", 0) != 0) {
                files.push_back(argument);
                continue;
            }
            if (!is_allowed(allowed->second, argument)) {
                return UsageError{argument + " is not an option of " + command};
            }
            if (auto error = take_option(argument)) return *error;
        }
        const std::size_t wanted = options_.command == Command::convert ? 2 : 1;
        if (files.size() != wanted) {
            return UsageError{command + " takes " + (wanted == 2 ? "FILE and OUT" : "one FILE")};
        }
        options_.file = files[0];
        if (wanted == 2) options_.output_file = files[1];
        return options_;
    }

  private:
    static bool is_allowed(const std::vector<std::string>& allowed, const std::string& option) {
        for (const auto& name : allowed) {
            if (name == option) return true;
        }
        return false;
    }

    std::optional<std::string> next_value() {
        if (next_ >= arguments_.size()) return std::nullopt;
        return arguments_[next_++];
    }

    std::optional<UsageError> take_option(const std::string& option) {
        if (option == "--v1") return flag(options_.version1);
        if (option == "--json") return flag(options_.json);
        if (option == "--no-reactions") {
            options_.reactions = false;
            return std::nullopt;
        }
        if (option == "--metric" || option == "--english") return target_units(option);
        const auto value = next_value();
        if (!value) return UsageError{option + " needs a value"};
        if (option == "--resolution") return resolution(*value);
        if (option == "--integration") return integration(*value);
        if (option == "--at") return position(*value);
        if (option == "--title") {
            options_.title = *value;
            return std::nullopt;
        }
        if (option == "--point") {
            options_.point = *value;
            return std::nullopt;
        }
        if (option == "--unit") return point_unit(*value);
        return significant_figures(*value);
    }

    static std::optional<UsageError> flag(bool& target) {
        target = true;
        return std::nullopt;
    }

    std::optional<UsageError> target_units(const std::string& option) {
        if (options_.target_units != TargetUnits::unchanged) {
            return UsageError{"choose one of --metric and --english"};
        }
        options_.target_units = option == "--metric" ? TargetUnits::metric : TargetUnits::english;
        return std::nullopt;
    }

    std::optional<UsageError> resolution(const std::string& text) {
        const auto value = typed_number(text);
        if (!value || !is_allowed_resolution(*value)) {
            return UsageError{"--resolution must be a whole number from 10 to 200000, not " + text};
        }
        options_.resolution = static_cast<float>(*value);
        return std::nullopt;
    }

    std::optional<UsageError> integration(const std::string& text) {
        if (text != "exact" && text != "trapezoid") {
            return UsageError{"--integration must be exact or trapezoid"};
        }
        options_.integration =
            text == "exact" ? IntegrationMethod::exact : IntegrationMethod::trapezoid;
        return std::nullopt;
    }

    std::optional<UsageError> position(const std::string& text) {
        const auto value = typed_number(text);
        if (!value) return UsageError{"--at needs a number, not " + text};
        options_.at.push_back(*value);
        return std::nullopt;
    }

    std::optional<UsageError> point_unit(const std::string& text) {
        if (text != "in" && text != "ft") return UsageError{"--unit must be in or ft"};
        options_.point_in_inches = text == "in";
        return std::nullopt;
    }

    std::optional<UsageError> significant_figures(const std::string& text) {
        const auto value = parse_integer(text);
        if (!value || *value < 1 || *value > 15) {
            return UsageError{"--sig-figs must be a whole number from 1 to 15"};
        }
        options_.sig_figs = *value;
        return std::nullopt;
    }

    const std::vector<std::string>& arguments_;
    std::size_t next_ = 1;
    CliOptions options_;
};

}  // namespace

std::variant<CliOptions, UsageError> parse_arguments(const std::vector<std::string>& arguments) {
    return Parser(arguments).parse();
}

}  // namespace flexley::cli

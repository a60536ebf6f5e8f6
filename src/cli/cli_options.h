// The command line of flexley-cli: commands, their files and options.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "model/beam_model.h"

namespace flexley::cli {

enum class Command { analyze, table, convert, report };
enum class TargetUnits { unchanged, metric, english };

struct CliOptions {
    Command command = Command::analyze;
    std::string file;
    std::string output_file;  // convert only
    bool version1 = false;
    std::optional<float> resolution;
    IntegrationMethod integration = IntegrationMethod::exact;
    bool json = false;
    std::vector<double> at;  // analyze: positions in base length units
    TargetUnits target_units = TargetUnits::unchanged;
    // report
    std::string title;
    std::optional<std::string> point;  // as typed
    std::optional<bool> point_in_inches;
    int sig_figs = 3;
    bool reactions = true;
};

struct UsageError {
    std::string message;
};

inline constexpr const char* kUsage =
    "usage:\n"
    "  flexley-cli analyze FILE [--v1] [--resolution N] [--integration M] [--json] [--at X ...]\n"
    "  flexley-cli table FILE [--v1] [--resolution N] [--integration M]\n"
    "  flexley-cli convert FILE OUT [--v1] [--metric|--english]\n"
    "  flexley-cli report FILE [--v1] [--resolution N] [--integration M] [--title T]\n"
    "                          [--point X] [--unit in|ft] [--sig-figs N] [--no-reactions]\n"
    "FILE is a load configuration file (.lod); --v1 reads the version 1 layout.\n"
    "N is the number of calculation intervals, a whole number from 10 to 200000.\n"
    "M is exact (closed-form slope and deflection, the default) or trapezoid (the moment\n"
    "integrated twice by the trapezoidal rule). X is a position along the beam: inches or\n"
    "metres for --at, as typed for --point (feet on an English beam unless --unit in).\n"
    "Exit codes: 0 done, 1 usage, 2 file error, 3 refused, 4 deflection did not converge.\n";

std::variant<CliOptions, UsageError> parse_arguments(const std::vector<std::string>& arguments);

}  // namespace flexley::cli

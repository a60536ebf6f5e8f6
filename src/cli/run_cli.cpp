// flexley-cli's commands: read a load file, run the engine, print or write what was asked.
#include "cli/run_cli.h"

#include <optional>
#include <variant>

#include "analysis/run.h"
#include "cli/cli_options.h"
#include "cli/results_output.h"
#include "files/file_names.h"
#include "files/load_file.h"
#include "model/beam_settings.h"
#include "model/units.h"
#include "report/point_values.h"
#include "report/report.h"
#include "report/report_date.h"

namespace flexley::cli {
namespace {

// Without anyone to ask, the iteration may go on a while before the partial results are taken.
ContinueQuestion scripted_continue(std::ostream& err) {
    return [&err, asked = 0]() mutable {
        ++asked;
        const int passes = asked * 100;
        if (asked <= kContinueAnswers) {
            err << "warning: the deflection iteration has not converged after " << passes
                << " passes; continuing\n";
            return true;
        }
        err << "warning: stopped the deflection iteration after " << passes
            << " passes; slope and deflection are those of the last pass\n";
        return false;
    };
}

void print_status(const Status& status, std::ostream& err) {
    const char* prefix = status.is_warning() ? "warning: " : "";
    err << prefix << status.message() << "\n";
    if (!status.detail().empty()) err << status.detail() << "\n";
}

bool load_beam(const CliOptions& options, BeamModel& model, std::ostream& err) {
    const auto format = options.version1 ? LoadFormat::version1 : LoadFormat::current;
    const auto result = read_load_configuration(options.file, model, format);
    if (!result.status.message().empty()) print_status(result.status, err);
    if (!result.status.ok()) return false;
    if (options.resolution) {
        const Status set = set_resolution(model, *options.resolution);
        if (!set.ok()) print_status(set, err);
    }
    model.integration_method = options.integration;
    return true;
}

// The exit code of a run that produced output: a stopped iteration is reported as such.
int analysed(const Status& status) {
    return status.is_warning() ? kExitNotConverged : kExitSuccess;
}

std::optional<Status> analyse(BeamModel& model, std::ostream& err) {
    const Status status = run_calculation(model, scripted_continue(err));
    if (!status.message().empty()) print_status(status, err);
    if (!status.ok()) return std::nullopt;
    return status;
}

int analyze(const CliOptions& options, BeamModel& model, std::ostream& out, std::ostream& err) {
    for (const double x : options.at) {
        if (x < 0.0 || x > model.beam_length) {
            err << kInvalidLocation << "\n";
            return kExitUsage;
        }
    }
    const auto status = analyse(model, err);
    if (!status) return kExitRefused;
    if (options.json) {
        print_json(model, options.at, *status, out);
    } else {
        print_summary(model, out);
    }
    return analysed(*status);
}

int table(BeamModel& model, std::ostream& out, std::ostream& err) {
    const auto status = analyse(model, err);
    if (!status) return kExitRefused;
    print_table(model, out);
    return analysed(*status);
}

// The output name is completed as the program's own save completes it.
std::string completed_path(const std::string& output) {
    const auto slash = output.find_last_of('/');
    if (slash == std::string::npos) return complete_file_name(output);
    return complete_directory(output.substr(0, slash)) +
           complete_file_name(output.substr(slash + 1));
}

int convert(const CliOptions& options, BeamModel& model, std::ostream& out, std::ostream& err) {
    if (options.target_units == TargetUnits::metric) convert_units(model, "eng_to_met");
    if (options.target_units == TargetUnits::english) convert_units(model, "met_to_eng");
    const std::string path = completed_path(options.output_file);
    const Status written = write_load_configuration(model, path);
    if (!written.ok()) {
        err << written.message() << "\n";
        return kExitFileError;
    }
    out << "Wrote " << path << "\n";
    return kExitSuccess;
}

int report(const CliOptions& options, BeamModel& model, std::ostream& out, std::ostream& err) {
    ReportOptions report;
    report.title = options.title;
    report.beam_properties = report.load_text = report.maximum_values = true;
    report.support_reactions = options.reactions;
    if (options.point_in_inches && model.metric_units) {
        err << "--unit applies to English beams only: positions on a metric beam are metres\n";
        return kExitUsage;
    }
    if (options.point) {
        report.point_in_feet = !options.point_in_inches.value_or(false);
        const auto position = position_on_beam(model, *options.point, report.point_in_feet);
        if (!position) {
            err << kInvalidLocation << "\n";
            return kExitUsage;
        }
        report.point_values = true;
        report.point_text = *options.point;
        report.point_position = *position;
    }
    model.sig_figs = static_cast<int16_t>(options.sig_figs);
    const auto status = analyse(model, err);
    if (!status) return kExitRefused;
    for (const auto& line : report_lines(model, report, today_short_date()))
        out << line << "\n";
    return analysed(*status);
}

int run_command(const CliOptions& options, std::ostream& out, std::ostream& err) {
    BeamModel model;
    if (!load_beam(options, model, err)) return kExitFileError;
    switch (options.command) {
        case Command::analyze:
            return analyze(options, model, out, err);
        case Command::table:
            return table(model, out, err);
        case Command::convert:
            return convert(options, model, out, err);
        case Command::report:
            return report(options, model, out, err);
    }
    return kExitUsage;
}

}  // namespace

int run_cli(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    const auto parsed = parse_arguments(arguments);
    if (const auto* usage = std::get_if<UsageError>(&parsed)) {
        err << "flexley-cli: " << usage->message << "\n" << kUsage;
        return kExitUsage;
    }
    return run_command(std::get<CliOptions>(parsed), out, err);
}

}  // namespace flexley::cli

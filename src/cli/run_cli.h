// flexley-cli as a function: runs one command line and returns the process exit code.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace flexley::cli {

inline constexpr int kExitSuccess = 0;
inline constexpr int kExitUsage = 1;
inline constexpr int kExitFileError = 2;
inline constexpr int kExitRefused = 3;
// The deflection iteration was stopped unconverged: the output stands, slope and deflection may
// be wrong.
inline constexpr int kExitNotConverged = 4;

// How often the non-converging iteration is allowed another 100 passes before it is stopped.
inline constexpr int kContinueAnswers = 10;

// arguments exclude the program name. Results go to `out`, messages and warnings to `err`.
int run_cli(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace flexley::cli

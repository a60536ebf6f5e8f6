// flexley-cli: runs the beam engine on a saved load file without a window.
#include <iostream>
#include <string>
#include <vector>

#include "cli/run_cli.h"

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    return flexley::cli::run_cli(arguments, std::cout, std::cerr);
}

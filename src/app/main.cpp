// The flexley program: the start dialog, then the Loading Screen over one beam.
#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QScreen>
#include <QStandardPaths>
#include <cstdlib>
#include <iostream>

#include "app/command_line.h"
#include "model/beam_model.h"
#include "ui/common/dialog_prompts.h"
#include "ui/common/program_settings.h"
#include "ui/loading/loading_screen.h"

namespace {

// Qt aborts inside its platform plugin without a display; say what to do instead.
bool display_available() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

flexley::ProgramSettings program_settings() {
    flexley::ProgramSettings settings;
    const QString config_dir = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    QDir().mkpath(config_dir);
    settings.preferences_dir = config_dir.toStdString();
    settings.start_dir = QDir::currentPath().toStdString();
    settings.shipped_definitions =
        QDir(QApplication::applicationDirPath() + "/../share/flexley/beams.lst")
            .absolutePath()
            .toStdString();
    // The file dialogs start in the home folder until a working path or a visit says otherwise.
    settings.last_dir = QDir::homePath().toStdString();
    return settings;
}

}  // namespace

int main(int argc, char** argv) {
    const flexley::CommandLine command_line =
        flexley::parse_command_line(std::vector<std::string>(argv + 1, argv + argc));
    if (!command_line.error.empty()) {
        std::cerr << "flexley: " << command_line.error << "\n" << flexley::kUsage;
        return EXIT_FAILURE;
    }
    if (command_line.show_help) {
        std::cout << flexley::kUsage;
        return EXIT_SUCCESS;
    }
    if (!display_available()) {
        std::cerr
            << "flexley: no display (DISPLAY and WAYLAND_DISPLAY are unset); use flexley-cli, "
               "or run xvfb-run scripts/run.sh\n";
        return EXIT_FAILURE;
    }

    QApplication application(argc, argv);
    QApplication::setApplicationName("flexley");
    // The icon installed with the desktop file; without an installation the platform's default.
    QApplication::setWindowIcon(QIcon::fromTheme("flexley"));

    flexley::BeamModel model;
    flexley::ProgramSettings settings = program_settings();
    flexley::DialogPrompts prompts;
    flexley::LoadingScreen window(model, settings, prompts,
                                  QApplication::primaryScreen()->availableGeometry());
    QObject::connect(&window, &flexley::LoadingScreen::finished, &application, &QApplication::quit,
                     Qt::QueuedConnection);
    window.start(command_line.load_file);
    return QApplication::exec();
}

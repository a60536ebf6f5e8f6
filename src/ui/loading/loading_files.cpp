// The Loading Screen's file commands: save, save as, open and import of load configurations.
#include <QFileDialog>
#include <filesystem>

#include "files/file_names.h"
#include "ui/loading/beam_picture.h"
#include "ui/loading/loading_screen.h"

namespace flexley {
namespace {

QString text_of(const std::string& text) {
    return QString::fromStdString(text);
}

}  // namespace

// The file dialogs do not block the window, as the design wants; each is discarded on closing.
QFileDialog* LoadingScreen::file_dialog(const char* name, const QString& caption) {
    const std::string& preferred = settings_.preferences.working_files_path;
    auto* dialog =
        new QFileDialog(this, caption, text_of(preferred.empty() ? settings_.last_dir : preferred),
                        "Load configuration files (*.lod)");
    dialog->setObjectName(name);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // Overwriting is asked in the program's own words, through the prompts.
    dialog->setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
    connect(dialog, &QFileDialog::directoryEntered, this,
            [this](const QString& directory) { settings_.last_dir = directory.toStdString(); });
    return dialog;
}

void LoadingScreen::save() {
    if (model_.current_file.empty()) {
        open_save_dialog();
        return;
    }
    save_load_file((std::filesystem::path(model_.current_dir) / model_.current_file).string());
}

void LoadingScreen::open_save_dialog() {
    QFileDialog* dialog = file_dialog("Saveload", "Save Load Configuration");
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(text_of(model_.current_file.empty() ? "loadcfg" : model_.current_file));
    connect(dialog, &QFileDialog::fileSelected, this, &LoadingScreen::save_chosen_file);
    dialog->show();
}

void LoadingScreen::save_chosen_file(const QString& chosen) {
    const std::filesystem::path path(chosen.toStdString());
    const std::string completed =
        (path.parent_path() / complete_file_name(path.filename().string())).string();
    if (file_exists(completed) && !prompts_.question(kOverwriteQuestion)) return;
    save_load_file(completed);
}

bool LoadingScreen::save_load_file(const std::string& path) {
    const Status written = write_load_configuration(model_, path);
    if (!written.ok()) {
        prompts_.message(text_of(written.message()), kProgramTitle, text_of(written.detail()));
        return false;
    }
    const std::filesystem::path saved(path);
    model_.current_file = saved.filename().string();
    model_.current_dir = saved.parent_path().string();
    update_title();
    return true;
}

void LoadingScreen::open_read_dialog(const char* name, const QString& caption, LoadFormat format) {
    QFileDialog* dialog = file_dialog(name, caption);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, [this, format](const QString& chosen) {
        open_load_file(chosen.toStdString(), format);
    });
    dialog->show();
}

bool LoadingScreen::open_load_file(const std::string& path, LoadFormat format) {
    if (isVisible()) redraw_screen(kPenErase);
    labels_.clear();
    const LoadResult read = read_load_configuration(path, model_, format);
    if (!read.status.ok()) {
        // The beam is empty now: a silent save must not overwrite the file it came from.
        model_.current_file.clear();
        model_.current_dir.clear();
        update_title();
        if (isVisible()) redraw_screen(kPenDraw);
        prompts_.message(text_of(read.status.message()), kProgramTitle,
                         text_of(read.status.detail()));
        return false;
    }
    const std::filesystem::path opened(path);
    model_.current_file = opened.filename().string();
    model_.current_dir = opened.parent_path().string();
    labels_.create_groups_from_file(model_, geometry_, read.label_groups);
    // A start dialog still open beside the Open dialog has been answered by the file.
    for (StartDialog* start : findChildren<StartDialog*>())
        start->done(QDialog::Accepted);
    show_beam();
    if (read.status.is_warning()) {
        prompts_.message(text_of(read.status.message()), kProgramTitle,
                         text_of(read.status.detail()));
    }
    return true;
}

}  // namespace flexley

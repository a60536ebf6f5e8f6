// The Loading Screen's file commands: save, save as, open, import, the recent files and the
// preferences.
#include <QAction>
#include <QDir>
#include <QMenu>
#include <filesystem>

#include "files/file_names.h"
#include "files/recent_files.h"
#include "ui/common/controls.h"
#include "ui/dialogs/preferences_dialog.h"
#include "ui/loading/beam_picture.h"
#include "ui/loading/loading_screen.h"

namespace flexley {
namespace {

constexpr const char* kNoFileName = "Enter a file name to save under.";

// "&2 ~/work/beam.lod": the menu number as access key, the home folder shortened, and any "&"
// of the path doubled so that it is shown rather than taken for an access key.
QString recent_file_caption(std::size_t index, const std::string& path) {
    QString shown = QDir::toNativeSeparators(text_of(path));
    const QString home = QDir::homePath();
    if (shown.startsWith(home + '/')) shown = '~' + shown.mid(home.size());
    return QString("&%1 %2").arg(index + 1).arg(shown.replace('&', "&&"));
}

QString recent_file_gone(const std::string& path) {
    return "The file " + text_of(path) +
           " cannot be found.  It has been removed from the list of recent files.";
}

}  // namespace

// The file dialogs do not block the window, as the design wants; asking again for a dialog that
// is open brings it forward instead of opening a second one.
LoadFileDialog* LoadingScreen::file_dialog(FileDialogKind kind, LoadFileDialog::Command command) {
    for (LoadFileDialog* open : findChildren<LoadFileDialog*>(file_dialog_name(kind))) {
        if (open->isVisible()) {
            open->raise();
            open->activateWindow();
            return nullptr;
        }
    }
    auto* dialog = new LoadFileDialog(kind, settings_, prompts_, std::move(command), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
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
    LoadFileDialog* dialog = file_dialog(
        FileDialogKind::save, [this](const std::string& directory, const std::string& name) {
            return save_chosen_file(directory, name);
        });
    if (!dialog) return;
    dialog->set_save_name(text_of(model_.current_file.empty() ? "loadcfg" : model_.current_file));
    dialog->show();
}

bool LoadingScreen::save_chosen_file(const std::string& directory, const std::string& name) {
    if (name.empty()) {
        prompts_.message(kNoFileName);
        return false;
    }
    const std::string path = complete_directory(directory) + complete_file_name(name);
    if (file_exists(path) && !prompts_.question(kOverwriteQuestion)) return false;
    return save_load_file(path);
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
    remember_file(path);
    return true;
}

void LoadingScreen::open_read_dialog(LoadFormat format) {
    const FileDialogKind kind =
        format == LoadFormat::current ? FileDialogKind::open : FileDialogKind::import;
    LoadFileDialog* dialog =
        file_dialog(kind, [this, format](const std::string& directory, const std::string& name) {
            return open_load_file(complete_directory(directory) + name, format);
        });
    if (dialog) dialog->show();
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
    // A version 1 file reopened from the list would be read in the current format and fail.
    if (format == LoadFormat::current) remember_file(path);
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

void LoadingScreen::add_recent_file_items(QMenu* file) {
    recent_separator_ = file->addSeparator();
    for (std::size_t i = 0; i < kMaxRecentFiles; ++i) {
        QAction* item = file->addAction(QString());
        item->setObjectName(QString("recentfile%1").arg(i + 1));
        connect(item, &QAction::triggered, this, [this, i] { open_recent_file(i); });
        recent_items_.push_back(item);
    }
    file->addSeparator();
    update_recent_files();
}

void LoadingScreen::remember_file(const std::string& path) {
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    flexley::remember_recent_file(settings_.extra.recent_files,
                                  error ? path : absolute.lexically_normal().string());
    update_recent_files();
}

void LoadingScreen::update_recent_files() {
    const std::vector<std::string>& recent = settings_.extra.recent_files;
    for (std::size_t i = 0; i < recent_items_.size(); ++i) {
        QAction* item = recent_items_[i];
        item->setVisible(i < recent.size());
        if (i >= recent.size()) continue;
        item->setText(recent_file_caption(i, recent[i]));
        item->setStatusTip(text_of(recent[i]));
    }
    recent_separator_->setVisible(!recent.empty());
}

void LoadingScreen::open_recent_file(std::size_t index) {
    if (index >= settings_.extra.recent_files.size()) return;
    const std::string path = settings_.extra.recent_files[index];
    if (!file_exists(path)) {
        forget_recent_file(settings_.extra.recent_files, path);
        update_recent_files();
        prompts_.message(recent_file_gone(path));
        return;
    }
    open_load_file(path, LoadFormat::current);
}

// Modal for the user, as the design wants, without a nested event loop.
void LoadingScreen::open_preferences_dialog() {
    auto* dialog = new PreferencesDialog(settings_, model_, prompts_, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

}  // namespace flexley

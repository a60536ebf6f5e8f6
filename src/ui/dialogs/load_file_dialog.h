// The Save, Open and Import dialogs: one small file browser of drives, folders and files, which
// hands the chosen folder and name to the command that saves or reads the load file.
#pragma once

#include <QDialog>
#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "ui/common/program_settings.h"
#include "ui/common/prompts.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace flexley {

// The three dialogs share their drive list, folder list, Cancel and the way they choose where to
// start. The Save dialog has a name box and shows every file of the folder for reference; its
// command is Save. The Open and Import dialogs are twins with a filter, the matching files with
// their dates and a Load command: Open reads the current format, Import the version 1 format.
enum class FileDialogKind { save, open, import };

// The dialog's objectName, as the Loading Screen finds it: "Saveload", "getload", "importload".
const char* file_dialog_name(FileDialogKind kind);

class LoadFileDialog final : public QDialog {
    Q_OBJECT

  public:
    // Saves or reads `name` in `directory`: for Save the name typed, for Load the selected file
    // (empty when none is). True when it succeeded, and the dialog then closes; on false the
    // command has told the user why and the dialog stays as it is.
    using Command = std::function<bool(const std::string& directory, const std::string& name)>;

    // Starts in the working files folder, else in the folder a file dialog showed last, else in
    // the home folder.
    LoadFileDialog(FileDialogKind kind, ProgramSettings& settings, Prompts& prompts,
                   Command command, QWidget* parent = nullptr);

    // The Save dialog's name box; the Open and Import dialogs have none to set.
    void set_save_name(const QString& name);

    const QString& directory() const { return directory_; }

    // Shows `directory` in the folder list and refreshes the files; when it cannot be read the
    // user is told why and the folder shown stays. Drive and folder choices come through here.
    bool show_directory(const QString& directory);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void build_shared_controls();
    void build_save_controls();
    void build_load_controls();
    void lay_out();
    void fill_drive_list();
    void start_directory();
    void show_listing_of(const QString& directory);
    void fill_directory_list();
    void select_drive_of_directory();
    void refresh_file_list();
    void show_selected_file();
    void select_typed_file();
    void run_command();

    FileDialogKind kind_;
    ProgramSettings& settings_;
    Prompts& prompts_;
    Command command_;
    QString directory_;
    std::vector<std::string> subdirectories_;

    QComboBox* drive_list_;
    QTreeWidget* directory_list_;
    QPushButton* command_button_;
    QPushButton* cancel_button_;
    // Save only.
    QLabel* save_caption_ = nullptr;
    QLineEdit* save_name_ = nullptr;
    QListWidget* all_files_ = nullptr;
    // Open and Import only.
    QLabel* filter_caption_ = nullptr;
    QComboBox* filter_ = nullptr;
    QLabel* load_caption_ = nullptr;
    QLineEdit* load_name_ = nullptr;
    QTreeWidget* matching_files_ = nullptr;
};

}  // namespace flexley

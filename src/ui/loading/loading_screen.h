// The main window "beam", the Loading Screen: the beam's picture and labels, and every command.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QRect>
#include <optional>
#include <string>
#include <vector>

#include "files/load_file.h"
#include "model/beam_model.h"
#include "ui/common/program_settings.h"
#include "ui/common/prompts.h"
#include "ui/dialogs/load_file_dialog.h"
#include "ui/dialogs/print_dialog.h"
#include "ui/help/documentation_window.h"
#include "ui/loading/label_groups.h"
#include "ui/loading/label_widgets.h"
#include "ui/loading/screen_geometry.h"
#include "ui/loading/start_dialog.h"

class QAction;
class QMenu;

namespace flexley {

class FeatureDialogs;
class PictureView;
class ResultsWindow;

inline constexpr const char* kLoadingScreenTitle = "Flexley: Loading Screen";
inline constexpr const char* kResolutionTooLarge =
    "Resolution too large.\nResolution set to 200,000.";

class LoadingScreen final : public QMainWindow {
    Q_OBJECT

  public:
    // `work_area` is the screen's available area in pixels: the whole layout follows from it,
    // and the window opens maximized on it.
    LoadingScreen(BeamModel& model, ProgramSettings& settings, Prompts& prompts,
                  const QRect& work_area, QWidget* parent = nullptr);

    // The program's start: the preferences, then the start dialog, or, with a load file, the
    // beam read from it as "Retrieve Load File" reads it (the start dialog when that fails).
    void start(const std::optional<std::string>& load_file = std::nullopt);

    // Reads a load file into the beam, as the Open and Import dialogs do; false, with the user
    // told why, when it cannot be read, the beam then being empty.
    bool open_load_file(const std::string& path, LoadFormat format);
    // Writes the beam to `path`, which becomes the current file; false, told, when that fails.
    bool save_load_file(const std::string& path);

    const ScreenGeometry& geometry() const { return geometry_; }
    const FeatureLabels& labels() const { return labels_; }
    PictureView& picture_view() { return *view_; }

    // Erases (kPenErase) or draws (kPenDraw) the beam's picture; a draw also creates the label
    // groups of features added since the last one. Every change of the beam is wrapped in an
    // erase before and a draw after it.
    void redraw_screen(int pen_mode);

    // After a feature dialog's edit: feature n's labels say its new values and stand at its new
    // place, and every group stands at the kind's new scale. The next draw shows them.
    void show_edited_feature(int feature_number);

    // The unit and precision commands, which the Calculations Screen shares: both end in a
    // redraw, after which that screen shows the results in the new units or precision.
    void change_significant_figures();
    void convert_to(bool metric);

    // Print and About, which the Calculations Screen opens over itself with its own origin.
    void open_print_dialog(PrintOrigin origin, QWidget& over);
    void open_about(HelpOrigin origin, QWidget& over);

  signals:
    // The window has closed and written the preferences: the program ends.
    void finished();
    // The picture and labels show the model as it now is: sent after every command that changed
    // the beam, its display or its results. A window showing results checks results_valid.
    void beam_shown();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void build_menus();

    void open_start_dialog(StartMode mode);
    void show_beam();
    void show_labels();
    QSize picture_extent() const;
    void update_title();
    void update_unit_commands();

    void save();
    void open_save_dialog();
    void open_read_dialog(LoadFormat format);
    LoadFileDialog* file_dialog(FileDialogKind kind, LoadFileDialog::Command command);
    bool save_chosen_file(const std::string& directory, const std::string& name);
    void add_recent_file_items(QMenu* file);
    void remember_file(const std::string& path);
    void update_recent_files();
    void open_recent_file(std::size_t index);
    void open_preferences_dialog();

    std::optional<int> ask_feature_number(const QString& prompt);
    void edit_feature_command();
    void remove_feature_command();
    void reinitialize();
    void open_beam_properties();
    void calculate(bool reactions_only);
    void change_resolution();
    void show_results_window();

    BeamModel& model_;
    ProgramSettings& settings_;
    Prompts& prompts_;
    QRect work_area_;
    ScreenGeometry geometry_;
    PictureView* view_;
    FeatureLabels labels_;
    LabelWidgets label_widgets_;
    FeatureDialogs* feature_dialogs_;
    QPointer<ResultsWindow> results_window_;  // until "Return to Loading" deletes it
    QAction* to_metric_ = nullptr;
    QAction* to_english_ = nullptr;
    std::vector<QAction*> recent_items_;  // the File menu's recent files, newest first
    QAction* recent_separator_ = nullptr;
};

}  // namespace flexley

// The main window "beam", the Loading Screen: the beam's picture and labels, and every command.
#include "ui/loading/loading_screen.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QScrollArea>
#include <algorithm>

#include "analysis/reaction_text.h"
#include "analysis/results_state.h"
#include "analysis/run.h"
#include "model/beam_settings.h"
#include "model/display.h"
#include "model/features.h"
#include "model/typed_number.h"
#include "model/units.h"
#include "ui/common/controls.h"
#include "ui/common/menus.h"
#include "ui/common/picture_view.h"
#include "ui/dialogs/beam_properties_dialog.h"
#include "ui/dialogs/feature_dialogs.h"
#include "ui/dialogs/window_pictures.h"
#include "ui/help/about_box.h"
#include "ui/loading/beam_picture.h"
#include "ui/loading/prompt_answers.h"
#include "ui/results/results_window.h"

namespace flexley {
namespace {

ScreenGeometry geometry_for(const QRect& work_area, const QWidget& window) {
    const WorkArea units =
        work_area_in_units(work_area.width(), work_area.height(),
                           DrawingUnitMapping::for_device(window).dots_per_inch());
    return screen_geometry(units.work_width, units.work_height);
}

// "20 ft.  ": the beam length as Reinitialize quotes it, in the unit the beam is shown in.
QString reinitialize_length_text(const BeamModel& model) {
    if (model.metric_units)
        return text_of(display_number(model.beam_length, model.sig_figs) + " m.  ");
    if (model.positions_in_inches) {
        return text_of(display_number(model.beam_length, model.sig_figs) + " in.  ");
    }
    return text_of(display_number(model.beam_length / kFootToInch, model.sig_figs) + " ft.  ");
}

}  // namespace

LoadingScreen::LoadingScreen(BeamModel& model, ProgramSettings& settings, Prompts& prompts,
                             const QRect& work_area, QWidget* parent)
    : QMainWindow(parent),
      model_(model),
      settings_(settings),
      prompts_(prompts),
      work_area_(work_area),
      geometry_(geometry_for(work_area, *this)),
      view_(new PictureView),
      labels_(label_measure(*view_)),
      label_widgets_(*view_),
      feature_dialogs_(new FeatureDialogs({model, prompts, *this}, work_area, this)) {
    setObjectName("beam");
    // The picture fills the window and never shrinks below what it shows: a smaller window
    // scrolls.
    auto* scroll = new QScrollArea;
    scroll->setObjectName("picture_scroll");
    scroll->setWidgetResizable(true);
    scroll->setWidget(view_);
    setCentralWidget(scroll);
    build_menus();
    update_title();
    update_unit_commands();
}

void LoadingScreen::build_menus() {
    QMenu* file = add_menu(*this, "Filemenu", "&File");
    add_command(this, file, "saveloadcfg", "&Save Load Configuration", &LoadingScreen::save,
                QKeySequence("Ctrl+S"));
    add_command(this, file, "saveas", "Save &As", &LoadingScreen::open_save_dialog);
    add_command(
        this, file, "openloadcfg", "&Open Load Configuration",
        [this] { open_read_dialog(LoadFormat::current); }, QKeySequence("Ctrl+O"));
    add_command(this, file, "importloadcfg", "&Import Version 1 File",
                [this] { open_read_dialog(LoadFormat::version1); });
    add_command(
        this, file, "printload", "&Print Load Configuration",
        [this] { open_print_dialog(PrintOrigin::load, *this); }, QKeySequence("Ctrl+P"));
    add_command(this, file, "file_preferences", "P&references",
                &LoadingScreen::open_preferences_dialog);
    add_recent_file_items(file);
    add_command(this, file, "quitflexley", "E&xit Flexley", &QWidget::close,
                QKeySequence("Ctrl+X"));

    QMenu* feature = add_menu(*this, "featmenu", "F&eature");
    QMenu* add_feature = feature->addMenu("&Add Feature");
    add_feature->setObjectName("addfeature");
    auto add_dialog_item = [&](const char* name, const QString& caption, FeatureKind kind,
                               const char* shortcut) {
        add_command(
            this, add_feature, name, caption, [this, kind] { feature_dialogs_->open(kind); },
            QKeySequence(shortcut));
    };
    add_dialog_item("addpointload", "Add &Point Load", FeatureKind::point_load, "Ctrl+F1");
    add_dialog_item("adddistload", "Add &Dist. Load", FeatureKind::distributed_load, "Ctrl+F2");
    add_dialog_item("addmoment", "Add &Moment", FeatureKind::moment, "Ctrl+F3");
    add_dialog_item("addsupport", "Add &Support", FeatureKind::support, "Ctrl+F4");
    add_command(this, feature, "editfeature", "&Edit Feature", &LoadingScreen::edit_feature_command,
                QKeySequence("Ctrl+E"));
    add_command(this, feature, "removefeature", "&Remove Feature",
                &LoadingScreen::remove_feature_command, QKeySequence(Qt::Key_Delete));

    QMenu* beam = add_menu(*this, "beammenu", "&Beam");
    add_command(this, beam, "beamproperties", "&Properties", &LoadingScreen::open_beam_properties);
    add_command(this, beam, "reinitialize", "&Reinitialize", &LoadingScreen::reinitialize);

    QMenu* calculate_menu = add_menu(*this, "calcmenu", "&Calculate");
    add_command(
        this, calculate_menu, "runcalc", "&Calculate Stress and Deflection",
        [this] { calculate(false); }, QKeySequence("Ctrl+R"));
    add_command(this, calculate_menu, "supreact", "Calculate Support &Reactions Only",
                [this] { calculate(true); });
    add_command(this, calculate_menu, "changerltn", "C&hange Resolution",
                &LoadingScreen::change_resolution);

    QMenu* display = add_menu(*this, "displayprops", "&Display");
    add_command(this, display, "redrawscreen", "&Redraw", [this] { redraw_screen(kPenDraw); });
    add_command(this, display, "significantfigs", "Change Display &Significant Figures",
                &LoadingScreen::change_significant_figures);

    QMenu* units = add_menu(*this, "units", "&Units");
    to_metric_ =
        add_command(this, units, "metricunits", "Convert to &Metric", [this] { convert_to(true); });
    to_english_ = add_command(this, units, "englishunits", "Convert to &English",
                              [this] { convert_to(false); });

    QMenu* help = add_menu(*this, "helpflexley", "&Help");
    add_command(
        this, help, "docflexley", "&Documentation",
        [this] { open_documentation(*this, HelpOrigin::loading); }, QKeySequence(Qt::Key_F1));
    add_command(this, help, "aboutflexley", "&About Flexley",
                [this] { open_about(HelpOrigin::loading, *this); });
}

void LoadingScreen::start(const std::optional<std::string>& load_file) {
    load_preferences(settings_, prompts_);
    model_.integration_method = settings_.extra.integration_method;
    update_recent_files();
    if (!settings_.preferences.working_files_path.empty()) {
        settings_.last_dir = settings_.preferences.working_files_path;
    }
    if (!load_file) {
        open_start_dialog(StartMode::program_start);
        return;
    }
    StartDialog defaults(model_, settings_.preferences, prompts_, StartMode::program_start);
    defaults.confirm();
    show_beam();
    if (!open_load_file(*load_file, LoadFormat::current)) {
        hide();
        open_start_dialog(StartMode::program_start);
    }
}

void LoadingScreen::open_start_dialog(StartMode mode) {
    auto* dialog = new StartDialog(model_, settings_.preferences, prompts_, mode, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->adjustSize();
    dialog->move(work_area_.center() - dialog->rect().center());
    connect(dialog, &QDialog::accepted, this, &LoadingScreen::show_beam);
    connect(dialog, &StartDialog::retrieve_requested, this,
            [this] { open_read_dialog(LoadFormat::current); });
    connect(dialog, &QDialog::rejected, this, [this] {
        // Closing the first dialog ends the program: there is no beam to work on. Closing it at
        // Reinitialize keeps the emptied beam with its old length, as answering No does.
        if (!isVisible()) {
            emit finished();
        } else {
            redraw_screen(kPenDraw);
        }
    });
    dialog->show();
}

void LoadingScreen::show_beam() {
    if (!isVisible()) {
        setGeometry(work_area_);
        showMaximized();
    }
    redraw_screen(kPenDraw);
    update_title();
    update_unit_commands();
}

void LoadingScreen::redraw_screen(int pen_mode) {
    view_->show_picture(flexley::redraw_screen(model_, geometry_, pen_mode, labels_));
    show_labels();
}

void LoadingScreen::show_edited_feature(int feature_number) {
    labels_.relabel_feature(model_, geometry_, feature_number);
    labels_.restack_labels(model_, geometry_, model_.feature_count + 1);
}

// The part of the picture with something in it: the beam, the length caption under it and
// every label, with a small margin.
QSize LoadingScreen::picture_extent() const {
    constexpr int kMargin = 200;
    constexpr int kCaptionHeight = 500;  // the 14-point length caption and its leading
    int right = geometry_.beam_x_right + static_cast<int>(geometry_.support_size() / 2);
    int bottom = geometry_.work_height - geometry_.work_height / 8 + kCaptionHeight;
    for (const FeatureLabelGroup& group : labels_.groups()) {
        for (const Label& label : group.labels) {
            right = std::max(right, label.left + label.width);
            bottom = std::max(bottom, label.top + label.height);
        }
    }
    return DrawingUnitMapping::for_device(*view_)
        .to_pixel_rect(0, 0, right + kMargin, bottom + kMargin)
        .size();
}

// Reaction texts stand only while the results they come from are those of this beam.
void LoadingScreen::show_labels() {
    labels_.blank_reaction_texts();
    if (results_available(model_)) {
        labels_.show_reaction_texts(show_reactions(model_));
    }
    label_widgets_.show(labels_);
    view_->setMinimumSize(picture_extent());
    emit beam_shown();
}

void LoadingScreen::update_title() {
    setWindowTitle(model_.current_file.empty()
                       ? QString(kLoadingScreenTitle)
                       : QString(kLoadingScreenTitle) + ": " + text_of(model_.current_file));
}

void LoadingScreen::update_unit_commands() {
    to_metric_->setEnabled(!model_.metric_units);
    to_english_->setEnabled(model_.metric_units);
}

void LoadingScreen::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) update_unit_commands();
    QMainWindow::changeEvent(event);
}

void LoadingScreen::closeEvent(QCloseEvent* event) {
    save_preferences(settings_, prompts_);
    event->accept();
    emit finished();
}

// Nothing for Cancel, or for an answer refused with "Invalid feature number".
std::optional<int> LoadingScreen::ask_feature_number(const QString& prompt) {
    const QString answer = prompts_.text(prompt);
    if (answer.isEmpty()) return std::nullopt;
    const std::optional<int> number =
        feature_number_answer(answer.toStdString(), model_.feature_count);
    if (!number) prompts_.message(kInvalidFeatureNumberMessage);
    return number;
}

void LoadingScreen::edit_feature_command() {
    if (const std::optional<int> number = ask_feature_number("Enter feature number to edit")) {
        feature_dialogs_->edit(*number);
    }
}

void LoadingScreen::remove_feature_command() {
    const std::optional<int> number = ask_feature_number("Enter feature number to remove");
    if (!number) return;
    redraw_screen(kPenErase);
    labels_.blank_group(*number);
    remove_feature(model_, *number);
    labels_.restack_labels(model_, geometry_, model_.feature_count + 1);
    redraw_screen(kPenDraw);
}

void LoadingScreen::reinitialize() {
    redraw_screen(kPenErase);
    clear_beam(model_);
    mark_results_stale(model_);
    labels_.clear();
    model_.current_file.clear();
    update_title();
    const QString question = "Current beam length is " + reinitialize_length_text(model_) +
                             "Do you wish to change beam length?";
    if (prompts_.question(question)) {
        open_start_dialog(StartMode::reinitialize);
    } else {
        redraw_screen(kPenDraw);
    }
}

// New properties make the results stale, and the default E is stored even on Cancel, so the
// reaction texts are reconsidered however the dialog ends.
void LoadingScreen::open_beam_properties() {
    auto* dialog = new BeamPropertiesDialog(model_, settings_, prompts_, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, &LoadingScreen::show_labels);
    dialog->open();
}

void LoadingScreen::calculate(bool reactions_only) {
    const ContinueQuestion keep_iterating = [this] {
        return prompts_.question(kNonConvergenceQuestion, kNonConvergenceTitle);
    };
    const Status status = reactions_only ? run_reactions_only(model_, keep_iterating)
                                         : run_calculation(model_, keep_iterating);
    if (!status.message().empty()) {
        prompts_.message(text_of(status.message()), kProgramTitle, text_of(status.detail()));
    }
    show_labels();
    if (!reactions_only && status.ok()) show_results_window();
}

void LoadingScreen::show_results_window() {
    // A window closed by "Return to Loading" is on its way out; the run opens a new one.
    if (!results_window_ || !results_window_->isVisible()) {
        results_window_ = new ResultsWindow(model_, settings_, prompts_, *this, work_area_);
    }
    results_window_->show_results();
}

void LoadingScreen::change_resolution() {
    const QString current = text_of(number_text(model_.resolution));
    const QString prompt = "Enter value for resolution. \nCurrent value of resolution is " +
                           current +
                           ".\nChoose value between 10 and 200,000.\n"
                           "5,000 to 50,000 is standard.";
    const QString answer = prompts_.text(prompt, "Change Resolution", current);
    if (answer.isEmpty()) return;
    const std::optional<double> value = typed_number(answer.toStdString());
    if (value && *value > kMaxResolution) {
        prompts_.message(kResolutionTooLarge);
        set_resolution(model_, kMaxResolution);
    } else if (const Status set =
                   value ? set_resolution(model_, *value) : Status::failure(kInvalidResolution);
               !set.ok()) {
        prompts_.message(text_of(set.message()));
    }
    show_labels();
}

void LoadingScreen::change_significant_figures() {
    const QString prompt = "Current number of display significant figures is " +
                           QString::number(model_.sig_figs) +
                           ".  Enter desired number of significant figures.\n"
                           "This control is for display only and does not affect internal "
                           "calculations.";
    const QString answer = prompts_.text(prompt, "Display Significant Figures");
    if (answer.isEmpty()) return;
    const std::optional<int> figures = significant_figures_answer(answer.toStdString());
    if (!figures) {
        prompts_.message(kSignificantFiguresRefused);
        return;
    }
    redraw_screen(kPenErase);
    model_.sig_figs = static_cast<int16_t>(*figures);
    redraw_screen(kPenDraw);
    labels_.relabel_features(model_);
    show_labels();
}

void LoadingScreen::convert_to(bool metric) {
    convert_units(model_, metric ? "eng_to_met" : "met_to_eng",
                  [this](int pen_mode) { redraw_screen(pen_mode); });
    update_unit_commands();
    labels_.relabel_features(model_);
    show_labels();
}

// Modal like the design's report dialog, yet without a nested event loop.
void LoadingScreen::open_print_dialog(PrintOrigin origin, QWidget& over) {
    const ReportPictures pictures{
        loading_screen_picture(model_, geometry_, labels_),
        calculations_screen_picture(model_, geometry_, settings_.preferences.outline_only)};
    auto* dialog =
        new PrintDialog(model_, prompts_, origin, pictures, text_of(settings_.last_dir), &over);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::ApplicationModal);
    dialog->show();
}

void LoadingScreen::open_about(HelpOrigin origin, QWidget& over) {
    auto* about =
        new AboutBox(prompts_, origin, slides_folder(settings_.shipped_definitions), &over);
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->open();
}

}  // namespace flexley

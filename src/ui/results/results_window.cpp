// The results window "momdisplay", the Calculations Screen: the three plots and their commands.
#include "ui/results/results_window.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QStackedWidget>

#include "analysis/results_state.h"
#include "analysis/run.h"
#include "report/maximum_values.h"
#include "ui/common/controls.h"
#include "ui/common/menus.h"
#include "ui/loading/loading_screen.h"
#include "ui/results/maximum_values_dialog.h"
#include "ui/results/plot_picture.h"
#include "ui/results/plot_view.h"
#include "ui/results/point_values_dialog.h"

namespace flexley {

namespace {

QLabel* refusal_label() {
    auto* label = new QLabel;
    label->setObjectName("refusal");
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    label->setFont(font);
    return label;
}

}  // namespace

ResultsWindow::ResultsWindow(BeamModel& model, const ProgramSettings& settings, Prompts& prompts,
                             LoadingScreen& loading, const QRect& work_area)
    : QMainWindow(&loading),
      model_(model),
      prompts_(prompts),
      loading_(loading),
      work_area_(work_area),
      pages_(new QStackedWidget),
      plots_page_(new QScrollArea),
      plots_(new PlotView(model, loading.geometry(), settings.preferences)),
      refusal_(refusal_label()) {
    setObjectName("momdisplay");
    setAttribute(Qt::WA_DeleteOnClose);
    // The title names the file the beam had when the window opened; a later save leaves it.
    setWindowTitle(model.current_file.empty()
                       ? QString(kCalculationsScreenTitle)
                       : QString(kCalculationsScreenTitle) + ": " + text_of(model.current_file));
    // The plots are laid out on the screen's work area; a smaller window scrolls.
    const drawing::Point extent = plots_extent(loading.geometry());
    plots_->setMinimumSize(
        plots_->mapping()
            .to_pixel_rect(0, 0, static_cast<int>(extent.x), static_cast<int>(extent.y))
            .size());
    plots_page_->setObjectName("plot_scroll");
    plots_page_->setWidgetResizable(true);
    plots_page_->setFrameShape(QFrame::NoFrame);
    plots_page_->setWidget(plots_);
    pages_->addWidget(plots_page_);
    pages_->addWidget(refusal_);
    setCentralWidget(pages_);
    build_menus();
    update_unit_commands();
    connect(&loading, &LoadingScreen::beam_shown, this, &ResultsWindow::follow_beam);
}

void ResultsWindow::build_menus() {
    QMenu* file = add_menu(*this, "filemenu", "&File");
    add_command(this, file, "showloading", "Return to &Loading", &ResultsWindow::return_to_loading,
                QKeySequence("Alt+Backspace"));
    add_command(
        this, file, "printcalc", "&Print Load Cfg. and Calculations",
        [this] { loading_.open_print_dialog(PrintOrigin::calc, *this); }, QKeySequence("Ctrl+P"));

    QMenu* calculate = add_menu(*this, "calc", "&Calculate");
    maximum_values_ = add_command(this, calculate, "max", "Show &Maximum Values",
                                  &ResultsWindow::open_maximum_values, QKeySequence("Ctrl+M"));
    point_values_ = add_command(this, calculate, "point", "Show Values at a &Point",
                                &ResultsWindow::open_point_values);

    QMenu* display = add_menu(*this, "displaymenu", "&Display");
    add_command(this, display, "redrawscreen", "&Redraw",
                [this] { loading_.redraw_screen(kPenDraw); });
    add_command(this, display, "changesignificantfigures", "Change Display &Significant Figures",
                [this] { loading_.change_significant_figures(); });

    QMenu* units = add_menu(*this, "unitmenu", "&Units");
    to_metric_ =
        add_command(this, units, "metricunits", "Convert to &Metric", [this] { convert_to(true); });
    to_english_ = add_command(this, units, "englishunits", "Convert to &English",
                              [this] { convert_to(false); });

    QMenu* help = add_menu(*this, "helpflexley", "&Help");
    add_command(
        this, help, "Docflexley", "&Documentation",
        [this] { open_documentation(*this, HelpOrigin::calculations); }, QKeySequence(Qt::Key_F1));
    add_command(this, help, "aboutflexley", "&About Flexley",
                [this] { loading_.open_about(HelpOrigin::calculations, *this); });
}

// A window already open has followed the run that led here.
void ResultsWindow::show_results() {
    if (!isVisible()) {
        show_plots();
        setGeometry(work_area_);
        showMaximized();
    }
    raise();
    activateWindow();
}

// Every command of the Loading Screen ends here. Results gone stale are calculated again, with
// the Calculate command's checks, since the beam may have become one that cannot be calculated.
void ResultsWindow::follow_beam() {
    // The recalculation redraws the Loading Screen, which comes back here.
    if (following_) return;
    const QScopedValueRollback<bool> guard(following_, true);
    update_unit_commands();
    if (results_available(model_) && pages_->currentWidget() == plots_page_) {
        show_plots();
        return;
    }
    const Status status = run_calculation(model_, [this] {
        return prompts_.question(kNonConvergenceQuestion, kNonConvergenceTitle);
    });
    if (!status.ok()) {
        show_refusal(text_of(status.message()));
        return;
    }
    // The reaction labels of the Loading Screen follow the new results.
    loading_.redraw_screen(kPenDraw);
    show_plots();
    if (status.is_warning()) prompts_.message(text_of(status.message()));
}

void ResultsWindow::show_plots() {
    pages_->setCurrentWidget(plots_page_);
    plots_->redraw();
    maximum_values_->setEnabled(true);
    point_values_->setEnabled(true);
}

// Stale curves would look like results; the refusal says what to change instead.
void ResultsWindow::show_refusal(const QString& text) {
    refusal_->setText(text);
    pages_->setCurrentWidget(refusal_);
    maximum_values_->setEnabled(false);
    point_values_->setEnabled(false);
}

void ResultsWindow::update_unit_commands() {
    to_metric_->setEnabled(!model_.metric_units);
    to_english_->setEnabled(model_.metric_units);
}

void ResultsWindow::return_to_loading() {
    close();
    loading_.raise();
    loading_.activateWindow();
}

// A closed window is deleted once control returns to the event loop; until then it must not
// calculate for a beam it no longer shows.
void ResultsWindow::closeEvent(QCloseEvent* event) {
    disconnect(&loading_, nullptr, this, nullptr);
    QMainWindow::closeEvent(event);
}

void ResultsWindow::open_maximum_values() {
    const MaximumValuesResult maxima = maximum_value_texts(model_);
    if (!maxima.status.ok()) {
        prompts_.message(text_of(maxima.status.message()));
        return;
    }
    auto* dialog = new MaximumValuesDialog(maxima.texts, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void ResultsWindow::open_point_values() {
    auto* dialog = new PointValuesDialog(model_, prompts_, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

// The Loading Screen converts and relabels; its redraw then brings the recalculation here.
void ResultsWindow::convert_to(bool metric) {
    loading_.convert_to(metric);
}

}  // namespace flexley

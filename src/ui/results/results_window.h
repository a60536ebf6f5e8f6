// The results window "momdisplay", the Calculations Screen: the three plots and their commands.
#pragma once

#include <QMainWindow>
#include <QRect>

#include "model/beam_model.h"
#include "model/status.h"
#include "ui/common/program_settings.h"
#include "ui/common/prompts.h"

class QAction;
class QLabel;
class QMenu;
class QScrollArea;
class QStackedWidget;

namespace flexley {

class LoadingScreen;
class PlotView;

inline constexpr const char* kCalculationsScreenTitle = "Flexley: Calculations Screen";

// Shows the results of the beam as it is: every command of the Loading Screen that changes the
// beam recalculates at once, and a beam that cannot be calculated shows why instead of plots.
// "Return to Loading" closes and deletes the window; the next run opens a new one.
class ResultsWindow final : public QMainWindow {
    Q_OBJECT

  public:
    // `work_area` is the screen's available area in pixels, which the window opens maximized on.
    ResultsWindow(BeamModel& model, const ProgramSettings& settings, Prompts& prompts,
                  LoadingScreen& loading, const QRect& work_area);

    // Shows the window maximized and in front, with the plots of the model's results.
    void show_results();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void build_menus();

    void follow_beam();
    void show_plots();
    void show_refusal(const QString& text);
    void update_unit_commands();

    void return_to_loading();
    void open_maximum_values();
    void open_point_values();
    void convert_to(bool metric);

    BeamModel& model_;
    Prompts& prompts_;
    LoadingScreen& loading_;
    QRect work_area_;
    QStackedWidget* pages_;
    QScrollArea* plots_page_;
    PlotView* plots_;
    QLabel* refusal_;
    QAction* maximum_values_ = nullptr;
    QAction* point_values_ = nullptr;
    QAction* to_metric_ = nullptr;
    QAction* to_english_ = nullptr;
    bool following_ = false;
};

}  // namespace flexley

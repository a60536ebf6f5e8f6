// The Calculations Screen: its menus and title, the unit and precision commands, live results
// while the beam changes, and returning to the Loading Screen.
#include <QLabel>
#include <QStackedWidget>

#include "model/features.h"
#include "report/maximum_values.h"
#include "ui/results/plot_view.h"
#include "ui/results/results_fixture.h"

namespace flexley::testing {
namespace {

// The items with a shortcut and the one disabled on an English beam.
const MenuRow kMenuTable[] = {
    {"filemenu", "showloading", "Return to &Loading", "Alt+Backspace", true},
    {"filemenu", "printcalc", "&Print Load Cfg. and Calculations", "Ctrl+P", true},
    {"calc", "max", "Show &Maximum Values", "Ctrl+M", true},
    {"unitmenu", "englishunits", "Convert to &English", "", false},
    {"helpflexley", "Docflexley", "&Documentation", "F1", true},
};

using ResultsWindowTest = ResultsFixture;

bool showing_plots(ResultsWindow& results) {
    return child<QStackedWidget>(results, "").currentWidget() ==
           results.findChild<QWidget*>("plot_scroll");
}

TEST_F(ResultsWindowTest, OpensMaximizedWithItsMenusAndReturningUnloadsIt) {
    ResultsWindow& shown = calculated("simply-supported-point-load.lod");
    EXPECT_TRUE(shown.isVisible());
    EXPECT_TRUE(shown.isMaximized());
    EXPECT_EQ(shown.windowTitle(), "Flexley: Calculations Screen: simply-supported-point-load.lod");
    EXPECT_TRUE(showing_plots(shown));

    expect_menus(shown, {"&File", "&Calculate", "&Display", "&Units", "&Help"}, kMenuTable);

    trigger_results("showloading");
    discard_closed_windows();
    EXPECT_EQ(window().findChild<ResultsWindow*>(), nullptr);
}

TEST_F(ResultsWindowTest, ConvertingAndBackKeepsThePhysicalResultsAndOneUnitCommand) {
    ResultsWindow& shown = calculated("propped-cantilever-point-load.lod");
    const MaximumValueTexts english = maximum_value_texts(model).texts;

    trigger_results("metricunits");
    EXPECT_TRUE(model.results_valid);
    EXPECT_EQ(unit_commands_enabled(shown), std::pair(false, true));
    EXPECT_EQ(caption("loadlab1"), "35600 N");  // 8000 lb. relabelled on the Loading Screen
    EXPECT_EQ(maximum_value_texts(model).texts.deflection_at, "4.04 m");

    trigger_results("englishunits");
    EXPECT_EQ(unit_commands_enabled(shown), std::pair(true, false));
    EXPECT_EQ(maximum_value_texts(model).texts.moment, english.moment);
    EXPECT_EQ(maximum_value_texts(model).texts.deflection_at, english.deflection_at);
    EXPECT_TRUE(prompts.shown().empty());
}

// While the window is open every change of the beam is calculated at once; a beam that cannot
// be calculated shows why, and the plots come back when it can.
TEST_F(ResultsWindowTest, FollowsEveryChangeOfTheBeam) {
    ResultsWindow& shown = calculated("simply-supported-point-load.lod");
    ASSERT_TRUE(add_point_load(model, 5000.0, 60.0, "ft", "lb").ok());
    trigger("redrawscreen");
    EXPECT_TRUE(model.results_valid);
    EXPECT_EQ(maximum_value_texts(model).texts.moment, "37500 lb.-ft.");
    EXPECT_EQ(caption("sloadlab22"), "3750 lb.");

    prompts.answer_text("3");
    trigger("removefeature");
    EXPECT_FALSE(showing_plots(shown));
    EXPECT_EQ(child<QLabel>(shown, "refusal").text(), "Beam is unstable.  Add more support.");
    EXPECT_FALSE(child<QAction>(shown, "point").isEnabled());

    ASSERT_TRUE(add_support(model, 240.0, "simp", "in", "lb").ok());
    trigger("redrawscreen");
    EXPECT_TRUE(showing_plots(shown));
    EXPECT_TRUE(child<QAction>(shown, "point").isEnabled());
}

TEST_F(ResultsWindowTest, RedrawRepaintsTheLoadingScreenAndLeavesThePlots) {
    ResultsWindow& shown = calculated("cantilever-distributed-load.lod");
    PlotView& plots = child<PlotView>(shown, "plots");
    const QImage before = plots.backing_image();
    trigger_results("redrawscreen");
    EXPECT_EQ(plots.backing_image(), before);
    EXPECT_EQ(caption("sloadlab21"), "5000 lb., 300000 lb.-in.");
}

}  // namespace
}  // namespace flexley::testing

// The Loading Screen's menus against the design's table, and the unit commands' enabling.
#include "ui/loading/loading_fixture.h"

namespace flexley::testing {
namespace {

// Every item of the design's menu table, in menu order.
const MenuRow kMenuTable[] = {
    {"Filemenu", "saveloadcfg", "&Save Load Configuration", "Ctrl+S", true},
    {"Filemenu", "saveas", "Save &As", "", true},
    {"Filemenu", "openloadcfg", "&Open Load Configuration", "Ctrl+O", true},
    {"Filemenu", "importloadcfg", "&Import Version 1 File", "", true},
    {"Filemenu", "printload", "&Print Load Configuration", "Ctrl+P", true},
    {"Filemenu", "file_preferences", "P&references", "", true},
    {"Filemenu", "quitflexley", "E&xit Flexley", "Ctrl+X", true},
    {"addfeature", "addpointload", "Add &Point Load", "Ctrl+F1", true},
    {"addfeature", "adddistload", "Add &Dist. Load", "Ctrl+F2", true},
    {"addfeature", "addmoment", "Add &Moment", "Ctrl+F3", true},
    {"addfeature", "addsupport", "Add &Support", "Ctrl+F4", true},
    {"featmenu", "editfeature", "&Edit Feature", "Ctrl+E", true},
    {"featmenu", "removefeature", "&Remove Feature", "Del", true},
    {"beammenu", "beamproperties", "&Properties", "", true},
    {"beammenu", "reinitialize", "&Reinitialize", "", true},
    {"calcmenu", "runcalc", "&Calculate Stress and Deflection", "Ctrl+R", true},
    {"calcmenu", "supreact", "Calculate Support &Reactions Only", "", true},
    {"calcmenu", "changerltn", "C&hange Resolution", "", true},
    {"displayprops", "redrawscreen", "&Redraw", "", true},
    {"displayprops", "significantfigs", "Change Display &Significant Figures", "", true},
    {"units", "metricunits", "Convert to &Metric", "", true},
    {"units", "englishunits", "Convert to &English", "", false},
    {"helpflexley", "docflexley", "&Documentation", "F1", true},
    {"helpflexley", "aboutflexley", "&About Flexley", "", true},
};

using MenuTest = LoadingFixture;

TEST_F(MenuTest, EveryItemOfTheTableStandsInItsMenu) {
    expect_menus(window(),
                 {"&File", "F&eature", "&Beam", "&Calculate", "&Display", "&Units", "&Help"},
                 kMenuTable);
    EXPECT_EQ(child<QMenu>(window(), "featmenu").actions().front()->text(), "&Add Feature");
}

TEST_F(MenuTest, ExactlyOneUnitCommandIsEnabledAfterEachConversion) {
    started();
    EXPECT_EQ(unit_commands_enabled(window()), std::pair(true, false));
    trigger("metricunits");
    EXPECT_TRUE(model.metric_units);
    EXPECT_EQ(unit_commands_enabled(window()), std::pair(false, true));
    trigger("englishunits");
    EXPECT_FALSE(model.metric_units);
    EXPECT_EQ(unit_commands_enabled(window()), std::pair(true, false));
}

}  // namespace
}  // namespace flexley::testing

// The Loading Screen's menus and shortcuts.
#include "ui/loading/loading_fixture.h"

namespace flexley::testing {
namespace {

// The items with a shortcut, and the one disabled on an English beam; the documentation's menu
// page names every item's caption.
const MenuRow kMenuTable[] = {
    {"Filemenu", "saveloadcfg", "&Save Load Configuration", "Ctrl+S", true},
    {"Filemenu", "openloadcfg", "&Open Load Configuration", "Ctrl+O", true},
    {"Filemenu", "printload", "&Print Load Configuration", "Ctrl+P", true},
    {"Filemenu", "quitflexley", "E&xit Flexley", "Ctrl+X", true},
    {"addfeature", "addpointload", "Add &Point Load", "Ctrl+F1", true},
    {"addfeature", "adddistload", "Add &Dist. Load", "Ctrl+F2", true},
    {"addfeature", "addmoment", "Add &Moment", "Ctrl+F3", true},
    {"addfeature", "addsupport", "Add &Support", "Ctrl+F4", true},
    {"featmenu", "editfeature", "&Edit Feature", "Ctrl+E", true},
    {"featmenu", "removefeature", "&Remove Feature", "Del", true},
    {"calcmenu", "runcalc", "&Calculate Stress and Deflection", "Ctrl+R", true},
    {"units", "englishunits", "Convert to &English", "", false},
    {"helpflexley", "docflexley", "&Documentation", "F1", true},
};

using MenuTest = LoadingFixture;

TEST_F(MenuTest, ShortcutItemsStandInTheirMenus) {
    expect_menus(window(),
                 {"&File", "F&eature", "&Beam", "&Calculate", "&Display", "&Units", "&Help"},
                 kMenuTable);
    EXPECT_EQ(child<QMenu>(window(), "featmenu").actions().front()->text(), "&Add Feature");
}

}  // namespace
}  // namespace flexley::testing

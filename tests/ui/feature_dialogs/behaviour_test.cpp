// The feature dialogs' shared behaviour: cantilever placement, rescaling after an edit, Cancel,
// the keyboard, one dialog per kind, full tables, and the Overview's typical use.
#include <QGroupBox>
#include <QRegularExpression>

#include "model/beam_settings.h"
#include "model/feature_rules.h"
#include "ui/dialogs/cantilever_placement.h"
#include "ui/feature_dialogs/feature_dialog_fixture.h"

namespace flexley::testing {
namespace {

struct PlacementRow {
    const char* name;
    std::vector<std::pair<double, const char*>> supports;  // on a 1200 in. beam
    bool first_removed;
    double location;
    const char* refusal;
};

// The first cantilever on an empty left end and one refused beside a simple support there go
// through the dialog in the other tests.
TEST(CantileverPlacement, FirstAtTheLeftEndSecondAtTheRightNeverAThird) {
    const PlacementRow rows[] = {
        {"second", {{0, "cant"}}, false, 1200, nullptr},
        {"third", {{0, "cant"}, {1200, "cant"}}, false, 0, kCantileverAtEndsOnly},
        {"right_end_taken", {{0, "cant"}, {1200, "simp"}}, false, 0, kCantileverAtEndsOnly},
        {"left_end_removed", {{0, "simp"}}, true, 0, nullptr},
    };
    for (const PlacementRow& row : rows) {
        SCOPED_TRACE(row.name);
        BeamModel model;
        model.beam_length = 1200;
        for (const auto& [at, type] : row.supports)
            ASSERT_TRUE(add_support(model, at, type, "in", "lb").ok());
        if (row.first_removed) remove_feature(model, 1);
        const CantileverPlacement place = place_cantilever(model);
        EXPECT_EQ(place.location, row.location);
        EXPECT_STREQ(place.refusal, row.refusal);
    }
}

using FeatureDialogsTest = FeatureDialogFixture;

TEST_F(FeatureDialogsTest, EditingTheLargestLoadDownRescalesEveryGroup) {
    start_beam(false);
    add("load_info", "loadloc=2 loadmag=100");
    add("load_info", "loadloc=2 loadmag=50");
    edit(1);
    act(dialog("load_info"), "loadloc=4 loadmag=10");
    press_command1(dialog("load_info"));

    EXPECT_EQ(model.pt_maxmag, 50);
    const ScreenGeometry& screen = window().geometry();
    const double h1 = 10.0 / 50 * screen.plot_height;
    const auto& group1 = window().labels().group(1).labels;
    const auto& group2 = window().labels().group(2).labels;
    EXPECT_EQ(group1[kFeatureSlot].top, std::lround(screen.beam_y_top - h1 - 800));
    EXPECT_EQ(group2[kFeatureSlot].top, screen.beam_y_top - screen.plot_height - 800);
    EXPECT_EQ(caption("loadlab21"), "x=4 ft.");
}

// A support's edit: Cancel ends it; a removed feature and a cantilever cannot be edited.
TEST_F(FeatureDialogsTest, CancelEndsAnEditAndOnlyASimpleSupportStillThereIsEdited) {
    start_beam(false);
    add_support(model, 60, "simp", "ft", "lb");
    trigger("redrawscreen");
    edit(1);
    FeatureDialog& support = dialog("support_info");
    EXPECT_FALSE(child<QGroupBox>(support, "Frame1").isEnabled());
    act(support, "suploc=9");
    QTest::mouseClick(&child<QPushButton>(support, "Command2"), Qt::LeftButton);
    EXPECT_FALSE(support.editing_feature());
    EXPECT_EQ(support.windowTitle(), "Add Support");
    EXPECT_EQ(child<QPushButton>(support, "Command1").text(), "Add Support");
    EXPECT_TRUE(child<QGroupBox>(support, "Frame1").isEnabled());
    EXPECT_EQ(stored_values(model, 1), std::vector<double>{60});
    discard_closed_windows();

    prompts.answer_text("1");
    trigger("removefeature");
    edit(1);
    EXPECT_EQ(prompts.texts().last(), kInvalidFeatureNumber);

    trigger("addsupport");
    act(dialog("support_info"), "suploc=7 cantilever");
    EXPECT_FALSE(child<QLineEdit>(dialog("support_info"), "suploc").isEnabled());
    EXPECT_FALSE(child<QGroupBox>(dialog("support_info"), "engframe1").isEnabled());
    press_command1(dialog("support_info"));
    EXPECT_EQ(stored_values(model, 2), std::vector<double>{0}) << "not the greyed box's 7 ft";
    edit(2);
    EXPECT_EQ(prompts.texts().last(), kCantileverCannotMove);
    EXPECT_EQ(open_dialog("support_info"), nullptr);
}

// Enter in any box submits; focus opens in the first box.
TEST_F(FeatureDialogsTest, FocusStartsInTheFirstBoxAndEnterAddsFromAnyBox) {
    const std::pair<const char*, const char*> rows[] = {
        {"load_info", "loadloc=1 loadmag=5"},
        {"distload_info", "loadstart=1 loadend=2 loadmag0=3 loadmag1=4"},
        {"moment_info", "loadloc=1 loadmag=5"},
        {"support_info", "suploc=1"},
    };
    start_beam(false);
    for (const auto& [name, values] : rows) {
        const QStringList boxes =
            QString(values).replace(QRegularExpression("=\\S*"), "").split(' ');
        for (const QString& box : boxes) {
            SCOPED_TRACE(box.toStdString());
            const int features = model.feature_count;
            trigger(add_command(name));
            FeatureDialog& dialog = this->dialog(name);
            QApplication::setActiveWindow(&dialog);
            ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
            EXPECT_EQ(QApplication::focusWidget()->objectName(), boxes.front());
            act(dialog, values);
            QTest::keyClick(dialog.findChild<QLineEdit*>(box), Qt::Key_Return);
            discard_closed_windows();
            EXPECT_EQ(model.feature_count, features + 1);
        }
    }
    EXPECT_TRUE(prompts.shown().empty());
}

// A menu command brings back its dialog that is open, with what was typed, and refuses before
// opening one when the table is full.
TEST_F(FeatureDialogsTest, AMenuCommandBringsBackItsOpenDialogOrRefusesAFullTable) {
    start_beam(false);
    trigger("addmoment");
    act(dialog("moment_info"), "loadloc=3");
    trigger("addmoment");
    EXPECT_EQ(window().findChildren<FeatureDialog*>("moment_info").size(), 1);
    EXPECT_EQ(box_text("moment_info", "loadloc"), "3");

    for (int k = 0; k < kMaxPointLoads; ++k)
        ASSERT_TRUE(add_point_load(model, 10, k, "in", "lb").ok());
    trigger("addpointload");
    EXPECT_EQ(prompts.texts(),
              QStringList{"No more point loads can be added: a beam holds at most 50."});
    EXPECT_EQ(open_dialog("load_info"), nullptr);
}

// The Overview's typical use, every feature entered through its dialog.
TEST_F(FeatureDialogsTest, TypicalUseGivesEachSupportHalfTheLoad) {
    start_beam(true);
    add("load_info", "loadloc=2.5 loadmag=2000");
    add("support_info", "suploc=0");
    add("support_info", "suploc=5");
    ASSERT_TRUE(set_section_properties(model, 8.36e-5, 2.1e11, 0.15).ok());
    trigger("runcalc");
    EXPECT_EQ(caption("sloadlab21"), "1000 N");
    EXPECT_EQ(caption("sloadlab22"), "1000 N");
}

}  // namespace
}  // namespace flexley::testing

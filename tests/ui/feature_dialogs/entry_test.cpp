// What each feature dialog stores, in every unit it offers, adding and editing; and what it
// refuses, leaving the beam, the picture and the dialog as they were.
#include "files/load_file.h"
#include "model/feature_rules.h"
#include "ui/common/picture_view.h"
#include "ui/dialogs/cantilever_placement.h"
#include "ui/feature_dialogs/feature_dialog_fixture.h"

namespace flexley::testing {
namespace {

struct EntryRow {
    const char* name;
    bool metric;
    const char* dialog;
    const char* actions;
    std::vector<double> stored;  // feature 1's table entry afterwards
    const char* codes;           // loc_unit and mag_unit, "ft,lb"
    // Editing: the feature 1 the beam starts with, and its boxes as the edit opens them.
    void (*setup)(BeamModel&) = nullptr;
    const char* shown = "";
};

class EntryTest : public FeatureDialogFixture, public ::testing::WithParamInterface<EntryRow> {};

TEST_P(EntryTest, StoresModelUnitsAndTheUnitCodesChosen) {
    const EntryRow& row = GetParam();
    start_beam(row.metric);
    if (row.setup) {
        row.setup(model);
        trigger("redrawscreen");
        edit(1);
        EXPECT_EQ(dialog(row.dialog).windowTitle(), "Edit Feature 1");
        EXPECT_EQ(child<QPushButton>(dialog(row.dialog), "Command1").text(), "Submit");
        for (const QString& shown : QString(row.shown).split(' ', Qt::SkipEmptyParts)) {
            const QStringList box = shown.split('=');
            EXPECT_EQ(box_text(row.dialog, box[0].toLatin1().constData()), box[1]);
        }
    } else {
        trigger(add_command(row.dialog));
    }
    act(dialog(row.dialog), row.actions);
    press_command1(dialog(row.dialog));

    EXPECT_EQ(open_dialog(row.dialog), nullptr);
    EXPECT_EQ(prompts.texts().size(), row.setup ? 1 : 0) << "only the feature number asked";
    ASSERT_EQ(model.feature_count, 1);
    const std::vector<double> stored = stored_values(model, 1);
    ASSERT_EQ(stored.size(), row.stored.size());
    for (std::size_t k = 0; k < stored.size(); ++k)
        EXPECT_DOUBLE_EQ(stored[k], row.stored[k]) << "value " << k;
    EXPECT_EQ(QString::fromStdString(model.loc_unit[1] + "," + model.mag_unit[1]), row.codes);
}

// English beams are 1200 in. long, metric ones 5 m.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Add, EntryTest, ::testing::Values(
    EntryRow{"point_feet", false, "load_info", "loadloc=2 loadmag=100", {24, 100}, "ft,lb"},
    EntryRow{"point_kilograms", true, "load_info", "loadloc=1 kg loadmag=10", {1, 98.0665}, "m,kg"},
    EntryRow{"distributed_feet_per_foot", false, "distload_info",
             "loadstart=0 loadend=10 loadmag0=12 loadmag1=24", {0, 120, 1, 2}, "ft,pf"},
    EntryRow{"distributed_kilograms", true, "distload_info",
             "loadstart=1 loadend=2 kg loadmag0=1 loadmag1=-2", {1, 2, 9.80665, -19.6133}, "m,kg"},
    EntryRow{"moment_pound_inches", false, "moment_info", "inch loadloc=0 pi loadmag=-30", {0, -30}, "in,pi"},
    EntryRow{"moment_kilogram_metres", true, "moment_info", "loadloc=5 kg loadmag=1", {5, 9.80665}, "m,kg"},
    EntryRow{"support_feet", false, "support_info", "suploc=5", {60}, "ft,lb"},
    EntryRow{"support_metric", true, "support_info", "suploc=5", {5}, ","}),
    [](const auto& info) { return std::string(info.param.name); });

// A value left alone keeps its stored number, not the rounded one its box shows; a value whose
// unit changed is read again in the new unit.
INSTANTIATE_TEST_SUITE_P(Edit, EntryTest, ::testing::Values(
    EntryRow{"point_location_kept_exactly", false, "load_info", "loadmag=150", {100.0 / 3, 150}, "ft,lb",
             [](BeamModel& m) { add_point_load(m, 100, 100.0 / 3, "ft", "lb"); }, "loadloc=2.78 loadmag=100"},
    EntryRow{"point_feet_to_inches", false, "load_info", "inch", {2, 100}, "in,lb",
             [](BeamModel& m) { add_point_load(m, 100, 24, "ft", "lb"); }, "loadloc=2"},
    EntryRow{"distributed_per_foot_to_per_inch", false, "distload_info", "pi", {0, 120, 12, 24}, "ft,pi",
             [](BeamModel& m) { add_distributed_load(m, 0, 120, 1, 2, "ft", "pf"); },
             "loadstart=0 loadend=10 loadmag0=12 loadmag1=24"},
    EntryRow{"support_metric", true, "support_info", "suploc=4", {4}, "m,",
             [](BeamModel& m) { add_support(m, 1, "simp", "m", ""); }, "suploc=1"}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

struct RefusalRow {
    const char* name;
    const char* dialog;
    int edited;  // the feature edited; 0 when adding
    const char* actions;
    const char* message;
};

class RefusalTest : public FeatureDialogFixture,
                    public ::testing::WithParamInterface<RefusalRow> {};

TEST_P(RefusalTest, LeavesBeamPictureAndDialogAsTheyWere) {
    const RefusalRow& row = GetParam();
    start_beam(false);
    add_support(model, 0, "simp", "ft", "lb");
    add_support(model, 600, "simp", "ft", "lb");
    trigger("redrawscreen");
    if (row.edited) {
        edit(row.edited);
    } else {
        trigger(add_command(row.dialog));
    }
    act(dialog(row.dialog), row.actions);
    const std::string beam = load_configuration_text(model);
    const QImage picture = window().picture_view().backing_image();
    prompts.forget_shown();

    press_command1(dialog(row.dialog));
    EXPECT_EQ(prompts.texts(), QStringList{row.message});
    EXPECT_EQ(load_configuration_text(model), beam);
    EXPECT_TRUE(window().picture_view().backing_image() == picture);
    ASSERT_NE(open_dialog(row.dialog), nullptr);
    EXPECT_TRUE(dialog(row.dialog).isVisible());
    EXPECT_EQ(dialog(row.dialog).editing_feature(), row.edited != 0);
    const QStringList last = QString(row.actions).split(' ').last().split('=');
    if (last.size() == 2) {
        EXPECT_EQ(box_text(row.dialog, last[0].toLatin1().constData()), last[1]);
    }
}

// On the 100 ft beam, with simple supports at 0 and 50 ft as features 1 and 2.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, RefusalTest, ::testing::Values(
    RefusalRow{"load_before_start", "load_info", 0, "inch loadmag=1 loadloc=-0.01", kInvalidLoadLocation},
    RefusalRow{"zero_load", "load_info", 0, "loadloc=5 loadmag=0", kNonZeroLoad},
    RefusalRow{"empty_location", "load_info", 0, "loadmag=1 loadloc=", "Enter a number for the load location."},
    RefusalRow{"start_at_end", "distload_info", 0, "loadstart=100 loadend=100 loadmag0=1 loadmag1=1",
               kInvalidStartingLocation},
    RefusalRow{"end_at_start", "distload_info", 0, "loadstart=5 loadend=5 loadmag0=1 loadmag1=1",
               kInvalidEndingLocation},
    RefusalRow{"moment_beyond_end", "moment_info", 0, "loadmag=5 loadloc=101", kInvalidMomentLocation},
    RefusalRow{"zero_moment", "moment_info", 0, "loadloc=5 loadmag=0", kNonZeroMoment},
    RefusalRow{"support_outside", "support_info", 0, "suploc=-1", kInvalidSupportLocation},
    RefusalRow{"support_on_support", "support_info", 0, "suploc=50", kSupportExists},
    RefusalRow{"cantilever_beside_simple", "support_info", 0, "cantilever", kFirstCantileverAtLeft},
    RefusalRow{"support_moved_onto_support", "support_info", 2, "suploc=0", kSupportExists}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

}  // namespace
}  // namespace flexley::testing

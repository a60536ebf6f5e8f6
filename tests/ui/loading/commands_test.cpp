// The Loading Screen's prompted commands: their texts, answers, refusals and effects.
#include "model/beam_settings.h"
#include "model/features.h"
#include "ui/loading/loading_fixture.h"
#include "ui/loading/prompt_answers.h"

namespace flexley::testing {
namespace {

using CommandsTest = LoadingFixture;

// A number rounds to the nearest feature number, so 0.4 names none; removed numbers stay taken.
TEST_F(CommandsTest, RemoveFeatureTakesOnlyANumberThatNamesAFeature) {
    // Three loads on the 100 ft beam, each labelled by the redraw after it, as a dialog does.
    started();
    for (double at : {60.0, 120.0, 180.0}) {
        add_point_load(model, 100.0, at, "in", "lb");
        trigger("redrawscreen");
    }
    for (const char* answer : {"0.4", "4", "two"}) {
        SCOPED_TRACE(answer);
        prompts.answer_text(answer);
        trigger("removefeature");
        EXPECT_EQ(prompts.texts(),
                  (QStringList{"Enter feature number to remove", kInvalidFeatureNumberMessage}));
        prompts.forget_shown();
    }
    EXPECT_EQ(model.pt_mag[1], 100.0);

    prompts.answer_text("2.4");
    trigger("removefeature");
    EXPECT_EQ(model.pt_mag[2], 0.0);
    EXPECT_EQ(caption("loadlab2"), "");
    add_support(model, 0.0, "simp", "in", "lb");
    trigger("redrawscreen");
    EXPECT_EQ(caption("featlabel4"), "Feature 4");
}

TEST_F(CommandsTest, ChangeResolutionKeepsAWholeNumberFrom10To200000) {
    started();
    const struct {
        const char* answer;  // empty: cancelled
        float resolution;
        const char* message;  // nullptr: none
    } rows[] = {
        {"250000", 200000.0f, kResolutionTooLarge},
        {"150000", 150000.0f, nullptr},
        {"", 150000.0f, nullptr},
        {"abc", 150000.0f, kInvalidResolution},
        {"9", 150000.0f, kInvalidResolution},
        {"10", 10.0f, nullptr},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.answer);
        prompts.forget_shown();
        row.answer[0] ? prompts.answer_text(row.answer) : prompts.answer_cancel();
        trigger("changerltn");
        EXPECT_EQ(model.resolution, row.resolution);
        EXPECT_EQ(prompts.texts().mid(1), row.message ? QStringList{row.message} : QStringList{});
    }
    const ShownPrompt& asked = prompts.shown().front();
    EXPECT_EQ(asked.text,
              "Enter value for resolution. \nCurrent value of resolution is 150000.\n"
              "Choose value between 10 and 200,000.\n5,000 to 50,000 is standard.");
    EXPECT_EQ(asked.title, "Change Resolution");
    EXPECT_EQ(asked.default_text, "150000");
}

TEST_F(CommandsTest, SignificantFiguresChangeEveryLabelOrAreRefused) {
    started();
    add_point_load(model, 1234.5, 60.0, "in", "lb");
    trigger("redrawscreen");
    for (const char* refused : {"0", "16", "2.5", "many"}) {
        SCOPED_TRACE(refused);
        prompts.answer_text(refused);
        trigger("significantfigs");
        EXPECT_EQ(prompts.texts().last(), kSignificantFiguresRefused);
    }
    prompts.forget_shown();
    prompts.answer_text("5");
    trigger("significantfigs");
    EXPECT_EQ(prompts.shown().front().text,
              "Current number of display significant figures is 3.  Enter desired number of "
              "significant figures.\nThis control is for display only and does not affect "
              "internal calculations.");
    EXPECT_EQ(prompts.shown().front().title, "Display Significant Figures");
    EXPECT_EQ(caption("loadlab1"), "1234.5 lb.");
}

TEST_F(CommandsTest, ReinitializeEmptiesTheBeamAndAsksAboutItsLength) {
    started();
    add_point_load(model, 100.0, 60.0, "in", "lb");
    set_resolution(model, 500.0);
    model.current_file = "beam.lod";
    trigger("redrawscreen");

    prompts.answer_no();
    trigger("reinitialize");
    EXPECT_EQ(prompts.texts().last(),
              "Current beam length is 100 ft.  Do you wish to change beam length?");
    EXPECT_EQ(model.resolution, 10000.0f);
    EXPECT_EQ(window().windowTitle(), "Flexley: Loading Screen");
    EXPECT_EQ(window().findChild<QLabel*>("featlabel1"), nullptr);

    prompts.answer_yes();
    trigger("reinitialize");
    EXPECT_EQ(child<QLineEdit>(child<StartDialog>(window(), "properties"), "Length").text(), "100");
}

}  // namespace
}  // namespace flexley::testing

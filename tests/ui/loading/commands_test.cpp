// The Loading Screen's prompted commands: their texts, answers, refusals and effects.
#include "model/beam_settings.h"
#include "model/features.h"
#include "ui/loading/loading_fixture.h"
#include "ui/loading/prompt_answers.h"

namespace flexley::testing {
namespace {

class CommandsTest : public LoadingFixture {
  protected:
    // A 20 ft English beam with three point loads, labelled by a redraw.
    void three_loads() {
        started();
        // Each feature is labelled by the redraw that follows its addition, as a dialog does.
        for (double at : {60.0, 120.0, 180.0}) {
            add_point_load(model, 100.0, at, "in", "lb");
            trigger("redrawscreen");
        }
        prompts.forget_shown();
    }
};

TEST_F(CommandsTest, RemoveFeatureRefusesEveryAnswerThatNamesNoFeature) {
    three_loads();
    for (const char* answer : {"0", "-1", "4", "0.4", "two"}) {
        SCOPED_TRACE(answer);
        prompts.answer_text(answer);
        trigger("removefeature");
        EXPECT_EQ(prompts.texts(),
                  (QStringList{"Enter feature number to remove", kInvalidFeatureNumberMessage}));
        prompts.forget_shown();
    }
    prompts.answer_cancel();
    trigger("removefeature");
    EXPECT_EQ(prompts.shown().size(), 1u);
    for (int i = 1; i <= 3; ++i)
        EXPECT_EQ(model.pt_mag[i], 100.0);
}

TEST_F(CommandsTest, RemovedNumbersAreNeverGivenAgain) {
    three_loads();
    prompts.answer_text("2.4");
    trigger("removefeature");
    EXPECT_EQ(model.pt_mag[2], 0.0);
    EXPECT_EQ(caption("featlabel2"), "");
    EXPECT_EQ(caption("loadlab2"), "");

    add_support(model, 0.0, "simp", "in", "lb");
    trigger("redrawscreen");
    EXPECT_EQ(caption("featlabel4"), "Feature 4");
    EXPECT_EQ(caption("sloadtitle1"), "Simple Support");
}

struct ResolutionRow {
    const char* answer;
    float resolution;
    const char* message;  // nullptr: none
};

TEST_F(CommandsTest, ChangeResolutionKeepsAWholeNumberFrom10To200000) {
    started();
    const ResolutionRow rows[] = {
        {"250000", 200000.0f, kResolutionTooLarge},
        {"150000", 150000.0f, nullptr},
        {"", 150000.0f, nullptr},
        {"abc", 150000.0f, kInvalidResolution},
        {"9", 150000.0f, kInvalidResolution},
        {"0", 150000.0f, kInvalidResolution},
        {"-100", 150000.0f, kInvalidResolution},
        {"1500.5", 150000.0f, kInvalidResolution},
        {"10", 10.0f, nullptr},
    };
    for (const ResolutionRow& row : rows) {
        SCOPED_TRACE(row.answer);
        prompts.forget_shown();
        row.answer[0] ? prompts.answer_text(row.answer) : prompts.answer_cancel();
        trigger("changerltn");
        EXPECT_EQ(model.resolution, row.resolution);
        EXPECT_EQ(prompts.texts().mid(1), row.message ? QStringList{row.message} : QStringList{});
    }
    prompts.forget_shown();
    prompts.answer_cancel();
    trigger("changerltn");
    const ShownPrompt& asked = prompts.shown().front();
    EXPECT_EQ(asked.text,
              "Enter value for resolution. \nCurrent value of resolution is 10.\n"
              "Choose value between 10 and 200,000.\n5,000 to 50,000 is standard.");
    EXPECT_EQ(asked.title, "Change Resolution");
    EXPECT_EQ(asked.default_text, "10");
}

TEST_F(CommandsTest, SignificantFiguresChangeEveryLabelOrAreRefused) {
    started();
    add_point_load(model, 1234.5, 60.0, "in", "lb");
    trigger("redrawscreen");
    prompts.forget_shown();
    for (const char* refused : {"0", "16", "2.5", "many"}) {
        SCOPED_TRACE(refused);
        prompts.answer_text(refused);
        trigger("significantfigs");
        EXPECT_EQ(prompts.texts().last(), kSignificantFiguresRefused);
        EXPECT_EQ(model.sig_figs, 3);
    }
    prompts.forget_shown();
    prompts.answer_text("5");
    trigger("significantfigs");
    EXPECT_EQ(prompts.shown().front().text,
              "Current number of display significant figures is 3.  Enter desired number of "
              "significant figures.\nThis control is for display only and does not affect "
              "internal calculations.");
    EXPECT_EQ(prompts.shown().front().title, "Display Significant Figures");
    EXPECT_EQ(model.sig_figs, 5);
    EXPECT_EQ(caption("loadlab1"), "1234.5 lb.");
}

TEST_F(CommandsTest, ReinitializeEmptiesTheBeamAndAsksAboutItsLength) {
    started();
    add_point_load(model, 100.0, 60.0, "in", "lb");
    set_section_properties(model, 100.0, 29e6, 5.0);
    set_resolution(model, 500.0);
    model.current_file = "beam.lod";
    trigger("redrawscreen");

    prompts.answer_no();
    trigger("reinitialize");
    EXPECT_EQ(prompts.texts().last(),
              "Current beam length is 100 ft.  Do you wish to change beam length?");
    EXPECT_EQ(model.feature_count, 0);
    EXPECT_EQ(model.resolution, 10000.0f);
    EXPECT_EQ(model.moment_of_inertia, 0.0f);
    EXPECT_DOUBLE_EQ(model.beam_length, 1200.0);
    EXPECT_EQ(window().windowTitle(), "Flexley: Loading Screen");
    EXPECT_EQ(window().findChild<QLabel*>("featlabel1"), nullptr);
    EXPECT_EQ(window().findChild<StartDialog*>(), nullptr);

    prompts.answer_yes();
    trigger("reinitialize");
    discard_closed_windows();
    auto& reopened = child<StartDialog>(window(), "properties");
    EXPECT_TRUE(reopened.isVisible());
    EXPECT_EQ(child<QLineEdit>(reopened, "Length").text(), "100");
}

}  // namespace
}  // namespace flexley::testing

// The standard section chooser: the list file, conversions on selection, sig_figs, the filter.
#include <QLabel>
#include <QListWidget>
#include <QSignalSpy>
#include <QTabWidget>
#include <functional>
#include <utility>

#include "properties_fixture.h"
#include "ui/dialogs/section_chooser_dialog.h"

namespace flexley::testing {
namespace {

constexpr const char* kTwoSystemsList =
    "Notes: a line of instructions.\n"
    "W BEAMS\n"
    "W12 X 26, 204, 6.1, 17.3, 3.245, E\n"
    "IPE 300, 83.56, 150, 6.04, 75, M\n"
    "\"\"\n";

// Chooses a name in the first tab, as a click on it does.
void select(const QDialog& chooser, const char* name) {
    auto& list = child<QListWidget>(chooser, "values0");
    list.setCurrentItem(list.findItems(name, Qt::MatchExactly).value(0));
}

QStringList shown_names(const QDialog& chooser) {
    QStringList names;
    const auto& list = child<QListWidget>(chooser, "values0");
    for (int row = 0; row < list.count(); ++row) {
        if (!list.item(row)->isHidden()) names << list.item(row)->text();
    }
    return names;
}

struct ShownRow {
    bool metric;
    const char* name;
    QStringList shown;  // moi and distc about X-X, then about Y-Y
};

// A record in the beam's own units keeps the file's digits; one in the other system is converted
// and rounded to 6 figures, whatever the beam's own setting.
TEST_F(PropertiesFixture, ChooserShowsTheSelectedSectionInTheBeamsUnits) {
    settings.preferences.beam_definition_path = write_list(kTwoSystemsList);
    const ShownRow rows[] = {
        {true, "W12 X 26", {"84.9112", "154.94", "7.2008", "82.423"}},
        {true, "IPE 300", {"83.56", "150", "6.04", "75"}},
        {false, "IPE 300", {"200.754", "5.90551", "14.5112", "2.95276"}},
        {false, "W12 X 26", {"204", "6.1", "17.3", "3.245"}},
    };
    for (const ShownRow& row : rows) {
        model.metric_units = row.metric;
        SectionChooserDialog chooser(model, settings, prompts);
        select(chooser, row.name);
        EXPECT_EQ((QStringList{text(chooser, "moi0"), text(chooser, "distc0"),
                               text(chooser, "moi1"), text(chooser, "distc1")}),
                  row.shown);
        EXPECT_EQ(child<QLabel>(chooser, "moiunit").text(), row.metric ? "10^6  mm^4" : "in^4");
    }
    EXPECT_TRUE(prompts.shown().empty());
}

// The beam properties dialog takes metric I in mm^4: the shown 10^6 mm^4 is multiplied out.
// Nothing chosen hands on empty texts, which Continue refuses.
TEST_F(PropertiesFixture, ChooserHandsTheChosenAxisToTheBeamProperties) {
    settings.preferences.beam_definition_path = write_list(kTwoSystemsList);
    model.metric_units = true;
    BeamPropertiesDialog properties(model, settings, prompts);
    properties.show();
    auto& chooser = opened<SectionChooserDialog>(properties, "Command4", "choose_beam");
    select(chooser, "W12 X 26");
    click(chooser, "accepty");
    EXPECT_EQ(text(properties, "MomOfI"), "7200800");
    EXPECT_EQ(text(properties, "cdist"), "82.423");

    BeamPropertiesDialog again(model, settings, prompts);
    again.show();
    click(opened<SectionChooserDialog>(again, "Command4", "choose_beam"), "acceptx");
    EXPECT_EQ(text(again, "cdist"), "");
    click(again, "Command1");
    EXPECT_EQ(prompts.shown().size(), 1u);
    EXPECT_TRUE(again.isVisible());

    click(properties, "Command1");
    EXPECT_EQ(model.moment_of_inertia, 7.2008e-06f);
    EXPECT_EQ(model.fibre_distance, 0.082423f);
}

struct MissingRow {
    const char* answer;  // nullptr: the path of a list that exists
    QStringList shown;
    int names;
};

// The typed path becomes the preferred one in every case but Cancel.
TEST_F(PropertiesFixture, ChooserAsksOnceForThePathOfAMissingList) {
    const QString prompt = kBeamDefinitionPathPrompt;
    const MissingRow rows[] = {
        {nullptr, {"File not found.", prompt}, 2},
        {"/no/such/beams.lst", {"File not found.", prompt, "File not found."}, 0},
        {"", {"File not found.", prompt}, 0},
    };
    const std::string found = write_list(kTwoSystemsList);
    for (const MissingRow& row : rows) {
        settings.preferences.beam_definition_path = "/missing/beams.lst";
        const std::string answer = row.answer ? row.answer : found;
        prompts.answer_text(QString::fromStdString(answer));
        SectionChooserDialog chooser(model, settings, prompts);
        EXPECT_EQ(prompts.texts(), row.shown);
        EXPECT_EQ(shown_names(chooser).size(), row.names);
        EXPECT_EQ(settings.preferences.beam_definition_path,
                  answer.empty() ? "/missing/beams.lst" : answer);
        prompts.forget_shown();
    }
}

// sig_figs is the model's and shows on the Loading Screen: no way out may leave it at 6.
TEST_F(PropertiesFixture, ChooserHoldsSixFiguresOnlyWhileOpen) {
    const std::pair<const char*, std::function<void(QDialog&)>> exits[] = {
        {"Cancel", [](QDialog& c) { click(c, "Cancel"); }},
        {"Escape", [](QDialog& c) { QTest::keyClick(&c, Qt::Key_Escape); }},
        {"Use X-X", [](QDialog& c) { click(c, "acceptx"); }},
    };
    model.sig_figs = 3;
    for (const auto& [name, leave] : exits) {
        SCOPED_TRACE(name);
        SectionChooserDialog chooser(model, settings, prompts);
        chooser.show();
        EXPECT_EQ(model.sig_figs, 6);
        leave(chooser);
        EXPECT_FALSE(chooser.isVisible());
        EXPECT_EQ(model.sig_figs, 3);
    }
}

TEST_F(PropertiesFixture, ChooserFilterNarrowsTheNamesAndDoubleClickUsesOne) {
    SectionChooserDialog chooser(model, settings, prompts);
    chooser.show();
    QSignalSpy used(&chooser, &SectionChooserDialog::values_chosen);
    auto& filter = child<QLineEdit>(chooser, "namefilter");
    QTest::keyClicks(&filter, "w12x");
    ASSERT_FALSE(shown_names(chooser).isEmpty());
    for (const QString& name : shown_names(chooser))
        EXPECT_TRUE(name.startsWith("W12 X")) << name.toStdString();

    // Enter goes on to the first name shown; a filter that hides the chosen name unchooses it.
    QTest::keyClick(&filter, Qt::Key_Return);
    EXPECT_EQ(text(chooser, "moi0"), "88.6");
    QTest::keyClicks(&filter, "99");
    EXPECT_EQ(text(chooser, "moi0"), "");
    filter.clear();

    // Each tab shows the values of its own chosen name only.
    select(chooser, "W12 X 26");
    child<QTabWidget>(chooser, "sectiontabs").setCurrentIndex(2);
    EXPECT_EQ(text(chooser, "moi0"), "");
    child<QTabWidget>(chooser, "sectiontabs").setCurrentIndex(0);

    auto& list = child<QListWidget>(chooser, "values0");
    list.scrollToItem(list.currentItem());
    const QPoint name = list.visualItemRect(list.currentItem()).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, name);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, name);
    ASSERT_EQ(used.count(), 1);
    EXPECT_EQ(used.front(), (QVariantList{"204", "6.1"}));
}

// The typical use: a new English beam, a shipped section, Continue.
TEST_F(LoadingFixture, ASectionChosenFromTheShippedListReachesTheModel) {
    started();
    trigger("beamproperties");
    auto& properties = child<BeamPropertiesDialog>(window(), "BeamProp");
    QTest::mouseClick(&child<QPushButton>(properties, "Command4"), Qt::LeftButton);
    auto& chooser = child<SectionChooserDialog>(properties, "choose_beam");
    select(chooser, "W12 X 26");
    QTest::mouseClick(&child<QPushButton>(chooser, "acceptx"), Qt::LeftButton);
    QTest::mouseClick(&child<QPushButton>(properties, "Command1"), Qt::LeftButton);
    EXPECT_EQ(model.moment_of_inertia, 204.0f);
    EXPECT_EQ(model.fibre_distance, 6.1f);
    EXPECT_EQ(model.elastic_modulus, 3e7f);
    EXPECT_TRUE(prompts.shown().empty());
}

}  // namespace
}  // namespace flexley::testing

// The standard section chooser: the list file, conversions on selection, sig_figs, the filter.
#include <QListWidget>
#include <QSignalSpy>

#include "properties_fixture.h"
#include "ui/dialogs/section_chooser_dialog.h"

namespace flexley::testing {
namespace {

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

// An English record on a metric beam is converted; the beam properties dialog takes metric I in
// mm^4, so the shown 10^6 mm^4 is multiplied out. Nothing chosen hands on empty texts, which
// Continue refuses. sig_figs is the model's and shows on the Loading Screen: it is 6 only while
// the chooser is open.
TEST_F(PropertiesFixture, ChooserHandsTheChosenAxisToTheBeamProperties) {
    model.metric_units = true;
    model.sig_figs = 3;
    BeamPropertiesDialog properties(model, settings, prompts);
    properties.show();
    auto& chooser = opened<SectionChooserDialog>(properties, "Command4", "choose_beam");
    EXPECT_EQ(model.sig_figs, 6);
    select(chooser, "W12 X 26");
    click(chooser, "accepty");
    EXPECT_EQ(model.sig_figs, 3);
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

    SectionChooserDialog cancelled(model, settings, prompts);
    cancelled.show();
    click(cancelled, "Cancel");
    EXPECT_EQ(model.sig_figs, 3);
}

// The typed path becomes the preferred one, found or not; a second miss asks no more.
TEST_F(PropertiesFixture, ChooserAsksOnceForThePathOfAMissingList) {
    for (const std::string& answer : {settings.shipped_definitions, std::string("/no/beams.lst")}) {
        settings.preferences.beam_definition_path = "/missing/beams.lst";
        prompts.answer_text(QString::fromStdString(answer));
        SectionChooserDialog chooser(model, settings, prompts);
        const bool exists = answer == settings.shipped_definitions;
        QStringList shown{"File not found.", kBeamDefinitionPathPrompt};
        if (!exists) shown << "File not found.";
        EXPECT_EQ(prompts.texts(), shown);
        EXPECT_EQ(shown_names(chooser).isEmpty(), !exists);
        EXPECT_EQ(settings.preferences.beam_definition_path, answer);
        prompts.forget_shown();
    }
}

TEST_F(PropertiesFixture, ChooserFilterNarrowsTheNamesAndDoubleClickUsesOne) {
    SectionChooserDialog chooser(model, settings, prompts);
    chooser.show();
    QSignalSpy used(&chooser, &SectionChooserDialog::values_chosen);
    QTest::keyClicks(&child<QLineEdit>(chooser, "namefilter"), "w12x");
    ASSERT_FALSE(shown_names(chooser).isEmpty());
    for (const QString& name : shown_names(chooser))
        EXPECT_TRUE(name.startsWith("W12 X")) << name.toStdString();

    select(chooser, "W12 X 26");
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

// The whole journey of the design's typical use, on the real windowing platform: a new user
// builds the beam through the dialogs, saves, starts over, reopens, calculates, reads the
// maximum moment and keeps the report as a PDF that holds the same numbers.
#include <QFileDialog>
#include <QGuiApplication>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include "files/preferences.h"
#include "ui/dialogs/print_dialog.h"
#include "ui/file_dialogs/file_dialog_fixture.h"
#include "ui/printing/pdf_text.h"
#include "ui/results/results_window.h"

namespace flexley::testing {
namespace {

class Journey : public FileDialogFixture {
  protected:
    // An empty configuration folder: no preferences file yet.
    Journey() { QFile::remove(folder.filePath(kPreferencesFileName)); }

    static void type(QWidget& dialog, const char* box, const QString& text) {
        auto& edit = child<QLineEdit>(dialog, box);
        edit.selectAll();
        QTest::keyClicks(&edit, text);
    }

    static void press(QWidget& dialog, const char* button) {
        QTest::mouseClick(&child<QAbstractButton>(dialog, button), Qt::LeftButton);
        discard_closed_windows();
    }

    // Option buttons and check boxes take clicks on their box, at their left end.
    static void tick(QWidget& dialog, const char* button) {
        auto& box = child<QAbstractButton>(dialog, button);
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(box.height() / 2, box.height() / 2));
    }

    // A feature dialog of the Feature menu, filled in and added.
    void add_feature(const char* item, const char* dialog_name,
                     std::initializer_list<std::pair<const char*, QString>> boxes,
                     std::initializer_list<const char*> options = {}) {
        trigger(item);
        QWidget& dialog = child<QWidget>(window(), dialog_name);
        for (const char* option : options)
            tick(dialog, option);
        for (const auto& [box, text] : boxes)
            type(dialog, box, text);
        press(dialog, "Command1");
        EXPECT_EQ(window().findChild<QWidget*>(dialog_name), nullptr) << dialog_name;
    }
};

TEST_F(Journey, TypicalBeamFromTheStartDialogToAPdfReport) {
    ASSERT_EQ(QGuiApplication::platformName(), "xcb");

    window().start();
    ASSERT_EQ(prompts.shown().size(), 1u);
    EXPECT_EQ(prompts.shown()[0].text, kNoPreferencesFile);
    prompts.forget_shown();

    QWidget& start = child<QWidget>(window(), "properties");
    tick(start, "Met");
    type(start, "Length", "5");
    press(start, "Command1");
    ASSERT_TRUE(window().isVisible());
    ASSERT_TRUE(model.metric_units);

    add_feature("addpointload", "load_info", {{"loadloc", "2.5"}, {"loadmag", "2000"}}, {"N"});
    add_feature("addsupport", "support_info", {{"suploc", "0"}}, {"simple"});
    add_feature("addsupport", "support_info", {{"suploc", "5"}}, {"simple"});
    ASSERT_EQ(model.feature_count, 3);

    trigger("beamproperties");
    QWidget& properties = child<QWidget>(window(), "BeamProp");
    type(properties, "MomOfI", "83560000");
    type(properties, "ModE", "210");
    type(properties, "cdist", "150");
    press(properties, "Command1");
    EXPECT_NEAR(model.moment_of_inertia, 8.356e-5, 1e-12);

    save_as("typical");
    ASSERT_EQ(model.current_file, "typical.lod");

    prompts.answer_no();
    trigger("reinitialize");
    EXPECT_EQ(prompts.texts(),
              QStringList{"Current beam length is 5 m.  Do you wish to change beam length?"});
    prompts.forget_shown();
    EXPECT_EQ(model.feature_count, 0);
    trigger("openloadcfg");
    load_through(FileDialogKind::open, path("typical.lod"));
    ASSERT_EQ(model.feature_count, 3);

    trigger("runcalc");
    auto& results = child<ResultsWindow>(window(), "momdisplay");
    ASSERT_TRUE(results.isVisible());
    child<QAction>(results, "max").trigger();
    QWidget& maxima = child<QWidget>(results, "maxvalues");
    EXPECT_EQ(child<QLineEdit>(maxima, "maxmo").text(), "2500 N-m");
    EXPECT_EQ(child<QLineEdit>(maxima, "locmaxmo").text(), "2.5 m");
    press(maxima, "Command1");

    child<QAction>(results, "printcalc").trigger();
    auto& print = child<PrintDialog>(results, "print_info");
    type(print, "title", "Typical beam");
    for (const char* box : {"BeamProp", "LoadText", "SupReac", "MaxVal", "LoadImage", "CalcImage"})
        tick(print, box);
    press(print, "savepdf");
    auto& chooser = child<QFileDialog>(print, "savefile");
    chooser.selectFile(folder.filePath("typical.pdf"));
    static_cast<QDialog&>(chooser).accept();
    discard_closed_windows();

    const QString pdf = folder.filePath("typical.pdf");
    EXPECT_EQ(pdf_page_count(pdf), 3);
    const QString text = pdf_text(pdf);
    for (const char* line :
         {"Typical beam", "Beam Length = 5 m", "2000 N, x=2.5 m",
          "Simple support; 0 m, Reaction=1000 N", "Simple support; 5 m, Reaction=1000 N",
          "Maximum Bending Moment = 2500 N-m at x=2.5 m"}) {
        EXPECT_TRUE(text.contains(line)) << line;
    }
    EXPECT_TRUE(prompts.texts().isEmpty()) << prompts.texts().join('\n').toStdString();
}

}  // namespace
}  // namespace flexley::testing

// The whole journey of the design's typical use, on the real windowing platform: a new user
// builds the beam through the dialogs, saves, starts over, reopens, calculates, reads the
// maximum moment and keeps the report as a PDF that holds the same numbers.
#include <QFileDialog>
#include <QGuiApplication>

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

    // Types each box's text over what it held, then presses `button`.
    static void fill(QWidget& dialog, std::initializer_list<std::pair<const char*, QString>> boxes,
                     const char* button = "Command1") {
        for (const auto& [box, text] : boxes) {
            auto& edit = child<QLineEdit>(dialog, box);
            edit.selectAll();
            QTest::keyClicks(&edit, text);
        }
        QTest::mouseClick(&child<QAbstractButton>(dialog, button), Qt::LeftButton);
        discard_closed_windows();
    }

    // Option buttons and check boxes take clicks on their box, at their left end.
    static void tick(QWidget& dialog, const char* button) {
        auto& box = child<QAbstractButton>(dialog, button);
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(box.height() / 2, box.height() / 2));
    }

    QWidget& opened(const char* item, const char* dialog) {
        trigger(item);
        return child<QWidget>(window(), dialog);
    }
};

TEST_F(Journey, TypicalBeamFromTheStartDialogToAPdfReport) {
    ASSERT_EQ(QGuiApplication::platformName(), "xcb");
    window().start();
    QWidget& start = child<QWidget>(window(), "properties");
    tick(start, "Met");
    fill(start, {{"Length", "5"}});

    fill(opened("addpointload", "load_info"), {{"loadloc", "2.5"}, {"loadmag", "2000"}});
    fill(opened("addsupport", "support_info"), {{"suploc", "0"}});
    fill(opened("addsupport", "support_info"), {{"suploc", "5"}});
    fill(opened("beamproperties", "BeamProp"),
         {{"MomOfI", "83560000"}, {"ModE", "210"}, {"cdist", "150"}});
    EXPECT_NEAR(model.moment_of_inertia, 8.356e-5, 1e-12);

    save_as("typical");
    prompts.answer_no();
    trigger("reinitialize");
    EXPECT_EQ(model.feature_count, 0);
    trigger("openloadcfg");
    load_through(FileDialogKind::open, path("typical.lod"));

    trigger("runcalc");
    auto& results = child<ResultsWindow>(window(), "momdisplay");
    child<QAction>(results, "max").trigger();
    QWidget& maxima = child<QWidget>(results, "maxvalues");
    EXPECT_EQ(child<QLineEdit>(maxima, "maxmo").text(), "2500 N-m");
    EXPECT_EQ(child<QLineEdit>(maxima, "locmaxmo").text(), "2.5 m");

    child<QAction>(results, "printcalc").trigger();
    auto& print = child<PrintDialog>(results, "print_info");
    for (const char* box : {"BeamProp", "LoadText", "SupReac", "MaxVal", "LoadImage", "CalcImage"})
        tick(print, box);
    fill(print, {{"title", "Typical beam"}}, "savepdf");
    auto& chooser = child<QFileDialog>(print, "savefile");
    chooser.selectFile(folder.filePath("typical.pdf"));
    static_cast<QDialog&>(chooser).accept();

    const QString pdf = folder.filePath("typical.pdf");
    const QString text = pdf_text(pdf);
    EXPECT_EQ(text.count('\f'), 3) << "pages";
    for (const char* line :
         {"Typical beam", "Beam Length = 5 m", "2000 N, x=2.5 m",
          "Simple support; 0 m, Reaction=1000 N", "Simple support; 5 m, Reaction=1000 N",
          "Maximum Bending Moment = 2500 N-m at x=2.5 m"})
        EXPECT_TRUE(text.contains(line)) << line;
    const QString question = "Current beam length is 5 m.  Do you wish to change beam length?";
    EXPECT_EQ(prompts.texts(), (QStringList{kNoPreferencesFile, question}));
}

}  // namespace
}  // namespace flexley::testing

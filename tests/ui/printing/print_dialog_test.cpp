// The report dialog from both main windows: its enabling rules, the position check, and the
// report it puts into a PDF, a text file or onto the printer.
#include "ui/dialogs/print_dialog.h"

#include <QFile>
#include <QFileDialog>
#include <QPointer>
#include <QPrintDialog>
#include <QRadioButton>
#include <QTest>

#include "report/report_date.h"
#include "ui/loading/loading_fixture.h"
#include "ui/printing/pdf_text.h"
#include "ui/results/results_window.h"

namespace flexley::testing {
namespace {

enum class Opened { load_new, load_calculated, calc };

class PrintDialogTest : public LoadingFixture {
  protected:
    // The dialog as the user reaches it: from the Loading Screen on the example beam, after
    // "Calculate Support Reactions Only" when asked, or from the Calculations Screen.
    PrintDialog& open(Opened from, const char* example = "simply-supported-point-load.lod") {
        window().start(std::string(FLEXLEY_EXAMPLES_DIR "/") + example);
        if (from != Opened::load_new) trigger(from == Opened::calc ? "runcalc" : "supreact");
        QWidget* over = &window();
        if (from == Opened::calc) over = &child<ResultsWindow>(window(), "momdisplay");
        child<QAction>(*over, from == Opened::calc ? "printcalc" : "printload").trigger();
        return child<PrintDialog>(*over, "print_info");
    }

    static void click(QWidget& dialog, const char* name) {
        child<QAbstractButton>(dialog, name).click();
    }

    // Titles the report "Floor beam", ticks `boxes`, types `location` and saves through `button`
    // into the file `name`; a successful save closes the dialog, which then deletes itself.
    void save(PrintDialog& dialog, std::initializer_list<const char*> boxes, const char* location,
              const char* button, const char* name) {
        const QPointer<PrintDialog> still_open(&dialog);
        QTest::keyClicks(&child<QLineEdit>(dialog, "title"), "Floor beam");
        for (const char* box : boxes)
            click(dialog, box);
        QTest::keyClicks(&child<QLineEdit>(dialog, "loctext"), location);
        click(dialog, button);
        auto& chooser = child<QFileDialog>(dialog, "savefile");
        chooser.selectFile(file(name));
        static_cast<QDialog&>(chooser).accept();
        discard_closed_windows();
        EXPECT_TRUE(still_open.isNull() || !still_open->isVisible());
    }

    QString file(const char* name) const { return folder.filePath(name); }
};

struct EnablingRow {
    Opened from;
    std::vector<const char*> clicks;
    bool support_reactions;
    bool calculations;  // the three boxes of Calcframe
    bool location;
};

const EnablingRow kEnablingRows[] = {
    {Opened::load_new, {"LoadText"}, false, false, false},        // no results to report
    {Opened::load_calculated, {"LoadText"}, true, false, false},  // after a run
    {Opened::calc, {"PtVal"}, false, true, true},
    {Opened::calc, {"PtVal", "PtVal"}, false, true, false},  // ticked and unticked
};

class PrintDialogEnabling : public PrintDialogTest,
                            public ::testing::WithParamInterface<EnablingRow> {};

TEST_P(PrintDialogEnabling, BoxesFollowTheOriginTheResultsAndTheTicks) {
    const EnablingRow& row = GetParam();
    PrintDialog& dialog = open(row.from);
    EXPECT_EQ(dialog.focusWidget(), &child<QLineEdit>(dialog, "title"));
    for (const char* name : row.clicks)
        click(dialog, name);
    const auto enabled = [&](const char* name) { return child<QWidget>(dialog, name).isEnabled(); };
    EXPECT_EQ(enabled("SupReac"), row.support_reactions);
    for (const char* name : {"Calcframe", "PtVal", "MaxVal", "CalcImage"})
        EXPECT_EQ(enabled(name), row.calculations) << name;
    for (const char* name : {"locframe", "loclab", "loctext", "inch", "feet"})
        EXPECT_EQ(enabled(name), row.location) << name;
}

INSTANTIATE_TEST_SUITE_P(Rows, PrintDialogEnabling, ::testing::ValuesIn(kEnablingRows));

// On the 20 ft example beam, where the English unit frame offers inches and feet.
TEST_F(PrintDialogTest, ARefusedLocationIsSaidAndNothingIsOutput) {
    const struct {
        const char* text;
        bool inches;
        bool accepted;
    } rows[] = {{"", false, false},   {"ten", false, false}, {"20.01", false, false},
                {"241", true, false}, {"20", false, true},   {" 240 ", true, true}};
    PrintDialog& dialog = open(Opened::calc);
    click(dialog, "PtVal");
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        prompts.forget_shown();
        child<QLineEdit>(dialog, "loctext").setText(row.text);
        child<QRadioButton>(dialog, row.inches ? "inch" : "feet").setChecked(true);
        click(dialog, "savetext");
        QFileDialog* chooser = dialog.findChild<QFileDialog*>("savefile");
        EXPECT_EQ(chooser != nullptr, row.accepted);
        EXPECT_EQ(prompts.texts(),
                  row.accepted ? QStringList() : QStringList{kInvalidReportLocation});
        EXPECT_TRUE(dialog.isVisible());
        delete chooser;
    }
}

TEST_F(PrintDialogTest, SaveAsTextWritesExactlyTheChosenReportLines) {
    save(open(Opened::calc), {"BeamProp", "LoadText", "SupReac", "MaxVal", "PtVal"}, "5",
         "savetext", "floor.txt");
    // Every section, the point at 5 ft. (60 in.).
    const ReportOptions expected{"Floor beam", true, true, true, true, true, "5", 60.0};
    std::string text;
    for (const std::string& line : report_lines(model, expected, today_short_date()))
        text += line + '\n';
    QFile saved(file("floor.txt"));
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_EQ(saved.readAll().toStdString(), text);
}

TEST_F(PrintDialogTest, SaveAsPdfPrintsBothPicturesThenTheReport) {
    save(open(Opened::calc), {"LoadImage", "CalcImage", "BeamProp", "MaxVal"}, "", "savepdf",
         "floor.pdf");
    // Three pages, each ended by a form feed.
    const QStringList pages = pdf_text(file("floor.pdf")).split('\f');
    ASSERT_EQ(pages.size(), 4);
    // The Loading Screen with its feature labels and reaction texts, then the plots.
    for (const char* text : {"Beam Length is 20 ft.", "2500 lb."})
        EXPECT_TRUE(pages[0].contains(text)) << pages[0].toStdString();
    EXPECT_TRUE(pages[1].contains("MOMENT")) << pages[1].toStdString();
    for (const char* line :
         {"FLEXLEY V2.2 REPORT", "Floor beam", "BEAM PROPERTIES", "Moment of Inertia = 204 in^4",
          "MAXIMUM VALUES", "Maximum Bending Moment = 25000 lb.-ft. at x=10 ft."})
        EXPECT_TRUE(pages[2].contains(line)) << line;
    EXPECT_FALSE(pages[2].contains("LOAD CONFIGURATION"));
}

// The printer set-up dialog chooses the printer; here it is left on a PDF file it cannot write.
TEST_F(PrintDialogTest, APrinterFailureIsReportedWithItsPlaceAndKeepsTheDialogOpen) {
    PrintDialog& dialog = open(Opened::load_new);
    click(dialog, "BeamProp");
    dialog.printer().setOutputFormat(QPrinter::PdfFormat);
    dialog.printer().setOutputFileName(file("missing/printed.pdf"));
    click(dialog, "Command2");
    child<QPrintDialog>(dialog, "").accept();
    EXPECT_EQ(prompts.texts(), QStringList{kUnableToPrint});
    EXPECT_TRUE(prompts.shown()[0].details.contains(file("missing/printed.pdf")));
    EXPECT_TRUE(dialog.isVisible());
}

}  // namespace
}  // namespace flexley::testing

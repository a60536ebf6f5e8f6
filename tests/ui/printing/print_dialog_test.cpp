// The report dialog from both main windows: its enabling rules, the position check, and the
// report it puts into a PDF, a text file or onto the printer.
#include "ui/dialogs/print_dialog.h"

#include <QCheckBox>
#include <QFile>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
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
        if (from == Opened::load_calculated) trigger("supreact");
        if (from != Opened::calc) {
            trigger("printload");
            return child<PrintDialog>(window(), "print_info");
        }
        trigger("runcalc");
        QWidget& results = child<ResultsWindow>(window(), "momdisplay");
        child<QAction>(results, "printcalc").trigger();
        return child<PrintDialog>(results, "print_info");
    }

    // A check box or option button takes clicks on its box and caption only: click the box.
    static void click(QWidget& dialog, const char* name) {
        auto& button = child<QAbstractButton>(dialog, name);
        const QPoint point = qobject_cast<QPushButton*>(&button)
                                 ? button.rect().center()
                                 : QPoint(button.height() / 2, button.height() / 2);
        QTest::mouseClick(&button, Qt::LeftButton, {}, point);
    }

    static void type_location(QWidget& dialog, const QString& text) {
        QTest::keyClicks(&child<QLineEdit>(dialog, "loctext"), text);
    }

    // The file chooser a save opened, answered with `path`; false when none opened.
    static bool choose_file(QWidget& dialog, const QString& path) {
        auto* chooser = dialog.findChild<QFileDialog*>("savefile");
        if (!chooser) return false;
        chooser->selectFile(path);
        static_cast<QDialog*>(chooser)->accept();
        discard_closed_windows();
        return true;
    }

    static bool enabled(QWidget& dialog, const char* name) {
        return child<QWidget>(dialog, name).isEnabled();
    }

    QString file(const char* name) const { return folder.filePath(name); }
};

struct EnablingRow {
    const char* name;
    Opened from;
    std::vector<const char*> clicks;
    bool support_reactions;
    bool calculations;  // the three boxes of Calcframe
    bool location;
};

const EnablingRow kEnablingRows[] = {
    {"LoadingNothingTicked", Opened::load_new, {}, false, false, false},
    {"LoadingTextWithoutResults", Opened::load_new, {"LoadText"}, false, false, false},
    {"LoadingTextAfterARun", Opened::load_calculated, {"LoadText"}, true, false, false},
    {"LoadingTextUnticked", Opened::load_calculated, {"LoadText", "LoadText"}, false, false, false},
    {"CalculationsNothingTicked", Opened::calc, {}, false, true, false},
    {"CalculationsText", Opened::calc, {"LoadText"}, true, true, false},
    {"CalculationsValuesAtAPoint", Opened::calc, {"PtVal"}, false, true, true},
    {"CalculationsValuesAtAPointUnticked", Opened::calc, {"PtVal", "PtVal"}, false, true, false},
};

class PrintDialogEnabling : public PrintDialogTest,
                            public ::testing::WithParamInterface<EnablingRow> {};

TEST_P(PrintDialogEnabling, BoxesFollowTheOriginTheResultsAndTheTicks) {
    const EnablingRow& row = GetParam();
    PrintDialog& dialog = open(row.from);
    EXPECT_EQ(dialog.focusWidget(), &child<QLineEdit>(dialog, "title"));
    for (const char* name : row.clicks)
        click(dialog, name);
    EXPECT_EQ(enabled(dialog, "SupReac"), row.support_reactions);
    for (const char* name : {"Calcframe", "PtVal", "MaxVal", "CalcImage"})
        EXPECT_EQ(enabled(dialog, name), row.calculations) << name;
    for (const char* name : {"locframe", "loclab", "loctext", "inch", "feet"})
        EXPECT_EQ(enabled(dialog, name), row.location) << name;
    EXPECT_TRUE(enabled(dialog, "BeamProp"));
    EXPECT_TRUE(enabled(dialog, "LoadImage"));
}

INSTANTIATE_TEST_SUITE_P(Rows, PrintDialogEnabling, ::testing::ValuesIn(kEnablingRows),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(PrintDialogTest, TheLocationIsInTheBeamsOwnUnits) {
    PrintDialog& english = open(Opened::calc);
    click(english, "PtVal");
    EXPECT_TRUE(child<QGroupBox>(english, "engframe").isVisibleTo(&english));
    EXPECT_FALSE(child<QLabel>(english, "met").isVisibleTo(&english));
    EXPECT_TRUE(child<QRadioButton>(english, "feet").isChecked());
}

TEST_F(PrintDialogTest, AMetricLocationIsInMetres) {
    PrintDialog& metric = open(Opened::calc, "metric-ipe300-combined-loads.lod");
    click(metric, "PtVal");
    EXPECT_FALSE(child<QGroupBox>(metric, "engframe").isVisibleTo(&metric));
    EXPECT_TRUE(child<QLabel>(metric, "met").isVisibleTo(&metric));
    EXPECT_TRUE(child<QLabel>(metric, "met").isEnabled());
}

struct LocationRow {
    const char* name;
    const char* text;
    bool inches;
    bool accepted;
};

// On the 20 ft example beam.
const LocationRow kLocationRows[] = {
    {"Empty", "", false, false},
    {"NotANumber", "ten", false, false},
    {"Negative", "-1", false, false},
    {"BeyondTheEndInFeet", "20.01", false, false},
    {"BeyondTheEndInInches", "241", true, false},
    {"TheEnd", "20", false, true},
    {"TheStart", "0", false, true},
    {"TheEndInInches", "240", true, true},
    {"BlanksAround", " 12.5 ", false, true},
};

class PrintDialogLocation : public PrintDialogTest,
                            public ::testing::WithParamInterface<LocationRow> {};

TEST_P(PrintDialogLocation, ARefusedLocationIsSaidAndNothingIsOutput) {
    const LocationRow& row = GetParam();
    PrintDialog& dialog = open(Opened::calc);
    click(dialog, "PtVal");
    type_location(dialog, row.text);
    if (row.inches) click(dialog, "inch");
    click(dialog, "savetext");
    EXPECT_EQ(dialog.findChild<QFileDialog*>("savefile") != nullptr, row.accepted);
    EXPECT_EQ(prompts.texts(), row.accepted ? QStringList() : QStringList{kInvalidReportLocation});
    EXPECT_TRUE(dialog.isVisible());
}

INSTANTIATE_TEST_SUITE_P(Rows, PrintDialogLocation, ::testing::ValuesIn(kLocationRows),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(PrintDialogTest, SaveAsTextWritesExactlyTheChosenReportLines) {
    PrintDialog& dialog = open(Opened::calc);
    // A successful save closes the dialog, which then deletes itself.
    const QPointer<PrintDialog> still_open(&dialog);
    QTest::keyClicks(&child<QLineEdit>(dialog, "title"), "Floor beam");
    for (const char* name : {"BeamProp", "LoadText", "SupReac", "MaxVal", "PtVal"})
        click(dialog, name);
    type_location(dialog, "5");
    click(dialog, "savetext");
    ASSERT_TRUE(choose_file(dialog, file("floor.txt")));

    ReportOptions expected;
    expected.title = "Floor beam";
    expected.beam_properties = expected.load_text = expected.support_reactions = true;
    expected.maximum_values = expected.point_values = true;
    expected.point_text = "5";
    expected.point_position = 60.0;
    std::string text;
    for (const std::string& line : report_lines(model, expected, today_short_date()))
        text += line + '\n';
    QFile saved(file("floor.txt"));
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_EQ(saved.readAll().toStdString(), text);
    EXPECT_NE(text.find("Simple support; 0 ft., Reaction=2500 lb."), std::string::npos);
    EXPECT_NE(text.find("VALUES AT A POINT (X=5 ft.)"), std::string::npos);
    EXPECT_TRUE(still_open.isNull() || !still_open->isVisible());
}

TEST_F(PrintDialogTest, SaveAsPdfPrintsBothPicturesThenTheReport) {
    PrintDialog& dialog = open(Opened::calc);
    // A successful save closes the dialog, which then deletes itself.
    const QPointer<PrintDialog> still_open(&dialog);
    QTest::keyClicks(&child<QLineEdit>(dialog, "title"), "Floor beam");
    for (const char* name : {"LoadImage", "CalcImage", "BeamProp", "MaxVal"})
        click(dialog, name);
    click(dialog, "savepdf");
    ASSERT_TRUE(choose_file(dialog, file("floor.pdf")));

    EXPECT_EQ(pdf_page_count(file("floor.pdf")), 3);
    const QStringList pages = pdf_text(file("floor.pdf")).split('\f');
    ASSERT_GE(pages.size(), 3);
    // The Loading Screen with its feature labels and reaction texts, then the plots.
    EXPECT_TRUE(pages[0].contains("Beam Length is 20 ft.")) << pages[0].toStdString();
    EXPECT_TRUE(pages[0].contains("2500 lb.")) << pages[0].toStdString();
    EXPECT_TRUE(pages[1].contains("MOMENT")) << pages[1].toStdString();
    for (const char* line :
         {"FLEXLEY V2.2 REPORT", "Floor beam", "BEAM PROPERTIES", "Moment of Inertia = 204 in^4",
          "MAXIMUM VALUES", "Maximum Bending Moment = 25000 lb.-ft. at x=10 ft."}) {
        EXPECT_TRUE(pages[2].contains(line)) << line;
    }
    EXPECT_FALSE(pages[2].contains("LOAD CONFIGURATION"));
    EXPECT_TRUE(still_open.isNull() || !still_open->isVisible());
}

// The printer set-up dialog chooses the printer; here it is left on a PDF file and accepted.
TEST_F(PrintDialogTest, PrintGoesThroughThePrinterSetUpAndReportsAFailure) {
    PrintDialog& dialog = open(Opened::load_new);
    click(dialog, "BeamProp");
    dialog.printer().setOutputFormat(QPrinter::PdfFormat);
    dialog.printer().setOutputFileName(file("missing/printed.pdf"));
    click(dialog, "Command2");
    child<QPrintDialog>(dialog, "").accept();
    EXPECT_EQ(prompts.texts(), QStringList{kUnableToPrint});
    EXPECT_TRUE(dialog.isVisible());

    dialog.printer().setOutputFileName(file("printed.pdf"));
    discard_closed_windows();
    click(dialog, "Command2");
    const QPointer<PrintDialog> still_open(&dialog);
    child<QPrintDialog>(dialog, "").accept();
    EXPECT_TRUE(pdf_text(file("printed.pdf")).contains("BEAM PROPERTIES"));
    EXPECT_TRUE(still_open.isNull() || !still_open->isVisible());
}

TEST_F(PrintDialogTest, CancelPrintsNothing) {
    PrintDialog& dialog = open(Opened::load_new);
    click(dialog, "BeamProp");
    const QPointer<PrintDialog> still_open(&dialog);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_TRUE(still_open.isNull() || !still_open->isVisible());
    EXPECT_TRUE(QDir(folder.path()).entryList({"*.pdf", "*.txt"}).isEmpty());
}

}  // namespace
}  // namespace flexley::testing

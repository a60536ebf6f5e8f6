// The shipped examples through the real windows: each opens and calculates without a message.
// With FLEXLEY_SLIDES_DIR set, the windows it passes through are kept as the About box's slides
// (scripts/make-slides.sh).
#include <QAction>
#include <QDir>
#include <QPixmap>
#include <QPushButton>
#include <QTest>

#include "ui/dialogs/print_dialog.h"
#include "ui/loading/loading_fixture.h"
#include "ui/results/results_window.h"

namespace flexley::testing {
namespace {

class ExampleSlides : public LoadingFixture {
  protected:
    // Keeps a picture of `shown` as slide `name` when slides are being made.
    static void keep(QWidget& shown, const QString& name) {
        const QPixmap picture = shown.grab();
        EXPECT_FALSE(picture.isNull()) << name.toStdString();
        const QString folder = qEnvironmentVariable("FLEXLEY_SLIDES_DIR");
        if (!folder.isEmpty()) {
            EXPECT_TRUE(picture.save(QDir(folder).filePath(name + ".png")));
        }
    }

    ResultsWindow& calculate(const char* example) {
        window().start(std::string(FLEXLEY_EXAMPLES_DIR "/") + example);
        trigger("runcalc");
        EXPECT_TRUE(prompts.texts().isEmpty()) << example;
        return child<ResultsWindow>(window(), "momdisplay");
    }
};

TEST_F(ExampleSlides, StartDialog) {
    window().start();
    keep(child<QWidget>(window(), "properties"), "01-the-start-dialog");
}

TEST_F(ExampleSlides, ContinuousBeam) {
    ResultsWindow& results = calculate("continuous-beam-three-spans.lod");
    keep(window(), "02-a-continuous-beam-with-its-reactions");
    keep(results, "03-its-moment-stress-and-deflection");
    child<QAction>(results, "max").trigger();
    keep(child<QWidget>(results, "maxvalues"), "04-its-maximum-values");
    child<QAction>(results, "printcalc").trigger();
    keep(child<PrintDialog>(results, "print_info"), "05-printing-its-report");
}

TEST_F(ExampleSlides, MetricBeam) {
    ResultsWindow& results = calculate("metric-ipe300-combined-loads.lod");
    keep(window(), "06-a-metric-beam-with-combined-loads");
    keep(results, "07-its-results");
}

}  // namespace
}  // namespace flexley::testing

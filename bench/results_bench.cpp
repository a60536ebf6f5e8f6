// Timing of the three result plots at the largest resolution, and of the whole Calculate command
// from the menu item to the painted Calculations Screen.
#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include "analysis/run.h"
#include "files/load_file.h"
#include "model/beam_model.h"
#include "model/limits.h"
#include "ui/common/program_settings.h"
#include "ui/common/prompts.h"
#include "ui/loading/loading_screen.h"
#include "ui/results/plot_view.h"
#include "ui/results/results_window.h"

namespace {

using flexley::BeamModel;

constexpr const char* kExample = FLEXLEY_EXAMPLES_DIR "/metric-ipe300-combined-loads.lod";

// Nothing is asked during a run of this beam; a message would be a failure of the benchmark.
class SilentPrompts final : public flexley::Prompts {
  public:
    void message(const QString& text, const QString&, const QString&) override {
        qFatal("unexpected message: %s", qPrintable(text));
    }
    bool question(const QString&, const QString&) override { return true; }
    QString text(const QString&, const QString&, const QString&) override { return {}; }
};

BeamModel calculated_example() {
    BeamModel model;
    flexley::read_load_configuration(kExample, model, flexley::LoadFormat::current);
    model.resolution = flexley::kMaxResolution;
    flexley::run_calculation(model, [] { return true; });
    return model;
}

// The three plots painted into a 1920 x 1080 backing image, as the window repaints them.
void plots(benchmark::State& state, bool outline_only) {
    const BeamModel model = calculated_example();
    QImage image(1920, 1080, QImage::Format_ARGB32_Premultiplied);
    const flexley::DrawingUnitMapping mapping = flexley::DrawingUnitMapping::for_device(image);
    const flexley::WorkArea area = flexley::work_area_in_units(1920, 1080, mapping.dots_per_inch());
    const flexley::ScreenGeometry geometry =
        flexley::screen_geometry(area.work_width, area.work_height);
    for (auto _ : state) {
        image.fill(Qt::white);
        QPainter painter(&image);
        flexley::paint_plots(painter, model, geometry, mapping, outline_only, Qt::white);
        painter.end();
        benchmark::DoNotOptimize(image.constBits());
    }
}

void BM_PlotsFilled(benchmark::State& state) {
    plots(state, false);
}
BENCHMARK(BM_PlotsFilled)->Unit(benchmark::kMillisecond);

void BM_PlotsOutline(benchmark::State& state) {
    plots(state, true);
}
BENCHMARK(BM_PlotsOutline)->Unit(benchmark::kMillisecond);

// "Calculate Stress and Deflection" on a closed Calculations Screen: the run, the reaction
// labels, a new maximized window and its first paint.
void BM_CalculateCommand(benchmark::State& state) {
    QTemporaryDir folder;
    BeamModel model;
    flexley::ProgramSettings settings;
    settings.preferences_dir = settings.start_dir = folder.path().toStdString();
    SilentPrompts prompts;
    flexley::LoadingScreen loading(model, settings, prompts, QRect(0, 0, 1920, 1080));
    loading.open_load_file(kExample, flexley::LoadFormat::current);
    model.resolution = flexley::kMaxResolution;
    auto* calculate = loading.findChild<QAction*>("runcalc");
    for (auto _ : state) {
        calculate->trigger();
        auto* results = loading.findChild<flexley::ResultsWindow*>("momdisplay");
        benchmark::DoNotOptimize(results->grab());
        state.PauseTiming();
        results->close();
        delete results;
        state.ResumeTiming();
    }
}
BENCHMARK(BM_CalculateCommand)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

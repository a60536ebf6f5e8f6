// A Loading Screen with an example beam calculated, and the Calculations Screen it opened.
#pragma once

#include <QAction>

#include "ui/loading/loading_fixture.h"
#include "ui/results/results_window.h"

namespace flexley::testing {

class ResultsFixture : public LoadingFixture {
  protected:
    // Opens an example beam as the command line does and runs "Calculate Stress and Deflection".
    ResultsWindow& calculated(const char* example) {
        window().start(std::string(FLEXLEY_EXAMPLES_DIR "/") + example);
        trigger("runcalc");
        return results();
    }

    ResultsWindow& results() { return child<ResultsWindow>(window(), "momdisplay"); }

    void trigger_results(const char* action) { child<QAction>(results(), action).trigger(); }
};

}  // namespace flexley::testing

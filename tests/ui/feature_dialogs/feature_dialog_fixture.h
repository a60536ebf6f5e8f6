// A Loading Screen with a new beam whose feature dialogs are driven as a user drives them.
#pragma once

#include <QRadioButton>
#include <QStringList>
#include <QTest>
#include <vector>

#include "model/features.h"
#include "ui/dialogs/feature_dialog.h"
#include "ui/loading/loading_fixture.h"

namespace flexley::testing {

// The Feature menu command that opens the dialog named `dialog` for adding.
inline const char* add_command(const std::string& dialog) {
    if (dialog == "load_info") return "addpointload";
    if (dialog == "distload_info") return "adddistload";
    if (dialog == "moment_info") return "addmoment";
    return "addsupport";
}

class FeatureDialogFixture : public LoadingFixture {
  protected:
    // A beam from the start dialog: English 100 ft (1200 in.) or metric 5 m.
    void start_beam(bool metric) {
        window().start();
        auto& start = child<StartDialog>(window(), "properties");
        if (metric) child<QRadioButton>(start, "Met").click();
        child<QLineEdit>(start, "Length").setText(metric ? "5" : "100");
        child<QPushButton>(start, "Command1").click();
        discard_closed_windows();
    }

    // The open dialog named `name`, or none once it has closed.
    FeatureDialog* open_dialog(const char* name) {
        return window().findChild<FeatureDialog*>(name);
    }
    FeatureDialog& dialog(const char* name) { return child<FeatureDialog>(window(), name); }

    // Edit Feature on feature `number`, as the user answers its prompt.
    void edit(int number) {
        prompts.answer_text(QString::number(number));
        trigger("editfeature");
    }

    // Does what `actions` says, in order: "inch" clicks the option inch, "loadloc=30" types 30
    // into the box loadloc in place of what it held.
    static void act(FeatureDialog& dialog, const QString& actions) {
        for (const QString& action : actions.split(' ', Qt::SkipEmptyParts)) {
            const QStringList parts = action.split('=');
            const QByteArray control = parts[0].toLatin1();
            if (parts.size() == 1) {
                child<QRadioButton>(dialog, control.constData()).click();
                continue;
            }
            auto& box = child<QLineEdit>(dialog, control.constData());
            box.selectAll();
            QTest::keyClick(&box, Qt::Key_Delete);
            QTest::keyClicks(&box, parts[1]);
        }
    }

    void press_command1(FeatureDialog& dialog) {
        QTest::mouseClick(&child<QPushButton>(dialog, "Command1"), Qt::LeftButton);
        discard_closed_windows();
    }

    // Adds a feature through its dialog, as `act` describes its controls.
    void add(const char* dialog_name, const QString& actions) {
        trigger(add_command(dialog_name));
        act(dialog(dialog_name), actions);
        press_command1(dialog(dialog_name));
    }

    QString box_text(const char* dialog_name, const char* box) {
        return child<QLineEdit>(dialog(dialog_name), box).text();
    }
};

// A feature's table entry: point loads and moments {location, magnitude}, distributed loads
// {start, end, start intensity, end intensity}, supports {location}.
inline std::vector<double> stored_values(const BeamModel& model, int number) {
    const auto feature = lookup_feature(model, number);
    if (!feature) return {};
    const int i = feature->index;
    switch (feature->kind) {
        case FeatureKind::point_load:
            return {model.pt_loc[i], model.pt_mag[i]};
        case FeatureKind::distributed_load:
            return {model.di_start[i], model.di_end[i], model.di_mag_start[i], model.di_mag_end[i]};
        case FeatureKind::moment:
            return {model.mo_loc[i], model.mo_mag[i]};
        case FeatureKind::support:
            return {model.su_loc[i]};
    }
    return {};
}

}  // namespace flexley::testing

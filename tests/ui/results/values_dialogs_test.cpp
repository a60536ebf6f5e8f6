// The maximum values and values-at-a-point dialogs on an English and a metric example beam,
// whose hand-calculated answers the examples' notes give (PL/4, PL^3/48EI, PL^2/16EI).
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "report/point_values.h"
#include "ui/results/results_fixture.h"

namespace flexley::testing {
namespace {

using ValuesDialogsTest = ResultsFixture;

QStringList readouts(const QDialog& dialog, const QStringList& names) {
    QStringList texts;
    for (const QString& name : names) {
        const auto& box = child<QLineEdit>(dialog, name.toLatin1().constData());
        EXPECT_TRUE(box.isReadOnly()) << name.toStdString();
        texts << box.text();
    }
    return texts;
}

const QStringList kMaximumBoxes = {"maxmo",  "locmaxmo",  "maxstr",   "locmaxstr",
                                   "maxdef", "locmaxdef", "maxslope", "locmaxslope"};
const QStringList kPointBoxes = {"mom", "str", "def", "slope"};

TEST_F(ValuesDialogsTest, MaximumValuesShowTheRunsExtremesInTheBeamsUnits) {
    const struct {
        const char* example;
        QStringList texts;
    } rows[] = {
        {"simply-supported-point-load.lod",
         {"25000 lb.-ft.", "10 ft.", "8970 psi", "10 ft.", "-0.243 in.", "10 ft.", "-0.174 degrees",
          "0 ft."}},
        {"metric-ipe300-combined-loads.lod",
         {"67200 N-m", "2.33 m", "121 MPa", "2.33 m", "-14 mm", "2.91 m", "-0.439 degrees", "0 m"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.example);
        calculated(row.example);
        trigger_results("max");
        auto& dialog = child<QDialog>(results(), "maxvalues");
        EXPECT_EQ(readouts(dialog, kMaximumBoxes), row.texts);
        dialog.close();
        trigger_results("showloading");
        discard_closed_windows();
    }
}

TEST_F(ValuesDialogsTest, PointValuesFindTheNearestPointOrRefuseTheLocation) {
    calculated("simply-supported-point-load.lod");  // 20 ft
    trigger_results("point");
    auto& dialog = child<QDialog>(results(), "pointvalues");
    auto& location = child<QLineEdit>(dialog, "loc");
    EXPECT_EQ(dialog.focusWidget(), &location);

    // Enter in the location box is "Find Values"; 20 ft is the beam's end.
    QTest::keyClicks(&location, "20");
    QTest::keyClick(&location, Qt::Key_Return);
    const QStringList at_end = {"0 lb.-in.", "0 psi", "0 in.", "0.174 degrees"};
    EXPECT_EQ(readouts(dialog, kPointBoxes), at_end);

    for (const char* refused : {"", "ten", "20.5"}) {
        SCOPED_TRACE(refused);
        location.setText(refused);
        QTest::mouseClick(&child<QPushButton>(dialog, "Command2"), Qt::LeftButton);
        EXPECT_EQ(prompts.texts().last(), kInvalidLocation);
        EXPECT_EQ(readouts(dialog, kPointBoxes), at_end);
    }

    child<QRadioButton>(dialog, "in").click();
    location.setText("120");
    QTest::mouseClick(&child<QPushButton>(dialog, "Command2"), Qt::LeftButton);
    EXPECT_EQ(readouts(dialog, kPointBoxes),
              (QStringList{"25000 lb.-ft.", "8970 psi", "-0.243 in.", "0 degrees"}));
    EXPECT_EQ(prompts.shown().size(), 3u);
}

}  // namespace
}  // namespace flexley::testing

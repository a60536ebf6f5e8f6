// Page arithmetic of the report printer, and page breaks in a printed PDF.
#include "ui/dialogs/report_printer.h"

#include <gtest/gtest.h>

#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "ui/printing/pdf_text.h"

namespace flexley::testing {
namespace {

TEST(FitToPage, KeepsTheAspectCentredAcrossAndAtTheTop) {
    const struct {
        QSizeF content;
        QRectF page;
        QRectF expected;
    } rows[] = {
        {{2000, 1000}, {0, 0, 500, 800}, {0, 0, 500, 250}},
        {{1000, 2000}, {0, 0, 800, 500}, {275, 0, 250, 500}},
        {{100, 100}, {50, 20, 300, 200}, {100, 20, 200, 200}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(fit_to_page(row.content, row.page), row.expected) << row.expected.x();
}

TEST(TurnOnPage, OnlyWhenThePictureShowsLarger) {
    const QRectF portrait(0, 0, 500, 800);
    EXPECT_TRUE(turn_on_page({2000, 1000}, portrait));
    EXPECT_FALSE(turn_on_page({1000, 2000}, portrait));
    EXPECT_FALSE(turn_on_page({2000, 1000}, QRectF(0, 0, 800, 500)));
}

TEST(PageStarts, APageTooShortForOneLineStillTakesOneSoPrintingEnds) {
    EXPECT_EQ(page_starts(3, 0), (std::vector<std::size_t>{0, 1, 2}));
}

// Numbered lines as long as the header's rules, so a line cut at the margin or split over two
// pages would show.
TEST(PrintedPdf, LongReportBreaksPagesBetweenWholeLinesThatFitTheWidth) {
    QTemporaryDir folder;
    const QString path = folder.filePath("report.pdf");
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    std::vector<std::string> lines;
    for (int k = 1; k <= 150; ++k) {
        const std::string number = std::to_string(1000 + k);
        lines.push_back("    " + number + std::string(106, '-') + "end" + number);
    }
    ASSERT_TRUE(print_report(printer, {}, lines).ok());

    const QString text = pdf_text(path);
    EXPECT_GE(text.count('\f'), 2);
    int found = 0;
    for (const QString& line : text.split(QRegularExpression("[\n\f]"))) {
        const QString trimmed = line.trimmed();
        if (trimmed.isEmpty()) continue;
        ++found;
        EXPECT_TRUE(trimmed.endsWith("end" + trimmed.left(4))) << trimmed.toStdString();
    }
    EXPECT_EQ(found, 150);
}

}  // namespace
}  // namespace flexley::testing

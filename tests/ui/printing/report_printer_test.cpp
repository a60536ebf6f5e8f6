// Page arithmetic of the report printer, and what a printed PDF holds.
#include "ui/dialogs/report_printer.h"

#include <gtest/gtest.h>

#include <QPrinter>
#include <QTemporaryDir>

#include "ui/printing/pdf_text.h"

namespace flexley::testing {
namespace {

struct FitRow {
    const char* name;
    QSizeF content;
    QRectF page;
    QRectF expected;
};

TEST(FitToPage, KeepsTheAspectCentredAcrossAndAtTheTop) {
    const FitRow rows[] = {
        {"wide content is as wide as the page", {2000, 1000}, {0, 0, 500, 800}, {0, 0, 500, 250}},
        {"tall content is as tall as the page, centred",
         {1000, 2000},
         {0, 0, 800, 500},
         {275, 0, 250, 500}},
        {"same aspect fills the page", {300, 400}, {0, 0, 600, 800}, {0, 0, 600, 800}},
        {"a page with an offset keeps it", {100, 100}, {50, 20, 300, 200}, {100, 20, 200, 200}},
    };
    for (const FitRow& row : rows) {
        SCOPED_TRACE(row.name);
        const QRectF fitted = fit_to_page(row.content, row.page);
        EXPECT_NEAR(fitted.x(), row.expected.x(), 1e-9);
        EXPECT_NEAR(fitted.y(), row.expected.y(), 1e-9);
        EXPECT_NEAR(fitted.width(), row.expected.width(), 1e-9);
        EXPECT_NEAR(fitted.height(), row.expected.height(), 1e-9);
    }
}

TEST(TurnOnPage, OnlyWhenThePictureShowsLarger) {
    const QRectF portrait(0, 0, 500, 800);
    EXPECT_TRUE(turn_on_page({2000, 1000}, portrait));
    EXPECT_FALSE(turn_on_page({1000, 2000}, portrait));
    EXPECT_FALSE(turn_on_page({2000, 1000}, QRectF(0, 0, 800, 500)));
    EXPECT_FALSE(turn_on_page({500, 500}, portrait));
}

TEST(PageStarts, WholeLinesPerPage) {
    using Starts = std::vector<std::size_t>;
    EXPECT_EQ(page_starts(0, 50), Starts{});
    EXPECT_EQ(page_starts(50, 50), Starts{0});
    EXPECT_EQ(page_starts(51, 50), (Starts{0, 50}));
    // A page too short for one line still takes one, so printing always ends.
    EXPECT_EQ(page_starts(3, 0), (Starts{0, 1, 2}));
}

class PrintedPdf : public ::testing::Test {
  protected:
    PrintedPdf() {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
    }

    QTemporaryDir folder;
    QString path = folder.filePath("report.pdf");
    QPrinter printer{QPrinter::HighResolution};
};

// Numbered lines as long as the header's rules, so a line cut at the margin or split over two
// pages would show.
TEST_F(PrintedPdf, LongReportBreaksPagesBetweenWholeLinesThatFitTheWidth) {
    std::vector<std::string> lines;
    for (int k = 1; k <= 150; ++k) {
        const std::string number = std::to_string(1000 + k);
        lines.push_back("    " + number + std::string(106, '-') + "end" + number);
    }
    ASSERT_TRUE(print_report(printer, {}, lines).ok());

    const QStringList pages = pdf_text(path).split('\f', Qt::SkipEmptyParts);
    EXPECT_GE(pdf_page_count(path), 2);
    int found = 0;
    for (const QString& page : pages) {
        for (const QString& line : page.split('\n', Qt::SkipEmptyParts)) {
            const QString trimmed = line.trimmed();
            if (trimmed.isEmpty()) continue;
            ++found;
            const QString number = trimmed.left(4);
            EXPECT_TRUE(trimmed.endsWith("end" + number)) << trimmed.toStdString();
        }
    }
    EXPECT_EQ(found, 150);
}

TEST_F(PrintedPdf, NothingToPrintStillEndsTheDocument) {
    ASSERT_TRUE(print_report(printer, {}, {}).ok());
    EXPECT_EQ(pdf_page_count(path), 1);
    EXPECT_TRUE(pdf_text(path).trimmed().isEmpty());
}

TEST_F(PrintedPdf, AFileThatCannotBeWrittenIsAFailureNamingIt) {
    const QString missing = folder.filePath("no such folder/report.pdf");
    printer.setOutputFileName(missing);
    const Status printed = print_report(printer, {}, {"TEXT"});
    EXPECT_FALSE(printed.ok());
    EXPECT_EQ(printed.message(), kUnableToPrint);
    EXPECT_NE(printed.detail().find(missing.toStdString()), std::string::npos);
}

}  // namespace
}  // namespace flexley::testing

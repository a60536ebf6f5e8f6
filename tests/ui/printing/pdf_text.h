// Reading back a written PDF with poppler's command-line tools: its text and its page count.
#pragma once

#include <QProcess>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

namespace flexley::testing {

// The output of a poppler tool, empty when it cannot run.
inline QString poppler_output(const QString& tool, const QStringList& arguments) {
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForFinished(30000) || process.exitCode() != 0) return {};
    return QString::fromUtf8(process.readAllStandardOutput());
}

// The text with its layout kept, so columns and whole lines can be compared; pages end in a
// form feed.
inline QString pdf_text(const QString& path) {
    return poppler_output("pdftotext", {"-layout", path, "-"});
}

inline int pdf_page_count(const QString& path) {
    const QRegularExpressionMatch pages =
        QRegularExpression(R"(Pages:\s+(\d+))").match(poppler_output("pdfinfo", {path}));
    return pages.hasMatch() ? pages.captured(1).toInt() : 0;
}

}  // namespace flexley::testing

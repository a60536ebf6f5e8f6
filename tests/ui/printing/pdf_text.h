// Reading back the text of a written PDF with poppler's pdftotext.
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

namespace flexley::testing {

// The text with its layout kept, so columns and whole lines can be compared; every page ends in
// a form feed. Empty when the tool cannot run.
inline QString pdf_text(const QString& path) {
    QProcess process;
    process.start("pdftotext", {"-layout", path, "-"});
    if (!process.waitForFinished(30000) || process.exitCode() != 0) return {};
    return QString::fromUtf8(process.readAllStandardOutput());
}

}  // namespace flexley::testing

// The report on paper or in a file: window pictures scaled to their pages, then the text report.
#pragma once

#include <QRectF>
#include <QSizeF>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "model/status.h"
#include "ui/common/drawing_units.h"

class QPainter;
class QPrinter;

namespace flexley {

inline constexpr const char* kUnableToPrint = "Unable to print the report.";

// A picture of a window as vector graphics: its size in drawing units and how to paint it
// through a mapping, so that a page can show it at any scale and a PDF stays sharp.
struct WindowPicture {
    QSizeF extent;  // drawing units
    std::function<void(QPainter&, const DrawingUnitMapping&)> paint;
};

// Where content of the given size stands on a page: as large as fits, keeping its aspect,
// centred across the page and at its top.
QRectF fit_to_page(const QSizeF& content, const QRectF& page);

// Whether content shows larger turned a quarter turn on the page, as a wide window does on a
// portrait page.
bool turn_on_page(const QSizeF& content, const QRectF& page);

// The first line of each page when every page takes `lines_per_page` whole lines (at least one);
// no pages for no lines.
std::vector<std::size_t> page_starts(std::size_t line_count, int lines_per_page);

// Prints each picture on a page of its own, then the lines in a fixed-pitch font, so the
// report's columns line up, sized so the widest line fits the page width. The document is
// ended even when there is nothing to print. A failure names the printer or file.
Status print_report(QPrinter& printer, const std::vector<WindowPicture>& pictures,
                    const std::vector<std::string>& lines);

// The report's lines, each ending in a line break, as the file's whole text.
Status save_report_text(const std::string& path, const std::vector<std::string>& lines);

}  // namespace flexley

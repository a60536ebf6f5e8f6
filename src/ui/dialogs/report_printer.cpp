// Prints window pictures and the text report onto any printer, a PDF file included.
#include "ui/dialogs/report_printer.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <algorithm>
#include <cmath>

#include "files/text_file.h"

namespace flexley {

namespace {

constexpr double kReportPointSize = 10.0;

// The printable area in the painter's coordinates, whose origin is the area's top left corner.
QRectF printable_area(const QPrinter& printer) {
    return QRectF(QPointF(0, 0), printer.pageRect(QPrinter::DevicePixel).size());
}

std::string where_it_failed(const QPrinter& printer) {
    if (printer.outputFormat() == QPrinter::PdfFormat) {
        return "The file " + printer.outputFileName().toStdString() + " cannot be written.";
    }
    return "The printer " + printer.printerName().toStdString() + " did not accept the report.";
}

// The fixed-pitch font at the size at which the widest line fits the page width, never larger
// than a usual report size: the rules of the header are 118 characters wide.
QFont report_font(const QPrinter& printer, const std::vector<std::string>& lines,
                  double page_width) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(kReportPointSize);
    const QFontMetricsF metrics(font, &printer);
    double widest = 0.0;
    for (const std::string& line : lines)
        widest = std::max(widest, metrics.horizontalAdvance(QString::fromStdString(line)));
    if (widest > page_width) {
        // A little under the exact ratio, as glyph advances do not scale exactly with the size.
        font.setPointSizeF(kReportPointSize * page_width / widest * 0.98);
    }
    return font;
}

class PageSequence {
  public:
    explicit PageSequence(QPrinter& printer) : printer_(printer) {}
    // The painter starts on the first page; every later page must be asked for.
    bool next() {
        if (first_) {
            first_ = false;
            return true;
        }
        return printer_.newPage();
    }

  private:
    QPrinter& printer_;
    bool first_ = true;
};

void print_picture(QPainter& painter, const WindowPicture& picture, QRectF page) {
    painter.save();
    if (turn_on_page(picture.extent, page)) {
        // Turned clockwise, so the picture's top runs down the page's right edge.
        painter.translate(page.right(), page.top());
        painter.rotate(90);
        page = QRectF(0, 0, page.height(), page.width());
    }
    const QRectF target = fit_to_page(picture.extent, page);
    const double pixels_per_unit = target.width() / picture.extent.width();
    painter.translate(target.topLeft());
    painter.setClipRect(QRectF(QPointF(0, 0), target.size()));
    picture.paint(painter, DrawingUnitMapping(pixels_per_unit * kDrawingUnitsPerInch));
    painter.restore();
}

bool print_lines(QPainter& painter, PageSequence& pages, const QPrinter& printer,
                 const std::vector<std::string>& lines, const QRectF& page) {
    const QFont font = report_font(printer, lines, page.width());
    painter.setFont(font);
    painter.setPen(Qt::black);
    const QFontMetricsF metrics(font, &printer);
    const int lines_per_page = static_cast<int>(page.height() / metrics.lineSpacing());
    const std::vector<std::size_t> starts = page_starts(lines.size(), lines_per_page);
    for (std::size_t p = 0; p < starts.size(); ++p) {
        if (!pages.next()) return false;
        const std::size_t end = p + 1 < starts.size() ? starts[p + 1] : lines.size();
        double baseline = metrics.ascent();
        for (std::size_t k = starts[p]; k < end; ++k) {
            painter.drawText(QPointF(0, baseline), QString::fromStdString(lines[k]));
            baseline += metrics.lineSpacing();
        }
    }
    return true;
}

}  // namespace

QRectF fit_to_page(const QSizeF& content, const QRectF& page) {
    const double scale = std::min(page.width() / content.width(), page.height() / content.height());
    const QSizeF size = content * scale;
    return {QPointF(page.left() + (page.width() - size.width()) / 2, page.top()), size};
}

bool turn_on_page(const QSizeF& content, const QRectF& page) {
    const QSizeF turned(page.height(), page.width());
    return fit_to_page(content, QRectF(QPointF(), turned)).width() >
           fit_to_page(content, page).width();
}

std::vector<std::size_t> page_starts(std::size_t line_count, int lines_per_page) {
    const auto per_page = static_cast<std::size_t>(std::max(1, lines_per_page));
    std::vector<std::size_t> starts;
    for (std::size_t first = 0; first < line_count; first += per_page)
        starts.push_back(first);
    return starts;
}

Status print_report(QPrinter& printer, const std::vector<WindowPicture>& pictures,
                    const std::vector<std::string>& lines) {
    const Status failed = Status::failure(kUnableToPrint).with_detail(where_it_failed(printer));
    QPainter painter;
    if (!painter.begin(&printer)) return failed;
    const QRectF page = printable_area(printer);
    PageSequence pages(printer);
    bool printed = true;
    for (const WindowPicture& picture : pictures) {
        printed = pages.next();
        if (!printed) break;
        print_picture(painter, picture, page);
    }
    if (printed) printed = print_lines(painter, pages, printer, lines, page);
    // Ending the document is what sends it to the printer, or finishes the file.
    painter.end();
    if (!printed || printer.printerState() == QPrinter::Error) return failed;
    return Status::success();
}

Status save_report_text(const std::string& path, const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + '\n';
    return replace_file(path, text);
}

}  // namespace flexley

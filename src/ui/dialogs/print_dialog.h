// The report dialog "print_info": what to print, the title, the position for values at a point,
// and the printer, a PDF file or a text file to put the report on.
#pragma once

#include <QDialog>
#include <QPrinter>
#include <optional>
#include <vector>

#include "model/beam_model.h"
#include "report/report.h"
#include "ui/common/prompts.h"
#include "ui/dialogs/report_printer.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace flexley {

// Which window opened the dialog: from the Loading Screen only the beam and its loads can be
// printed, from the Calculations Screen the results too.
enum class PrintOrigin { load, calc };

// The pictures the "Graphic Image" boxes print; each is painted only when printed.
struct ReportPictures {
    WindowPicture loading;
    WindowPicture calculations;
};

class PrintDialog final : public QDialog {
    Q_OBJECT

  public:
    // `folder` is where the PDF and text files are offered first.
    PrintDialog(const BeamModel& model, Prompts& prompts, PrintOrigin origin,
                ReportPictures pictures, const QString& folder, QWidget* parent = nullptr);

    // The printer the printer set-up dialog chooses and "Print" prints on.
    QPrinter& printer() { return printer_; }

  private:
    void lay_out();
    QGroupBox* load_frame();
    QGroupBox* calculations_frame();
    QGroupBox* location_frame();
    void apply_origin();
    void update_support_reactions();
    void update_location();

    // The chosen report, or nothing when the typed position is refused (the user is told).
    std::optional<ReportOptions> chosen_options();
    void print_on_printer();
    void save_as_pdf();
    void save_as_text();
    // Opens a save-file chooser beside the dialog; `save` runs with the chosen path.
    void choose_file(const QString& caption, const QString& filter, const QString& suffix,
                     void (PrintDialog::*save)(const QString&));
    void write_pdf(const QString& path);
    void write_text(const QString& path);
    // Prints pictures and report on `printer`; true when done, else the user is told why.
    bool print_on(QPrinter& printer);
    std::vector<WindowPicture> chosen_pictures() const;

    const BeamModel& model_;
    Prompts& prompts_;
    PrintOrigin origin_;
    ReportPictures pictures_;
    QString folder_;
    QPrinter printer_;
    std::optional<ReportOptions> pending_;  // the report whose file or printer is being chosen

    QLineEdit* title_;
    QCheckBox* beam_properties_;
    QCheckBox* load_text_;
    QCheckBox* support_reactions_;
    QCheckBox* load_image_;
    QCheckBox* point_values_;
    QCheckBox* maximum_values_;
    QCheckBox* calc_image_;
    QGroupBox* calc_frame_ = nullptr;
    QGroupBox* location_frame_ = nullptr;
    QLabel* location_caption_;
    QLineEdit* location_;
    QGroupBox* unit_frame_ = nullptr;
    QRadioButton* inch_;
    QRadioButton* feet_;
    QLabel* metre_;
};

}  // namespace flexley

// The "Choose Standard Cross-Section" dialog: I and c of a listed section, about either axis.
#include "ui/dialogs/section_chooser_dialog.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "sections/chooser_values.h"
#include "ui/common/controls.h"
#include "ui/dialogs/section_dialog_parts.h"

namespace flexley {
namespace {

constexpr std::array<const char*, kSectionKindCount> kHelpTexts{
    "A beam listed as W36 X 300 has a nominal depth of 36 inches and weighs 300 lb/ft.",
    "A beam listed as S24 X 100 has a nominal depth of 24 inches and weighs 100 lb/ft.",
    "A beam listed as C15 X 50 has a nominal depth of 15 inches and weighs 50 lb/ft.",
    "A beam listed as L8 X 6 X 1 has one leg 8 inches long, the other leg 6 inches long and "
    "thickness of 1 inch.",
    "Refer to file \"beams.lst\" for instructions on how to enter beams in this list.",
};

// Names are matched without their blanks, so "w12x26" finds "W12 X 26".
QString without_blanks(QString text) {
    return text.remove(' ');
}

QLineEdit* result_box(const QString& name) {
    auto* box = new QLineEdit;
    box->setObjectName(name);
    box->setReadOnly(true);
    return box;
}

}  // namespace

SectionChooserDialog::SectionChooserDialog(BeamModel& model, ProgramSettings& settings,
                                           Prompts& prompts, QWidget* parent)
    : QDialog(parent),
      model_(model),
      settings_(settings),
      prompts_(prompts),
      saved_sig_figs_(model.sig_figs) {
    setObjectName("choose_beam");
    setWindowTitle("Choose Standard Cross-Section");
    model_.sig_figs = kChooserSigFigs;
    definitions_ = read_definitions().value_or(BeamDefinitions{});
    build_tabs();
    lay_out();
    filter_->setFocus();
}

SectionChooserDialog::~SectionChooserDialog() {
    restore_sig_figs();
}

void SectionChooserDialog::done(int result) {
    restore_sig_figs();
    QDialog::done(result);
}

void SectionChooserDialog::restore_sig_figs() {
    if (!saved_sig_figs_) return;
    model_.sig_figs = *saved_sig_figs_;
    saved_sig_figs_.reset();
}

// A path typed after a failure is kept as the preferred one, so the next opening finds the file;
// a second failure is reported the same way and leaves the lists empty.
std::optional<BeamDefinitions> SectionChooserDialog::read_definitions() {
    const std::string path = beam_definition_file(settings_);
    if (std::optional<BeamDefinitions> read = read_beam_definitions(path)) return read;
    prompts_.message(kFileNotFound);
    const QString answer =
        prompts_.text(kBeamDefinitionPathPrompt, kProgramTitle, QString::fromStdString(path));
    if (answer.isEmpty()) return std::nullopt;
    settings_.preferences.beam_definition_path = answer.toStdString();
    if (std::optional<BeamDefinitions> read = read_beam_definitions(answer.toStdString())) {
        return read;
    }
    prompts_.message(kFileNotFound);
    return std::nullopt;
}

void SectionChooserDialog::build_tabs() {
    tabs_ = named(new QTabWidget, "sectiontabs");
    // Every caption stays readable: the dialog is at least as wide as the five tabs.
    tabs_->setUsesScrollButtons(false);
    for (int kind = 0; kind < kSectionKindCount; ++kind) {
        auto* page = new QWidget;
        auto* column = new QVBoxLayout(page);
        auto* help = new QLabel(kHelpTexts[kind]);
        help->setWordWrap(true);
        column->addWidget(help);
        auto* list = new QListWidget;
        list->setObjectName(QString("values%1").arg(kind));
        for (const SectionRecord& record : definitions_.sections[kind])
            list->addItem(text_of(record.name));
        column->addWidget(list);
        lists_[kind] = list;
        tabs_->addTab(page, text_of(kSectionKinds[kind].caption));
        connect(list, &QListWidget::itemSelectionChanged, this,
                &SectionChooserDialog::show_selected);
        connect(list, &QListWidget::itemDoubleClicked, this, [this] { use_values(kAxisXX); });
    }
    // The values shown are always those of the name chosen on the tab in view, so a value from
    // a hidden tab is never used by mistake.
    connect(tabs_, &QTabWidget::currentChanged, this, &SectionChooserDialog::show_selected);
}

// Top to bottom: the filter, the tabs with their lists, the values about each axis, the
// buttons; Tab follows the same order. Enter on a list is "Use X-X Values", Escape Cancel.
void SectionChooserDialog::lay_out() {
    filter_ = named(new QLineEdit, "namefilter");
    filter_->setPlaceholderText("for example W12");
    filter_->installEventFilter(this);
    connect(filter_, &QLineEdit::textChanged, this, &SectionChooserDialog::apply_filter);
    auto* filter_caption = new QLabel("Show names containing");
    filter_caption->setBuddy(filter_);
    auto* filter_row = new QHBoxLayout;
    filter_row->addWidget(filter_caption);
    filter_row->addWidget(filter_);

    auto* values = new QGridLayout;
    values->addWidget(new QLabel("X-X"), 0, 1, Qt::AlignHCenter);
    values->addWidget(new QLabel("Y-Y"), 0, 2, Qt::AlignHCenter);
    values->addWidget(new QLabel("Moment of Inertia"), 1, 0);
    values->addWidget(new QLabel("Distance to Farthest Fiber"), 2, 0);
    for (int axis : {kAxisXX, kAxisYY}) {
        moment_of_inertia_[axis] = result_box(QString("moi%1").arg(axis));
        fibre_distance_[axis] = result_box(QString("distc%1").arg(axis));
        values->addWidget(moment_of_inertia_[axis], 1, 1 + axis);
        values->addWidget(fibre_distance_[axis], 2, 1 + axis);
    }
    const bool metric = model_.metric_units;
    values->addWidget(named(new QLabel(metric ? "10^6  mm^4" : "in^4"), "moiunit"), 1, 3);
    values->addWidget(named(new QLabel(metric ? "mm" : "in"), "distcunit"), 2, 3);

    auto* use_xx = push_button("Use X-X Values", "acceptx");
    auto* use_yy = push_button("Use Y-Y Values", "accepty");
    auto* cancel = push_button("Cancel", "Cancel");
    use_xx->setDefault(true);
    connect(use_xx, &QPushButton::clicked, this, [this] { use_values(kAxisXX); });
    connect(use_yy, &QPushButton::clicked, this, [this] { use_values(kAxisYY); });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* column = new QVBoxLayout(this);
    column->addLayout(filter_row);
    column->addWidget(tabs_, 1);
    column->addLayout(values);
    column->addLayout(button_row({use_xx, use_yy, cancel}));

    QList<QWidget*> order{filter_, tabs_};
    for (QListWidget* list : lists_)
        order << list;
    order << moment_of_inertia_[kAxisXX] << moment_of_inertia_[kAxisYY] << fibre_distance_[kAxisXX]
          << fibre_distance_[kAxisYY] << use_xx << use_yy << cancel;
    set_tab_order(order);
}

// Filters every tab's list at once, so the filter holds whatever tab is shown. A name the filter
// hides is no longer chosen: its values could otherwise be used unseen.
void SectionChooserDialog::apply_filter() {
    const QString wanted = without_blanks(filter_->text());
    for (QListWidget* list : lists_) {
        for (int row = 0; row < list->count(); ++row) {
            QListWidgetItem* item = list->item(row);
            item->setHidden(!without_blanks(item->text()).contains(wanted, Qt::CaseInsensitive));
        }
        const QList<QListWidgetItem*> chosen = list->selectedItems();
        if (!chosen.isEmpty() && chosen.front()->isHidden()) list->clearSelection();
    }
    show_selected();
}

void SectionChooserDialog::show_selected() {
    const int kind = tabs_->currentIndex();
    const QList<QListWidgetItem*> chosen = lists_[kind]->selectedItems();
    for (int axis : {kAxisXX, kAxisYY}) {
        AxisTexts shown;
        if (!chosen.isEmpty()) {
            const SectionRecord& record =
                definitions_.sections[kind][lists_[kind]->row(chosen.front())];
            shown = axis == kAxisXX ? shown_axis_values(record.i_xx, record.c_xx, record.unit_flag,
                                                        model_.metric_units, model_.sig_figs)
                                    : shown_axis_values(record.i_yy, record.c_yy, record.unit_flag,
                                                        model_.metric_units, model_.sig_figs);
        }
        moment_of_inertia_[axis]->setText(QString::fromStdString(shown.moment_of_inertia));
        fibre_distance_[axis]->setText(QString::fromStdString(shown.fibre_distance));
    }
}

QListWidget& SectionChooserDialog::current_list() const {
    return *lists_[tabs_->currentIndex()];
}

// Enter or Down in the filter goes on to the list, choosing its first shown name, so a name can
// be found and used from the keyboard alone.
bool SectionChooserDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched != filter_ || event->type() != QEvent::KeyPress) {
        return QDialog::eventFilter(watched, event);
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Down) return false;
    QListWidget& list = current_list();
    list.setFocus(Qt::TabFocusReason);
    if (list.selectedItems().isEmpty()) {
        for (int row = 0; row < list.count(); ++row) {
            if (list.item(row)->isHidden()) continue;
            list.setCurrentRow(row);
            break;
        }
    }
    return true;
}

// Nothing chosen hands on empty texts, which the beam properties dialog then refuses on
// Continue.
void SectionChooserDialog::use_values(Axis axis) {
    const QString moment_of_inertia = QString::fromStdString(properties_moment_of_inertia(
        moment_of_inertia_[axis]->text().toStdString(), model_.metric_units));
    emit values_chosen(moment_of_inertia, fibre_distance_[axis]->text());
    accept();
}

}  // namespace flexley

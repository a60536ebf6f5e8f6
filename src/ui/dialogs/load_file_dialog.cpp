// The Save, Open and Import dialogs: one small file browser of drives, folders and files, which
// hands the chosen folder and name to the command that saves or reads the load file.
#include "ui/dialogs/load_file_dialog.h"

#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QDir>
#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QStorageInfo>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <unordered_map>

#include "files/directory_listing.h"
#include "files/file_list.h"
#include "ui/common/controls.h"

namespace flexley {
namespace {

constexpr int kPathRole = Qt::UserRole;

const char* caption_of(FileDialogKind kind) {
    switch (kind) {
        case FileDialogKind::save:
            return "Save Load Configuration";
        case FileDialogKind::open:
            return "Retrieve Load Configuration";
        case FileDialogKind::import:
            return "Import Version 1 File";
    }
    return "";
}

// Whether `directory` lies on the volume mounted at `root` (the root itself included).
bool lies_under(const QString& directory, const QString& root) {
    return directory == root || root == "/" || directory.startsWith(root + '/');
}

// The file names in sort_list order.
std::vector<std::string> sorted_names(std::vector<std::string> names) {
    sort_list(names);
    return names;
}

bool focus_within(const QWidget* widget, const QWidget* focus) {
    return widget && focus && (widget == focus || widget->isAncestorOf(focus));
}

}  // namespace

const char* file_dialog_name(FileDialogKind kind) {
    switch (kind) {
        case FileDialogKind::save:
            return "Saveload";
        case FileDialogKind::open:
            return "getload";
        case FileDialogKind::import:
            return "importload";
    }
    return "";
}

LoadFileDialog::LoadFileDialog(FileDialogKind kind, ProgramSettings& settings, Prompts& prompts,
                               Command command, QWidget* parent)
    : QDialog(parent),
      kind_(kind),
      settings_(settings),
      prompts_(prompts),
      command_(std::move(command)) {
    setObjectName(file_dialog_name(kind));
    setWindowTitle(caption_of(kind));
    build_shared_controls();
    if (kind == FileDialogKind::save) {
        build_save_controls();
    } else {
        build_load_controls();
    }
    lay_out();
    fill_drive_list();
    start_directory();
}

void LoadFileDialog::build_shared_controls() {
    drive_list_ = named(new QComboBox, "drivelist");
    directory_list_ = named(new QTreeWidget, "dirlist");
    directory_list_->setHeaderHidden(true);
    directory_list_->setExpandsOnDoubleClick(false);
    directory_list_->setMinimumWidth(220);
    command_button_ = named(new QPushButton(kind_ == FileDialogKind::save ? "Save" : "Load"),
                            kind_ == FileDialogKind::save ? "savebutton" : "loadbutton");
    cancel_button_ = named(new QPushButton("Cancel"), "cancelbutton");
    command_button_->setDefault(true);

    connect(drive_list_, &QComboBox::activated, this,
            [this](int index) { show_directory(drive_list_->itemData(index).toString()); });
    connect(directory_list_, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem* item) { show_directory(item->data(0, kPathRole).toString()); });
    connect(command_button_, &QPushButton::clicked, this, &LoadFileDialog::run_command);
    connect(cancel_button_, &QPushButton::clicked, this, &QDialog::reject);
}

void LoadFileDialog::build_save_controls() {
    save_caption_ = named(new QLabel("Save As: (*.lod)"), "Label1");
    save_name_ = named(new QLineEdit, "Savename");
    save_caption_->setBuddy(save_name_);
    // Every file of the folder, for reference only: choosing one does nothing.
    all_files_ = named(new QListWidget, "filelist");
    all_files_->setSelectionMode(QAbstractItemView::NoSelection);
    all_files_->setMinimumWidth(260);
}

void LoadFileDialog::build_load_controls() {
    filter_caption_ = named(new QLabel("Filter:"), "Label2");
    filter_ = named(new QComboBox, "filetype");
    filter_->setEditable(true);
    filter_->addItems({kLoadFilesFilter, kAllFilesFilter});
    // Typed patterns are not added to the items, and no completion may turn "*" into an item.
    filter_->setInsertPolicy(QComboBox::NoInsert);
    filter_->setCompleter(nullptr);
    filter_caption_->setBuddy(filter_);
    load_caption_ = named(new QLabel("Load:"), "Label1");
    load_name_ = named(new QLineEdit, "loadfile");
    load_caption_->setBuddy(load_name_);
    matching_files_ = named(new QTreeWidget, "flist");
    matching_files_->setHeaderLabels({"Name", "Modified"});
    matching_files_->setRootIsDecorated(false);
    matching_files_->setMinimumWidth(320);
    matching_files_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    matching_files_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    matching_files_->header()->setStretchLastSection(false);

    connect(filter_, &QComboBox::activated, this, &LoadFileDialog::refresh_file_list);
    connect(filter_->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
        if (filter_edit_refreshes(text.toStdString())) refresh_file_list();
    });
    filter_->lineEdit()->installEventFilter(this);
    connect(matching_files_, &QTreeWidget::itemSelectionChanged, this,
            &LoadFileDialog::show_selected_file);
    connect(matching_files_, &QTreeWidget::itemDoubleClicked, this, &LoadFileDialog::run_command);
    connect(load_name_, &QLineEdit::textEdited, this, &LoadFileDialog::select_typed_file);
}

// Files on the left (name box, list, filter), drives and folders on the right, the buttons
// below; Tab follows the columns top to bottom.
void LoadFileDialog::lay_out() {
    auto* files = new QVBoxLayout;
    if (kind_ == FileDialogKind::save) {
        files->addWidget(save_caption_);
        files->addWidget(save_name_);
        files->addWidget(all_files_, 1);
    } else {
        auto* load_row = new QHBoxLayout;
        load_row->addWidget(load_caption_);
        load_row->addWidget(load_name_, 1);
        auto* filter_row = new QHBoxLayout;
        filter_row->addWidget(filter_caption_);
        filter_row->addWidget(filter_, 1);
        files->addLayout(load_row);
        files->addWidget(matching_files_, 1);
        files->addLayout(filter_row);
    }
    auto* places = new QVBoxLayout;
    places->addWidget(drive_list_);
    places->addWidget(directory_list_, 1);

    auto* buttons = new QDialogButtonBox;
    buttons->addButton(command_button_, QDialogButtonBox::AcceptRole);
    buttons->addButton(cancel_button_, QDialogButtonBox::RejectRole);

    auto* grid = new QGridLayout(this);
    grid->addLayout(files, 0, 0);
    grid->addLayout(places, 0, 1);
    grid->addWidget(buttons, 1, 0, 1, 2);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    resize(720, 420);

    QWidget* name_box = kind_ == FileDialogKind::save ? save_name_ : load_name_;
    QWidget* file_list =
        kind_ == FileDialogKind::save ? static_cast<QWidget*>(all_files_) : matching_files_;
    setTabOrder(name_box, file_list);
    setTabOrder(file_list, filter_ ? static_cast<QWidget*>(filter_) : drive_list_);
    if (filter_) setTabOrder(filter_, drive_list_);
    setTabOrder(drive_list_, directory_list_);
    setTabOrder(directory_list_, command_button_);
    setTabOrder(command_button_, cancel_button_);
    name_box->setFocus();
}

// The mounted volumes by their root path and name, and the home folder, which is where most
// users keep their work.
void LoadFileDialog::fill_drive_list() {
    const QString home = QDir::homePath();
    drive_list_->addItem(home + "  (home)", home);
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        // Packaged applications mount read-only images by the dozen; nobody keeps beams there.
        if (!volume.isValid() || !volume.isReady() || volume.fileSystemType() == "squashfs") {
            continue;
        }
        const QString name = volume.name();
        drive_list_->addItem(
            name.isEmpty() ? volume.rootPath() : volume.rootPath() + "  (" + name + ")",
            volume.rootPath());
    }
}

// Where a dialog starts must not fail: a working folder or last folder that has gone since is
// passed over without a word, down to the home folder and the root.
void LoadFileDialog::start_directory() {
    const std::string& preferred = settings_.preferences.working_files_path;
    for (const QString& candidate :
         {text_of(preferred), text_of(settings_.last_dir), QDir::homePath(), QDir::rootPath()}) {
        if (candidate.isEmpty()) continue;
        const QString directory = QDir::cleanPath(QDir(candidate).absolutePath());
        if (list_directory(directory.toStdString()).status.ok()) {
            show_listing_of(directory);
            return;
        }
    }
}

bool LoadFileDialog::show_directory(const QString& requested) {
    const QString directory = QDir::cleanPath(QDir(requested).absolutePath());
    const DirectoryListing listing = list_directory(directory.toStdString());
    if (!listing.status.ok()) {
        prompts_.message(text_of(listing.status.message()));
        select_drive_of_directory();
        return false;
    }
    show_listing_of(directory);
    return true;
}

void LoadFileDialog::show_listing_of(const QString& directory) {
    directory_ = directory;
    subdirectories_ = sorted_names(list_directory(directory.toStdString()).subdirectories);
    fill_directory_list();
    select_drive_of_directory();
    refresh_file_list();
    settings_.last_dir = directory.toStdString();
}

// The path from the root down to the folder shown, open, with the folder's subfolders below it.
void LoadFileDialog::fill_directory_list() {
    directory_list_->clear();
    const QIcon open_icon = style()->standardIcon(QStyle::SP_DirOpenIcon);
    const QIcon closed_icon = style()->standardIcon(QStyle::SP_DirClosedIcon);
    auto* item = new QTreeWidgetItem(directory_list_, {QDir::rootPath()});
    item->setData(0, kPathRole, QDir::rootPath());
    item->setIcon(0, open_icon);
    QString path = QDir::rootPath();
    for (const QString& part : directory_.split('/', Qt::SkipEmptyParts)) {
        path = QDir::cleanPath(path + '/' + part);
        item = new QTreeWidgetItem(item, {part});
        item->setData(0, kPathRole, path);
        item->setIcon(0, open_icon);
    }
    for (const std::string& name : subdirectories_) {
        auto* child = new QTreeWidgetItem(item, {text_of(name)});
        child->setData(0, kPathRole, QDir::cleanPath(directory_ + '/' + text_of(name)));
        child->setIcon(0, closed_icon);
    }
    directory_list_->expandAll();
    directory_list_->setCurrentItem(item);
    directory_list_->scrollToItem(item);
}

// The drive whose root is the longest start of the folder shown.
void LoadFileDialog::select_drive_of_directory() {
    int best = -1;
    qsizetype best_length = -1;
    for (int i = 0; i < drive_list_->count(); ++i) {
        const QString root = drive_list_->itemData(i).toString();
        if (lies_under(directory_, root) && root.size() > best_length) {
            best = i;
            best_length = root.size();
        }
    }
    drive_list_->setCurrentIndex(best);
}

void LoadFileDialog::refresh_file_list() {
    // A folder that vanished since it was shown lists no files; choosing another reports it.
    const DirectoryListing listing = list_directory(directory_.toStdString());
    if (kind_ == FileDialogKind::save) {
        all_files_->clear();
        std::vector<std::string> names;
        for (const ListedFile& file : listing.files)
            names.push_back(file.name);
        for (const std::string& name : sorted_names(std::move(names)))
            all_files_->addItem(text_of(name));
        return;
    }
    const std::string pattern = filter_pattern(filter_->currentText().toStdString());
    std::vector<std::string> names;
    std::unordered_map<std::string, std::int64_t> modified;
    for (const ListedFile& file : listing.files) {
        if (!matches_pattern(file.name, pattern)) continue;
        names.push_back(file.name);
        modified[file.name] = file.modified;
    }
    const QSignalBlocker quiet(matching_files_);
    matching_files_->clear();
    for (const std::string& name : sorted_names(std::move(names))) {
        const QDateTime date = QDateTime::fromSecsSinceEpoch(modified[name]);
        new QTreeWidgetItem(matching_files_,
                            {text_of(name), QLocale().toString(date, QLocale::ShortFormat)});
    }
    select_typed_file();
}

// A click or the arrow keys put the chosen name into the Load box.
void LoadFileDialog::show_selected_file() {
    const QList<QTreeWidgetItem*> selected = matching_files_->selectedItems();
    if (selected.isEmpty() || selected.front()->text(0) == load_name_->text()) return;
    load_name_->setText(selected.front()->text(0));
}

// Load reads the selected file only, so a name typed into the Load box selects the file of that
// name, or nothing: what Load reads is always what the box shows.
void LoadFileDialog::select_typed_file() {
    const QList<QTreeWidgetItem*> found =
        matching_files_->findItems(load_name_->text(), Qt::MatchExactly | Qt::MatchCaseSensitive);
    const QSignalBlocker quiet(matching_files_);
    matching_files_->clearSelection();
    matching_files_->setCurrentItem(found.isEmpty() ? nullptr : found.front());
}

void LoadFileDialog::set_save_name(const QString& name) {
    if (!save_name_) return;
    save_name_->setText(name);
    save_name_->selectAll();
}

void LoadFileDialog::run_command() {
    QString name;
    if (kind_ == FileDialogKind::save) {
        name = save_name_->text();
    } else if (QTreeWidgetItem* selected = matching_files_->currentItem();
               selected && selected->isSelected()) {
        name = selected->text(0);
    }
    if (command_(directory_.toStdString(), name.toStdString())) {
        close();
    } else {
        refresh_file_list();
    }
}

// Enter acts on the control that has the focus: it saves or loads from the name box and the file
// list, opens a folder in the folder list and applies a typed filter, but never saves or loads
// from elsewhere by surprise. On a button it presses that button.
void LoadFileDialog::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    QWidget* focus = focusWidget();
    if (!enter || qobject_cast<QPushButton*>(focus)) {
        QDialog::keyPressEvent(event);
        return;
    }
    if (focus_within(directory_list_, focus)) {
        if (QTreeWidgetItem* item = directory_list_->currentItem()) {
            show_directory(item->data(0, kPathRole).toString());
        }
    } else if (focus_within(filter_, focus)) {
        refresh_file_list();
    } else if (focus_within(save_name_, focus) || focus_within(load_name_, focus) ||
               focus_within(matching_files_, focus)) {
        run_command();
    }
    event->accept();
}

bool LoadFileDialog::eventFilter(QObject* watched, QEvent* event) {
    if (filter_ && watched == filter_->lineEdit() && event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason &&
        filter_leave_refreshes(filter_->currentText().toStdString())) {
        refresh_file_list();
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace flexley

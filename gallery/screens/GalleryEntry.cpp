#include "GalleryEntry.h"

#include <algorithm>
#include <cmath>

#include "GalleryRowCell.h"
#include "GalleryTheme.h"
#include "GalleryWorkoutFile.h"
#include "Translations.h"
#include <GXUIPickers/GXStyleSheet.h>
#include <GXUIPickers/UIKey.h>
#include <GXUIPickers/UIPickerView.h>

using namespace gx;

namespace gallery {

namespace {

// Without the title there are only the buttons.
constexpr CGFloat titledHeaderHeight = GalleryTheme::barHeight;
constexpr CGFloat plainHeaderHeight = GalleryTheme::controlHeight;
// Wider rows put the value too far from its name.
constexpr CGFloat widestTable = 640;
// So many rows of a wheel make it look like one; in a low window at least three.
constexpr double rowsOfWheel = 5;
constexpr double fewestRowsOfWheel = 3;
// Of the table's height: the row that it belongs to stays in sight.
constexpr double highestShareOfPicker = 0.75;

} // namespace

bool GalleryEntry::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    const WeakRef<GalleryEntry> weak = refTo(this);
    settings_ = GallerySettings::current();
    title_ = create<UILabel>(CGRectZero);
    title_->setFont(GalleryTheme::titleFont());
    title_->setTextColor(GalleryTheme::text());
    message_ = create<GalleryText>(CGRectZero);
    openButton_ = GalleryButton::buttonWithTitle_style("", GalleryButton::Style::Plain);
    openButton_->setAction([weak] {
        if (const auto entry = weak.lock()) entry->open();
    });
    saveButton_ = GalleryButton::buttonWithTitle_style("", GalleryButton::Style::Plain);
    saveButton_->setAction([weak] {
        if (const auto entry = weak.lock()) entry->save();
    });
    for (const Ref<UIView>& view : std::initializer_list<Ref<UIView>>{title_, openButton_, saveButton_, message_}) addSubview(view);
    setFiles(nullptr);
    makeRows();
    return true;
}

// Rows

void GalleryEntry::makeRows() {
    const WeakRef<GalleryEntry> weak = refTo(this);
    const CGPoint place = table_ ? table_->contentOffset() : CGPoint{};
    if (table_) table_->removeFromSuperview();

    title_->setText(Translations::text("Add workout"));
    openButton_->setTitle(Translations::text("Open"));
    saveButton_->setTitle(Translations::text("Save"));
    groups_ = galleryMeasurements(workout_, settings_);
    table_ = create<UITableView>(CGRectZero);
    table_->setBackgroundColor(UIColor::clearColor());
    texts_.clear();
    for (std::size_t i = 0; i < measurementCount(); ++i) {
        texts_.push_back({Translations::text(measurement(i)->name()), measurement(i)->valueInWords()});
        // There are few rows: each keeps a cell of its own, so that scrolling sets no text twice.
        table_->registerClass_forCellReuseIdentifier<GalleryRowCell>(measurement(i)->name());
        measurement(i)->registerCellInTable(*table_);
        measurement(i)->setChanged([weak, i] {
            if (const auto entry = weak.lock()) entry->noteValue(i);
        });
    }
    table_->setDataSource(refTo(this));
    table_->setDelegate(refTo(this));
    addSubview(table_);
    setNeedsLayout();
    layoutIfNeeded();
    table_->setContentOffset_animated(place, false);
}

void GalleryEntry::setSettings(const GallerySettings& settings) {
    // What only the window draws by leaves the rows as they are.
    GallerySettings drawnAlike = settings;
    drawnAlike.style = settings_.style;
    drawnAlike.contrast = settings_.contrast;
    drawnAlike.reducesMotion = settings_.reducesMotion;
    const bool isSame = drawnAlike == settings_;
    const bool isOtherLanguage = settings.language != settings_.language;
    if (!isSame) settleWheels();
    settings_ = settings;
    if (isOtherLanguage) tell("", false);
    if (!isSame) makeRows();
}

void GalleryEntry::setWorkout(const GalleryWorkout& workout) {
    settleWheels();
    *workout_ = workout;
    readyCell_.reset();
    for (std::size_t i = 0; i < measurementCount(); ++i) texts_[i].value = measurement(i)->valueInWords();
    table_->reloadData();
}

std::size_t GalleryEntry::measurementCount() const {
    std::size_t count = 0;
    for (const GalleryMeasurementGroup& group : groups_) count += group.measurements.size();
    return count;
}

const Ref<GalleryMeasurement>& GalleryEntry::measurement(std::size_t index) const {
    std::size_t group = 0;
    while (index >= groups_[group].measurements.size()) index -= groups_[group++].measurements.size();
    return groups_[group].measurements[index];
}

NSIndexPath GalleryEntry::pathOfMeasurement(std::size_t index) const {
    std::size_t group = 0;
    std::size_t first = 0;
    while (index - first >= groups_[group].measurements.size()) first += groups_[group++].measurements.size();
    const bool isBelowPicker = open_ && *open_ >= first && *open_ < index;
    return {static_cast<NSInteger>(group), static_cast<NSInteger>(index - first) + (isBelowPicker ? 1 : 0)};
}

NSIndexPath GalleryEntry::pathOfPicker() const {
    const NSIndexPath row = pathOfMeasurement(*open_);
    return {row.section, row.row + 1};
}

GalleryEntry::Row GalleryEntry::rowAt(NSIndexPath path) const {
    Row found;
    for (NSInteger group = 0; group < path.section; ++group)
        found.measurement += groups_[static_cast<std::size_t>(group)].measurements.size();
    found.measurement += static_cast<std::size_t>(path.row);
    const bool isInGroup = open_ && pathOfPicker().section == path.section;
    if (isInGroup && path.row >= pathOfPicker().row) {
        found.isPicker = path.row == pathOfPicker().row;
        --found.measurement;
    }
    return found;
}

void GalleryEntry::openMeasurement_animated(std::optional<std::size_t> measurement, bool animated) {
    if (measurement && *measurement >= measurementCount()) return;
    if (measurement == open_) return;
    settleWheels();
    if (open_) {
        const NSIndexPath path = pathOfPicker();
        const std::size_t closed = *open_;
        open_ = std::nullopt;
        table_->deleteRowsAtIndexPaths_animated({path}, animated);
        showRow(closed);
    }
    if (!measurement) return;
    open_ = measurement;
    table_->insertRowsAtIndexPaths_animated({pathOfPicker()}, animated);
    showRow(*measurement);
    table_->layoutIfNeeded();
    table_->scrollToRowAtIndexPath_animated(pathOfPicker(), animated);
}

void GalleryEntry::noteValue(std::size_t measurement) {
    texts_[measurement].value = this->measurement(measurement)->valueInWords();
    showRow(measurement);
}

void GalleryEntry::showRow(std::size_t measurement) {
    const auto cell = std::dynamic_pointer_cast<GalleryRowCell>(table_->cellForRowAtIndexPath(pathOfMeasurement(measurement)));
    if (cell) fillRow(*cell, measurement);
}

void GalleryEntry::fillRow(GalleryRowCell& cell, std::size_t measurement) {
    cell.setName_value(texts_[measurement].name, texts_[measurement].value);
    cell.setOpen(open_ == measurement);
}

void GalleryEntry::settleWheels() {
    if (table_) table_->finishAnimationsInTree();
}

// The table's questions

NSInteger GalleryEntry::numberOfSectionsInTableView(const Ref<UITableView>&) { return static_cast<NSInteger>(groups_.size()); }

NSInteger GalleryEntry::tableView_numberOfRowsInSection(const Ref<UITableView>&, NSInteger section) {
    const auto count = static_cast<NSInteger>(groups_[static_cast<std::size_t>(section)].measurements.size());
    return open_ && pathOfPicker().section == section ? count + 1 : count;
}

std::optional<std::string> GalleryEntry::tableView_titleForHeaderInSection(const Ref<UITableView>&, NSInteger section) {
    return Translations::text(groups_[static_cast<std::size_t>(section)].heading);
}

Ref<UITableViewCell> GalleryEntry::tableView_cellForRowAtIndexPath(const Ref<UITableView>& table, NSIndexPath path) {
    const Row row = rowAt(path);
    const Ref<GalleryMeasurement>& shown = measurement(row.measurement);
    if (row.isPicker) {
        auto cell = table->dequeueReusableCellWithIdentifier(shown->cellIdentifier());
        if (!cell) return nullptr;
        const CGRect room = CGRectMake(0, 0, table->bounds().size.width, pickerHeight());
        // One that only was out of sight comes back as it left. Otherwise, which fonts fit depends on the room there is.
        const bool isReady = cell == readyCell_.lock() && cell->bounds() == room;
        if (isReady) return cell;
        cell->setFrame(room);
        shown->showInCell(cell);
        readyCell_ = cell;
        return cell;
    }
    auto cell = std::dynamic_pointer_cast<GalleryRowCell>(table->dequeueReusableCellWithIdentifier(shown->name()));
    if (cell) fillRow(*cell, row.measurement);
    return cell;
}

CGFloat GalleryEntry::pickerHeight() const {
    const double row = GXStyleSheet::globalStyleSheet()->pickerRowHeight();
    const CGFloat room = highestShareOfPicker * table_->bounds().size.height;
    return std::round(std::clamp(room, fewestRowsOfWheel * row, rowsOfWheel * row));
}

CGFloat GalleryEntry::tableView_heightForRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) {
    return rowAt(path).isPicker ? pickerHeight() : GalleryRowCell::height();
}

bool GalleryEntry::tableView_shouldHighlightRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) { return !rowAt(path).isPicker; }

void GalleryEntry::tableView_didSelectRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) {
    const Row row = rowAt(path);
    if (row.isPicker) return;
    const bool isOpen = open_ == row.measurement;
    openMeasurement_animated(isOpen ? std::nullopt : std::optional(row.measurement), true);
}

bool GalleryEntry::keyPressed(const UIKey& key) {
    if (key.code != UIKey::Code::Escape || key.isCommand() || !open_) return UIView::keyPressed(key);
    const Ref<UIView> keep = refTo<UIView>(this);
    const std::size_t closed = *open_;
    openMeasurement_animated(std::nullopt, true);
    table_->scrollToRowAtIndexPath_animated(pathOfMeasurement(closed), true); // A picker may have filled the table.
    return true;
}

// Files

void GalleryEntry::setFiles(std::shared_ptr<GalleryFiles> files) {
    files_ = std::move(files);
    openButton_->setHidden(!files_);
    saveButton_->setHidden(!files_);
    setNeedsLayout();
}

void GalleryEntry::tell(const std::string& message, bool isError) {
    message_->setColor(isError ? GalleryTheme::warning() : GalleryTheme::secondaryText());
    message_->setText(message);
    setNeedsLayout();
}

void GalleryEntry::save() {
    const Ref<GalleryEntry> keep = refTo(this);
    const std::shared_ptr<GalleryFiles> files = files_;
    if (!files) return;
    settleWheels();
    files->saveText_name(GalleryWorkoutFile::textOfWorkout(*workout_), "workout.json",
                         [weak = WeakRef<GalleryEntry>(keep)](const auto& outcome) {
                             const auto entry = weak.lock();
                             if (!entry) return;
                             const bool isError = !outcome.error.empty();
                             entry->tell(isError ? outcome.error : Translations::text("Saved:") + " " + outcome.name, isError);
                         });
}

void GalleryEntry::open() {
    const Ref<GalleryEntry> keep = refTo(this);
    const std::shared_ptr<GalleryFiles> files = files_;
    if (!files) return;
    files->openText([weak = WeakRef<GalleryEntry>(keep)](const auto& outcome) {
        const auto entry = weak.lock();
        if (!entry) return;
        std::string error = outcome.error;
        const auto workout = error.empty() ? GalleryWorkoutFile::workoutOfText(outcome.text, error) : std::nullopt;
        if (!workout) {
            entry->tell(outcome.name.empty() ? error : outcome.name + ": " + error, true);
            return;
        }
        entry->setWorkout(*workout);
        entry->tell(Translations::text("Opened:") + " " + outcome.name, false);
    });
}

// Layout

void GalleryEntry::setShowsTitle(bool shows) {
    if (shows == showsTitle_) return;
    showsTitle_ = shows;
    title_->setHidden(!shows);
    setNeedsLayout();
}

CGSize GalleryEntry::sizeThatFits(CGSize available) const { return available; }

void GalleryEntry::layoutSubviews() {
    UIView::layoutSubviews();
    const CGSize size = bounds().size;
    const CGFloat margin = GalleryTheme::marginForWidth(size.width);
    const CGFloat width = std::clamp(size.width - 2 * margin, 0.0, widestTable);
    const CGFloat header = showsTitle_ ? titledHeaderHeight : files_ ? plainHeaderHeight : 0;
    const CGFloat top = 0.5 * std::max(0.0, header - GalleryTheme::controlHeight);
    const CGFloat saveWidth = saveButton_->sizeThatFits({}).width;
    const CGFloat openWidth = openButton_->sizeThatFits({}).width;
    const CGFloat right = margin + width;
    saveButton_->setFrame(CGRectMake(right - saveWidth, top, saveWidth, GalleryTheme::controlHeight));
    openButton_->setFrame(CGRectMake(right - saveWidth - openWidth, top, openWidth, GalleryTheme::controlHeight));
    const CGFloat titleWidth = std::max(0.0, width - saveWidth - openWidth);
    title_->setFrame(CGRectMake(margin, 0, titleWidth, header));

    const CGFloat messageHeight = message_->text().empty() ? 0 : message_->sizeThatFits({width, 0}).height + 8;
    message_->setFrame(CGRectMake(margin, header, width, messageHeight));
    const CGFloat tableTop = header + messageHeight;
    // On a phone rows run from edge to edge.
    const bool isNarrow = size.width < widestTable;
    const CGRect room = isNarrow ? CGRectMake(0, tableTop, size.width, 0) : CGRectMake(margin, tableTop, width, 0);
    const CGSize before = table_->bounds().size;
    table_->setFrame(CGRectMake(room.origin.x, tableTop, room.size.width, std::max(0.0, size.height - tableTop)));
    if (open_ && table_->bounds().size != before) table_->reloadData(); // The picker's height and fonts follow the room.
}

} // namespace gallery

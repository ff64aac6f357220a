#include "EntryScreen.h"

#include <algorithm>
#include <cmath>

#include "AllMeasurements.h"
#include "MeasurementCell.h"
#include "Theme.h"
#include "Translations.h"
#include "WorkoutFile.h"
#include <GXUIPickers/GXStyleSheet.h>
#include <GXUIPickers/UIKey.h>
#include <GXUIPickers/UIPickerView.h>

using namespace gx;

namespace gallery {

namespace {

// Without the title there are only the buttons.
constexpr CGFloat titledHeaderHeight = Theme::barHeight;
constexpr CGFloat plainHeaderHeight = Theme::controlHeight;
// In wider rows the value is too far from its name. Chosen by eye.
constexpr CGFloat widestTable = 640;
// The rows of a wheel that are visible; in a low window at least three. Chosen by eye.
constexpr double rowsOfWheel = 5;
constexpr double fewestRowsOfWheel = 3;
// Of the table's height, so that the row of the picker stays visible.
constexpr double highestShareOfPicker = 0.75;

} // namespace

bool EntryScreen::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    const WeakRef<EntryScreen> weak = refTo(this);
    settings_ = Settings::current();
    title_ = create<UILabel>(CGRectZero);
    title_->setFont(Theme::titleFont());
    title_->setTextColor(Theme::text());
    message_ = create<Paragraph>(CGRectZero);
    openButton_ = Button::buttonWithTitle_style("", Button::Style::Plain);
    openButton_->setAction([weak] {
        if (const auto entry = weak.lock()) entry->open();
    });
    saveButton_ = Button::buttonWithTitle_style("", Button::Style::Plain);
    saveButton_->setAction([weak] {
        if (const auto entry = weak.lock()) entry->save();
    });
    for (const Ref<UIView>& view : std::initializer_list<Ref<UIView>>{title_, openButton_, saveButton_, message_}) addSubview(view);
    setFiles(nullptr);
    makeRows();
    return true;
}

// Rows

void EntryScreen::makeRows() {
    const WeakRef<EntryScreen> weak = refTo(this);
    const CGPoint place = table_ ? table_->contentOffset() : CGPoint{};
    if (table_) table_->removeFromSuperview();

    title_->setText(Translations::text("Add workout"));
    openButton_->setTitle(Translations::text("Open"));
    saveButton_->setTitle(Translations::text("Save"));
    groups_ = allMeasurements(workout_, settings_);
    std::vector<std::size_t> sizes;
    for (const MeasurementGroup& group : groups_) sizes.push_back(group.measurements.size());
    rows_.setSections(std::move(sizes));
    table_ = create<UITableView>(CGRectZero);
    table_->setBackgroundColor(UIColor::clearColor());
    texts_.clear();
    for (std::size_t i = 0; i < measurementCount(); ++i) {
        texts_.push_back({Translations::text(measurement(i)->name()), measurement(i)->valueText()});
        // There are few rows: each has a cell of its own, so that scrolling sets no texts.
        table_->registerClass_forCellReuseIdentifier<MeasurementCell>(measurement(i)->name());
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

void EntryScreen::setSettings(const Settings& settings) {
    // Settings that only the window needs leave the rows as they are.
    Settings drawnAlike = settings;
    drawnAlike.style = settings_.style;
    drawnAlike.contrast = settings_.contrast;
    drawnAlike.reducesMotion = settings_.reducesMotion;
    const bool isSame = drawnAlike == settings_;
    const bool isOtherLanguage = settings.language != settings_.language;
    if (!isSame) finishSpins();
    settings_ = settings;
    if (isOtherLanguage) tell("", false);
    if (!isSame) makeRows();
}

void EntryScreen::setWorkout(const Workout& workout) {
    finishSpins();
    *workout_ = workout;
    readyCell_.reset();
    for (std::size_t i = 0; i < measurementCount(); ++i) {
        measurement(i)->showWorkout();
        texts_[i].value = measurement(i)->valueText();
    }
    table_->reloadData();
}

const Ref<Measurement>& EntryScreen::measurement(std::size_t index) const {
    std::size_t group = 0;
    while (index >= groups_[group].measurements.size()) index -= groups_[group++].measurements.size();
    return groups_[group].measurements[index];
}

void EntryScreen::openMeasurement_animated(std::optional<std::size_t> measurement, bool animated) {
    if (measurement && *measurement >= measurementCount()) return;
    if (measurement == rows_.open()) return;
    finishSpins();
    if (const auto closed = rows_.open()) {
        const NSIndexPath path = rows_.pathOfPicker();
        rows_.setOpen(std::nullopt);
        table_->deleteRowsAtIndexPaths_animated({path}, animated);
        showRow(*closed);
    }
    if (!measurement) return;
    rows_.setOpen(measurement);
    table_->insertRowsAtIndexPaths_animated({rows_.pathOfPicker()}, animated);
    showRow(*measurement);
    table_->layoutIfNeeded();
    table_->scrollToRowAtIndexPath_animated(rows_.pathOfPicker(), animated);
}

void EntryScreen::noteValue(std::size_t measurement) {
    texts_[measurement].value = this->measurement(measurement)->valueText();
    showRow(measurement);
}

void EntryScreen::showRow(std::size_t measurement) {
    const auto cell = std::dynamic_pointer_cast<MeasurementCell>(table_->cellForRowAtIndexPath(pathOfMeasurement(measurement)));
    if (cell) fillRow(*cell, measurement);
}

void EntryScreen::fillRow(MeasurementCell& cell, std::size_t measurement) {
    cell.setName_value(texts_[measurement].name, texts_[measurement].value);
    cell.setOpen(rows_.open() == measurement);
}

void EntryScreen::finishSpins() {
    if (table_) table_->finishAnimationsInTree();
}

// What the table asks

NSInteger EntryScreen::tableView_numberOfRowsInSection(const Ref<UITableView>&, NSInteger section) {
    return rows_.rowCountOfSection(section);
}

std::optional<std::string> EntryScreen::tableView_titleForHeaderInSection(const Ref<UITableView>&, NSInteger section) {
    return Translations::text(groups_[static_cast<std::size_t>(section)].heading);
}

Ref<UITableViewCell> EntryScreen::tableView_cellForRowAtIndexPath(const Ref<UITableView>& table, NSIndexPath path) {
    const EntryRows::Row row = rows_.rowAt(path);
    const Ref<Measurement>& shown = measurement(row.measurement);
    if (row.isPicker) {
        auto cell = table->dequeueReusableCellWithIdentifier(shown->cellIdentifier());
        if (!cell) return nullptr;
        const CGRect room = CGRectMake(0, 0, table->bounds().size.width, pickerHeight());
        // A cell that was only scrolled out of sight is still right; which fonts fit depends on its
        // size.
        const bool isReady = cell == readyCell_.lock() && cell->bounds() == room;
        if (isReady) return cell;
        cell->setFrame(room);
        shown->showInCell(cell);
        readyCell_ = cell;
        return cell;
    }
    auto cell = std::dynamic_pointer_cast<MeasurementCell>(table->dequeueReusableCellWithIdentifier(shown->name()));
    if (cell) fillRow(*cell, row.measurement);
    return cell;
}

CGFloat EntryScreen::pickerHeight() const {
    const double row = GXStyleSheet::globalStyleSheet()->pickerRowHeight();
    const CGFloat room = highestShareOfPicker * table_->bounds().size.height;
    return std::round(std::clamp(room, fewestRowsOfWheel * row, rowsOfWheel * row));
}

CGFloat EntryScreen::tableView_heightForRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) {
    return rows_.rowAt(path).isPicker ? pickerHeight() : MeasurementCell::height();
}

bool EntryScreen::tableView_shouldHighlightRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) { return !rows_.rowAt(path).isPicker; }

void EntryScreen::tableView_didSelectRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) {
    const EntryRows::Row row = rows_.rowAt(path);
    if (row.isPicker) return;
    openMeasurement_animated(rows_.open() == row.measurement ? std::nullopt : std::optional(row.measurement), true);
}

bool EntryScreen::keyPressed(const UIKey& key) {
    if (key.code != UIKey::Code::Escape || key.isCommand() || !rows_.open()) return UIView::keyPressed(key);
    const Ref<UIView> keep = refTo<UIView>(this);
    const std::size_t closed = *rows_.open();
    openMeasurement_animated(std::nullopt, true);
    // The picker may have filled the table.
    table_->scrollToRowAtIndexPath_animated(pathOfMeasurement(closed), true);
    return true;
}

// Files

void EntryScreen::setFiles(std::shared_ptr<UserFiles> files) {
    files_ = std::move(files);
    openButton_->setHidden(!files_);
    saveButton_->setHidden(!files_);
    setNeedsLayout();
}

void EntryScreen::tell(const std::string& message, bool isError) {
    message_->setColor(isError ? Theme::warning() : Theme::secondaryText());
    message_->setText(message);
    setNeedsLayout();
}

void EntryScreen::save() {
    const Ref<EntryScreen> keep = refTo(this);
    const std::shared_ptr<UserFiles> files = files_;
    if (!files) return;
    finishSpins();
    files->saveText_name(WorkoutFile::textOfWorkout(*workout_), "workout.json", [weak = WeakRef<EntryScreen>(keep)](const auto& outcome) {
        const auto entry = weak.lock();
        if (!entry) return;
        const bool isError = !outcome.error.empty();
        entry->tell(isError ? outcome.error : Translations::text("Saved:") + " " + outcome.name, isError);
    });
}

void EntryScreen::open() {
    const Ref<EntryScreen> keep = refTo(this);
    const std::shared_ptr<UserFiles> files = files_;
    if (!files) return;
    files->openText([weak = WeakRef<EntryScreen>(keep)](const auto& outcome) {
        const auto entry = weak.lock();
        if (!entry) return;
        std::string error = outcome.error;
        const auto workout = error.empty() ? WorkoutFile::workoutOfText(outcome.text, error) : std::nullopt;
        if (!workout) {
            entry->tell(outcome.name.empty() ? error : outcome.name + ": " + error, true);
            return;
        }
        entry->setWorkout(*workout);
        entry->tell(Translations::text("Opened:") + " " + outcome.name, false);
    });
}

// Layout

void EntryScreen::setShowsTitle(bool shows) {
    if (shows == showsTitle_) return;
    showsTitle_ = shows;
    title_->setHidden(!shows);
    setNeedsLayout();
}

void EntryScreen::layoutSubviews() {
    UIView::layoutSubviews();
    const CGSize size = bounds().size;
    const CGFloat margin = Theme::marginForWidth(size.width);
    const CGFloat width = std::clamp(size.width - 2 * margin, 0.0, widestTable);
    const CGFloat header = showsTitle_ ? titledHeaderHeight : files_ ? plainHeaderHeight : 0;
    const CGFloat top = 0.5 * std::max(0.0, header - Theme::controlHeight);
    const CGFloat saveWidth = saveButton_->sizeThatFits({}).width;
    const CGFloat openWidth = openButton_->sizeThatFits({}).width;
    const CGFloat right = margin + width;
    saveButton_->setFrame(CGRectMake(right - saveWidth, top, saveWidth, Theme::controlHeight));
    openButton_->setFrame(CGRectMake(right - saveWidth - openWidth, top, openWidth, Theme::controlHeight));
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
    // The picker's height and fonts follow the room.
    if (rows_.open() && table_->bounds().size != before) table_->reloadData();
}

} // namespace gallery

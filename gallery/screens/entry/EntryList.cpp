#include "EntryList.h"

#include <algorithm>
#include <cmath>

#include "AllMeasurements.h"
#include "EntryColumns.h"
#include "MeasurementCell.h"
#include "ReadingDirection.h"
#include "Theme.h"
#include "Translations.h"
#include <GXUIPickers/GXStyleSheet.h>
#include <GXUIPickers/UIKey.h>
#include <GXUIPickers/UIWindow.h>

using namespace gx;

namespace gallery {

namespace {

// The rows of a wheel that are visible; in a low window they are fewer. Chosen by eye.
constexpr double rowsOfWheel = 5;
// A line of text and some space. At scale 1 the height is the table's own.
constexpr double headingLineHeight = 1.25;
constexpr CGFloat headingPadding = 12;
// Of the table's height, so that the row of the picker stays visible.
constexpr double highestShareOfPicker = 0.75;

} // namespace

bool EntryList::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    measuringCell_ = create<MeasurementCell>(UITableViewCellStyleDefault, std::nullopt);
    pane_ = create<PickerPane>(CGRectZero);
    paneScroll_ = create<ContentScrollView>(CGRectZero);
    paneScroll_->setContent(pane_);
    paneScroll_->setHidden(true);
    return true;
}

// Rows

void EntryList::makeRows(const std::shared_ptr<Workout>& workout, const Settings& settings) {
    const WeakRef<EntryList> weak = refTo(this);
    const CGPoint place = table_ ? table_->contentOffset() : CGPoint{};
    if (table_) table_->removeFromSuperview();
    groups_ = allMeasurements(workout, settings);
    std::vector<std::size_t> sizes;
    headings_.clear();
    for (const MeasurementGroup& group : groups_) {
        sizes.push_back(group.measurements.size());
        headings_.push_back(Paragraph::paragraphWithStyle_color(Theme::TextStyle::Section, Theme::secondaryText()));
        headings_.back()->setText(Translations::text(group.heading));
    }
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
            if (const auto list = weak.lock()) list->noteValue(i);
        });
    }
    table_->setDataSource(refTo(this));
    table_->setDelegate(refTo(this));
    // The pane comes after the table, also for Tab and screen readers.
    addSubview(table_);
    addSubview(paneScroll_);
    pickerCell_.reset();
    showPickerInPane();
    setNeedsLayout();
    layoutIfNeeded();
    table_->setContentOffset_animated(place, false);
}

void EntryList::showWorkout() {
    isPickerReady_ = false;
    for (std::size_t i = 0; i < measurementCount(); ++i) {
        measurement(i)->showWorkout();
        texts_[i].value = measurement(i)->valueText();
    }
    pane_->showTexts();
    table_->reloadData();
}

const Ref<Measurement>& EntryList::measurement(std::size_t index) const {
    std::size_t group = 0;
    while (index >= groups_[group].measurements.size()) index -= groups_[group++].measurements.size();
    return groups_[group].measurements[index];
}

void EntryList::openMeasurement_animated(std::optional<std::size_t> measurement, bool animated) {
    if (measurement && *measurement >= measurementCount()) return;
    if (measurement == rows_.open()) return;
    finishSpins();
    closePicker(animated);
    if (!measurement) return;
    rows_.setOpen(measurement);
    showPicker(animated);
}

void EntryList::closePicker(bool animated) {
    const auto closed = rows_.open();
    if (!closed) return;
    const NSIndexPath path = rows_.pathOfPicker();
    const bool hadFocus = focusInPicker() != nullptr;
    rows_.setOpen(std::nullopt);
    pickerCell_.reset();
    isPickerReady_ = false;
    if (rows_.hasPickerRow()) table_->deleteRowsAtIndexPaths_animated({path}, animated);
    showPickerInPane();
    if (hadFocus) table_->becomeFirstResponder();
    showRow(*closed);
}

void EntryList::showPicker(bool animated) {
    if (!rows_.hasPickerRow()) {
        showPickerInPane();
        showRow(*rows_.open());
        table_->scrollToRowAtIndexPath_animated(pathOfMeasurement(*rows_.open()), animated);
        return;
    }
    table_->insertRowsAtIndexPaths_animated({rows_.pathOfPicker()}, animated);
    showRow(*rows_.open());
    table_->layoutIfNeeded();
    table_->scrollToRowAtIndexPath_animated(rows_.pathOfPicker(), animated);
}

/// Shows what is open, or that nothing is; hides the pane while pickers have rows.
void EntryList::showPickerInPane() {
    const bool isBeside = !rows_.hasPickerRow();
    paneScroll_->setHidden(!isBeside);
    if (!isBeside || !rows_.open()) return pane_->showMeasurement_cell(nullptr, nullptr);
    const Ref<Measurement>& shown = measurement(*rows_.open());
    // A cell that was in the table waits there to be used again.
    pickerCell_ = table_->dequeueReusableCellWithIdentifier(shown->cellIdentifier());
    pane_->showMeasurement_cell(shown, pickerCell_);
}

/// From its row to the pane or back, as the next layout needs it.
void EntryList::movePicker() {
    finishSpins();
    const bool hasRow = !showsPickerBeside_;
    const auto path = rows_.open() ? std::optional(rows_.pathOfPicker()) : std::nullopt;
    rows_.setHasPickerRow(hasRow);
    if (path && !hasRow) table_->deleteRowsAtIndexPaths_animated({*path}, false);
    showPickerInPane();
    isPickerReady_ = false;
    if (path && hasRow) table_->insertRowsAtIndexPaths_animated({*path}, false);
}

Ref<UIView> EntryList::focusInPicker() const {
    const Ref<UIWindow> shownIn = window();
    const Ref<UIView> first = shownIn ? shownIn->firstResponder() : nullptr;
    return first && pickerCell_ && first->isDescendantOfView(pickerCell_) ? first : nullptr;
}

Ref<UITableViewCell> EntryList::openPickerCell() {
    if (!rows_.open()) return nullptr;
    return rows_.hasPickerRow() ? table_->cellForRowAtIndexPath(rows_.pathOfPicker()) : pane_->cell();
}

void EntryList::noteValue(std::size_t measurement) {
    texts_[measurement].value = this->measurement(measurement)->valueText();
    // A row that has become too low grows. It stays high, so that it does not jump to and fro.
    const NSIndexPath path = pathOfMeasurement(measurement);
    if (heightOfRow(measurement) > table_->rectForRowAtIndexPath(path).size.height) table_->reloadRowsAtIndexPaths({path});
    showRow(measurement);
    pane_->showTexts();
}

void EntryList::showRow(std::size_t measurement) {
    const auto cell = std::dynamic_pointer_cast<MeasurementCell>(table_->cellForRowAtIndexPath(pathOfMeasurement(measurement)));
    if (cell) fillRow(*cell, measurement);
}

CGFloat EntryList::heightOfRow(std::size_t measurement) const {
    measuringCell_->setName_value(texts_[measurement].name, texts_[measurement].value);
    return measuringCell_->sizeThatFits({table_->bounds().size.width, 0}).height;
}

void EntryList::fillRow(MeasurementCell& cell, std::size_t measurement) {
    cell.setName_value(texts_[measurement].name, texts_[measurement].value);
    cell.setOpen(rows_.open() == measurement);
}

void EntryList::finishSpins() {
    if (table_) table_->finishAnimationsInTree();
    pane_->finishAnimationsInTree();
}

// What the table queries

std::optional<std::string> EntryList::tableView_titleForHeaderInSection(const Ref<UITableView>&, NSInteger section) {
    return Translations::text(groups_[static_cast<std::size_t>(section)].heading);
}

Ref<UITableViewCell> EntryList::tableView_cellForRowAtIndexPath(const Ref<UITableView>& table, NSIndexPath path) {
    const EntryRows::Row row = rows_.rowAt(path);
    const Ref<Measurement>& shown = measurement(row.measurement);
    if (row.isPicker) {
        if (!pickerCell_) pickerCell_ = table->dequeueReusableCellWithIdentifier(shown->cellIdentifier());
        if (!pickerCell_) return nullptr;
        const CGRect room = CGRectMake(0, 0, table->bounds().size.width, pickerHeight());
        // A cell that was only scrolled out of sight is still right; which fonts fit depends on its
        // size.
        if (isPickerReady_ && pickerCell_->bounds() == room) return pickerCell_;
        isPickerReady_ = true;
        pickerCell_->setFrame(room);
        shown->showInCell(pickerCell_);
        return pickerCell_;
    }
    auto cell = std::dynamic_pointer_cast<MeasurementCell>(table->dequeueReusableCellWithIdentifier(shown->name()));
    if (cell) fillRow(*cell, row.measurement);
    return cell;
}

CGFloat EntryList::pickerHeight() const {
    const double row = GXStyleSheet::globalStyleSheet()->pickerRowHeight();
    const CGSize table = table_->bounds().size;
    const CGFloat usual = std::clamp(highestShareOfPicker * table.height, Theme::fewestRowsOfWheel * row, rowsOfWheel * row);
    if (GXStyleSheet::globalStyleSheet()->textScale() <= 1 || !rows_.open()) return std::round(usual);
    // Two wheels that are one above the other need more, but no more than is in sight at once.
    const CGFloat needed = measurement(*rows_.open())->smallestPickerHeightForWidth(table.width);
    return std::round(std::max(usual, std::min(needed, table.height)));
}

CGFloat EntryList::tableView_heightForRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) {
    const EntryRows::Row row = rows_.rowAt(path);
    return row.isPicker ? pickerHeight() : heightOfRow(row.measurement);
}

void EntryList::tableView_didSelectRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) {
    const EntryRows::Row row = rows_.rowAt(path);
    if (row.isPicker) return;
    openMeasurement_animated(rows_.open() == row.measurement ? std::nullopt : std::optional(row.measurement), true);
}

bool EntryList::keyPressed(const UIKey& key) {
    if (key.code != UIKey::Code::Escape || key.isCommand() || !rows_.open()) return UIView::keyPressed(key);
    const Ref<UIView> keep = refTo<UIView>(this);
    const std::size_t closed = *rows_.open();
    openMeasurement_animated(std::nullopt, true);
    // The picker may have filled the table.
    table_->scrollToRowAtIndexPath_animated(pathOfMeasurement(closed), true);
    return true;
}

// Layout

void EntryList::layoutSubviews() {
    UIView::layoutSubviews();
    const Ref<UIView> focused = focusInPicker();
    const CGSize tableBefore = table_->bounds().size;
    const bool isMoved = rows_.hasPickerRow() == showsPickerBeside_;
    if (isMoved) movePicker();
    placeTableAndPane();
    const bool hasPickerRow = rows_.open() && rows_.hasPickerRow();
    // Lines break by the width, and the picker's height follows the table's.
    const bool isOther = table_->bounds().size.width != tableBefore.width || (hasPickerRow && table_->bounds().size != tableBefore);
    if (isOther) table_->reloadData();
    if (isMoved && hasPickerRow) table_->scrollToRowAtIndexPath_animated(rows_.pathOfPicker(), false);
    if (!focused) return;
    table_->layoutIfNeeded();
    focused->becomeFirstResponder();
}

void EntryList::placeTableAndPane() {
    const CGSize size = bounds().size;
    const EntryColumns columns = EntryColumns::columnsForWidth(size.width, showsPickerBeside_);
    table_->setFrame(ReadingDirection::frame(CGRectMake(columns.table.x, 0, columns.table.width, size.height), size.width));
    const Ref<UIFont> headingFont = Theme::font(Theme::TextStyle::Section);
    table_->setSectionHeaderFont(headingFont);
    table_->setSectionHeaderHeight(std::round(headingLineHeight * headingFont->pointSize()) + headingPadding);
    // Its top is that of the first row.
    const CGFloat top = headings_.empty() ? table_->sectionHeaderHeight() : heightOfHeading(0);
    const CGFloat height = std::max(0.0, size.height - top - Theme::gap);
    paneScroll_->setFrame(ReadingDirection::frame(CGRectMake(columns.pane.x, top, columns.pane.width, height), size.width));
    paneScroll_->setNeedsLayout(); // Larger texts need more height.
}

CGFloat EntryList::widthOfHeadings() const { return std::max(1.0, table_->bounds().size.width - 2 * UITableViewCell::labelInset); }
CGFloat EntryList::heightOfHeading(NSInteger section) const {
    const Ref<Paragraph>& text = headings_[static_cast<std::size_t>(section)];
    if (text->widthInOneLine() <= widthOfHeadings()) return table_->sectionHeaderHeight();
    return std::ceil(text->sizeThatFits({widthOfHeadings(), 0}).height) + headingPadding;
}

Ref<UIView> EntryList::tableView_viewForHeaderInSection(const Ref<UITableView>&, NSInteger section) {
    const Ref<Paragraph>& text = headings_[static_cast<std::size_t>(section)];
    return text->widthInOneLine() > widthOfHeadings() ? text : nullptr;
}

} // namespace gallery

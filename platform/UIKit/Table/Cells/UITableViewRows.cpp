#include "UITableViewRows.h"

#include <algorithm>
#include <cmath>

#include "NSArithmetic.h"

namespace gx {

CGFloat UITableViewRows::clampedHeight(CGFloat height) {
    // Chosen: lower rows would be too many to show, and below higher ones positions lose exactness.
    return height > 0 ? std::clamp(height, 1.0, 1e6) : 0;
}

NSInteger UITableViewRows::clampedSectionCount(NSInteger count) { return std::clamp<NSInteger>(count, 0, highestSectionCount); }

NSInteger UITableViewRows::clampedRowCount(NSInteger count) { return std::clamp<NSInteger>(count, 0, highestRowCount); }

void UITableViewRows::addSection(std::optional<std::string> title, CGFloat headerHeight, NSInteger count, CGFloat rowHeight) {
    add({std::move(title), headerHeight, count, rowHeight, {}, {}});
}

void UITableViewRows::addSection(std::optional<std::string> title, CGFloat headerHeight, const std::vector<CGFloat>& heights) {
    Section section = {std::move(title), headerHeight, static_cast<NSInteger>(heights.size()), 0, {}, {}};
    if (!heights.empty()) section.rowHeight = heights.front();
    const bool isEven = std::all_of(heights.begin(), heights.end(), [&heights](CGFloat height) { return height == heights.front(); });
    CGFloat end = 0;
    if (!isEven) section.ends.reserve(heights.size());
    for (std::size_t i = 0; !isEven && i < heights.size(); ++i) section.ends.push_back(end += heights[i]);
    add(std::move(section));
}

void UITableViewRows::add(Section section) {
    fit(section, height());
    sections_.push_back(std::move(section));
}

void UITableViewRows::fit(Section& section, CGFloat top) {
    section.span = {top, section.headerHeight + (section.count > 0 ? endOfRow(section, section.count - 1) : 0)};
}

void UITableViewRows::setHeight(NSIndexPath path, CGFloat height) {
    if (!exists(path)) return;
    const CGFloat change = height - spanOfRow(path).height;
    Section& section = sections_[static_cast<std::size_t>(path.section)];
    if (change == 0 || section.count > highestHeightCount) return;
    if (section.ends.empty()) {
        std::vector<CGFloat> ends;
        ends.reserve(static_cast<std::size_t>(section.count));
        for (NSInteger row = 0; row < section.count; ++row) ends.push_back(endOfRow(section, row));
        section.ends = std::move(ends);
    }
    for (auto row = static_cast<std::size_t>(path.row); row < section.ends.size(); ++row) section.ends[row] += change;
    CGFloat top = section.span.top;
    for (auto i = static_cast<std::size_t>(path.section); i < sections_.size(); ++i) {
        fit(sections_[i], top);
        top = sections_[i].span.bottom();
    }
}

NSInteger UITableViewRows::rowCount(NSInteger section) const { return section >= 0 && section < sectionCount() ? at(section).count : 0; }

bool UITableViewRows::exists(NSIndexPath path) const { return path.row >= 0 && path.row < rowCount(path.section); }

CGFloat UITableViewRows::endOfRow(const Section& section, NSInteger row) {
    if (row < 0) return 0;
    return section.ends.empty() ? static_cast<CGFloat>(row + 1) * section.rowHeight : section.ends[static_cast<std::size_t>(row)];
}

UITableViewRows::Span UITableViewRows::spanOfRow(NSIndexPath path) const {
    const Section& section = at(path.section);
    const CGFloat above = endOfRow(section, path.row - 1);
    return {section.span.top + section.headerHeight + above, endOfRow(section, path.row) - above};
}

std::optional<NSInteger> UITableViewRows::firstRowEndingAfter(const Section& section, CGFloat y) {
    NSInteger row = 0;
    if (!section.ends.empty()) {
        row = std::upper_bound(section.ends.begin(), section.ends.end(), y) - section.ends.begin();
    } else if (section.rowHeight > 0) {
        row = std::max<NSInteger>(0, truncateTo<NSInteger>(std::floor(y / section.rowHeight)));
        // A quotient that was rounded down gives the row before.
        if (row < section.count && endOfRow(section, row) <= y) ++row;
    } else {
        return std::nullopt;
    }
    if (row >= section.count) return std::nullopt;
    return row;
}

std::optional<NSIndexPath> UITableViewRows::firstRowFromSection(NSInteger section) const {
    for (NSInteger i = section; i < sectionCount(); ++i) {
        if (const auto row = firstRowEndingAfter(at(i), 0)) return NSIndexPath{i, *row};
    }
    return std::nullopt;
}

NSInteger UITableViewRows::firstSectionBelow(CGFloat y) const {
    const auto found = std::upper_bound(sections_.begin(), sections_.end(), y,
                                        [](CGFloat position, const Section& s) { return position < s.span.bottom(); });
    return found - sections_.begin();
}

std::optional<NSIndexPath> UITableViewRows::firstRowBelow(CGFloat y) const {
    const NSInteger section = firstSectionBelow(y);
    if (section == sectionCount()) return std::nullopt;
    const Section& entry = at(section);
    if (const auto row = firstRowEndingAfter(entry, y - entry.span.top - entry.headerHeight)) return NSIndexPath{section, *row};
    return firstRowFromSection(section + 1);
}

std::optional<NSIndexPath> UITableViewRows::nextRow(NSIndexPath path) const {
    const Section& section = at(path.section);
    if (const auto row = firstRowEndingAfter(section, endOfRow(section, path.row))) return NSIndexPath{path.section, *row};
    return firstRowFromSection(path.section + 1);
}

std::optional<NSInteger> UITableViewRows::lastRowAmong(const Section& section, NSInteger count) {
    const CGFloat end = endOfRow(section, count - 1);
    if (!(end > 0)) return std::nullopt;
    if (section.ends.empty()) return count - 1;
    return std::lower_bound(section.ends.begin(), section.ends.end(), end) - section.ends.begin();
}

std::optional<NSIndexPath> UITableViewRows::lastRowUpToSection(NSInteger section) const {
    for (NSInteger i = section; i >= 0; --i) {
        if (const auto row = lastRowAmong(at(i), at(i).count)) return NSIndexPath{i, *row};
    }
    return std::nullopt;
}

std::optional<NSIndexPath> UITableViewRows::previousRow(NSIndexPath path) const {
    if (const auto row = lastRowAmong(at(path.section), path.row)) return NSIndexPath{path.section, *row};
    return lastRowUpToSection(path.section - 1);
}

std::optional<NSIndexPath> UITableViewRows::clampedRow(NSIndexPath path) const {
    if (exists(path)) return path;
    const NSInteger section = std::clamp<NSInteger>(path.section, -1, sectionCount() - 1);
    const auto above = lastRowUpToSection(section);
    return above ? above : firstRow();
}

std::optional<NSIndexPath> UITableViewRows::rowAt(CGFloat y) const {
    const auto row = firstRowBelow(y);
    if (!row || !(spanOfRow(*row).top <= y)) return std::nullopt;
    return row;
}

} // namespace gx

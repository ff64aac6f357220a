#pragma once

#include <optional>
#include <string>
#include <vector>

#include "CGGeometry.h"
#include "NSIndexPath.h"

namespace gx {

/// Where the sections and rows of a table lie.
///
/// It is a value made of numbers: it knows no views and has no callbacks.
/// - Sections lie below each other, each with its header, if it has one, above its rows.
/// - Rows of one height take no memory, however many there are; others take one number each.
/// - Finding a row takes constant or, with heights of their own, logarithmic time.
///
/// Invariant: counts and heights are clamped (`clampedHeight` …) before they come here.
class UITableViewRows {
public:
    // Chosen: they keep a wrong count from filling the memory, and positions exact.
    static constexpr NSInteger highestSectionCount = 10'000;
    static constexpr NSInteger highestRowCount = 1'000'000'000'000;
    /// Sections with more rows have one height for all. Chosen: querying so many heights takes
    /// longer than a user waits.
    static constexpr NSInteger highestHeightCount = 100'000;

    /// A vertical extent, from the top of the content, in points.
    struct Span {
        CGFloat top = 0;
        CGFloat height = 0;
        CGFloat bottom() const { return top + height; }
        CGFloat middle() const { return top + 0.5 * height; }
    };
    /// The part of the content for which rows are shown.
    struct Range {
        CGFloat top = 0;
        CGFloat bottom = 0;
        bool meets(const Span& span) const { return span.bottom() > top && span.top < bottom; }
    };

    /// 0 if it is negative or NaN, else from 1 to 1 million points.
    static CGFloat clampedHeight(CGFloat height);
    static NSInteger clampedSectionCount(NSInteger count);
    static NSInteger clampedRowCount(NSInteger count);

    void addSection(std::optional<std::string> title, CGFloat headerHeight, NSInteger count, CGFloat rowHeight);
    /// A height for each row.
    void addSection(std::optional<std::string> title, CGFloat headerHeight, const std::vector<CGFloat>& heights);
    /// Ignored for a row that does not exist.
    void setHeight(NSIndexPath path, CGFloat height);

    NSInteger sectionCount() const { return static_cast<NSInteger>(sections_.size()); }
    /// 0 for a section that does not exist.
    NSInteger rowCount(NSInteger section) const;
    bool exists(NSIndexPath path) const;
    const std::optional<std::string>& title(NSInteger section) const { return at(section).title; }
    CGFloat height() const { return sections_.empty() ? 0 : sections_.back().span.bottom(); }

    /// Of a row that exists.
    Span spanOfRow(NSIndexPath path) const;
    /// Of a section that exists.
    Span spanOfHeader(NSInteger section) const { return {at(section).span.top, at(section).headerHeight}; }
    /// The row at a position; nothing on headers and beside the rows.
    std::optional<NSIndexPath> rowAt(CGFloat y) const;

    // These skip rows without height.

    /// The first row that has a part below a position.
    std::optional<NSIndexPath> firstRowBelow(CGFloat y) const;
    std::optional<NSIndexPath> nextRow(NSIndexPath path) const;
    std::optional<NSIndexPath> previousRow(NSIndexPath path) const;
    std::optional<NSIndexPath> firstRow() const { return firstRowFromSection(0); }
    std::optional<NSIndexPath> lastRow() const { return lastRowUpToSection(sectionCount() - 1); }
    /// The row itself if it exists, else the last one above it, or else the first of all. Nothing
    /// if there are no rows.
    std::optional<NSIndexPath> clampedRow(NSIndexPath path) const;

    /// The first section that has a part below a position; the number of sections if none has.
    NSInteger firstSectionBelow(CGFloat y) const;

private:
    struct Section {
        std::optional<std::string> title;
        CGFloat headerHeight = 0;
        NSInteger count = 0;
        CGFloat rowHeight = 0;
        std::vector<CGFloat> ends; // Below the header; empty where all rows are of `rowHeight`.
        Span span;
    };
    const Section& at(NSInteger section) const { return sections_[static_cast<std::size_t>(section)]; }
    static CGFloat endOfRow(const Section& section, NSInteger row);
    static std::optional<NSInteger> firstRowEndingAfter(const Section& section, CGFloat y);
    static std::optional<NSInteger> lastRowAmong(const Section& section, NSInteger count);
    std::optional<NSIndexPath> firstRowFromSection(NSInteger section) const;
    std::optional<NSIndexPath> lastRowUpToSection(NSInteger section) const;
    void add(Section section);
    static void fit(Section& section, CGFloat top);

    std::vector<Section> sections_;
};

} // namespace gx

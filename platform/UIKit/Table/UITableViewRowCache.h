#pragma once

#include <optional>
#include <string>

#include "UITableViewRows.h"

namespace gx {

/// The counts, header titles and heights that a table has got from its data source and delegate.
///
/// They are queried when they are needed, and kept until `invalidate`. While a query is open, its
/// callbacks see what was cached before.
class UITableViewRowCache {
public:
    /// Where the numbers come from. Every call may do anything but destroy the table.
    class Source {
    public:
        virtual ~Source() = default;
        virtual NSInteger sectionCount() = 0;
        virtual NSInteger rowCountOfSection(NSInteger section) = 0;
        /// Nothing for a section without a header.
        virtual std::optional<std::string> titleOfSection(NSInteger section) = 0;
        virtual bool hasHeightsOfItsOwn() const = 0;
        /// For a section with a title. This and the next two are clamped already.
        virtual CGFloat heightOfHeader(NSInteger section) = 0;
        virtual CGFloat heightOfRow(NSIndexPath path) = 0;
        virtual CGFloat usualRowHeight() const = 0;
    };

    /// Marks a query as open for its lifetime. Queries are not nested.
    class OpenQuery {
    public:
        explicit OpenQuery(UITableViewRowCache& cache) : cache_(cache) { cache_.isQuerying_ = true; }
        ~OpenQuery() { cache_.isQuerying_ = false; }
        OpenQuery(const OpenQuery&) = delete;
        OpenQuery& operator=(const OpenQuery&) = delete;

    private:
        UITableViewRowCache& cache_;
    };

    explicit UITableViewRowCache(Source& source) : source_(source) {}

    /// As of the last query.
    const UITableViewRows& rows() const { return rows_; }
    bool isValid() const { return isValid_; }
    bool isQuerying() const { return isQuerying_; }
    /// Whether single rows may be changed: the numbers are valid and no query is open.
    bool isReady() const { return isValid_ && !isQuerying_; }

    void invalidate() { isValid_ = false; }
    /// Queries everything. A callback that invalidates the cache meanwhile leaves it invalid.
    void refresh();
    /// Queries everything, but keeps the rows there are.
    UITableViewRows queryRows();
    void setRows(UITableViewRows rows) { rows_ = std::move(rows); }
    /// Queries one row's height again, unless its section is too long for heights of its own.
    void refreshHeightOfRow(NSIndexPath path);

private:
    Source& source_;
    UITableViewRows rows_;
    bool isValid_ = false;
    bool isQuerying_ = false;
};

} // namespace gx

#pragma once

#include <optional>
#include <string>

#include "CGGeometry.h"
#include "NSIndexPath.h"
#include "NSObject.h"

namespace gx {

class UITableView;
class UITableViewCell;

/// Says how many sections and rows a table has, and gives the cells that show them.
///
/// The table keeps the answers; see `UITableView` for when it asks again. All operations may call back.
class UITableViewDataSource {
public:
    virtual ~UITableViewDataSource() = default;

    /// A negative count means 0; of more than `UITableViewRows::highestSectionCount`, the rest is left out. Default: 1.
    virtual NSInteger numberOfSectionsInTableView(const Ref<UITableView>& tableView);
    /// A negative count means 0; of more than `UITableViewRows::highestRowCount`, the rest is left out.
    virtual NSInteger tableView_numberOfRowsInSection(const Ref<UITableView>& tableView, NSInteger section) = 0;
    /// Asked for each row that comes into sight. Nothing leaves the row empty as long as it is in sight.
    virtual Ref<UITableViewCell> tableView_cellForRowAtIndexPath(const Ref<UITableView>& tableView, NSIndexPath indexPath) = 0;
    /// Nothing for a section without a header. Default: nothing.
    virtual std::optional<std::string> tableView_titleForHeaderInSection(const Ref<UITableView>& tableView, NSInteger section);
};

/// Says how high rows are, and is told what the user does with them. All operations may call back.
class UITableViewDelegate {
public:
    virtual ~UITableViewDelegate() = default;

    /// In points. Default: `UITableView::automaticDimension`, which is the table's `rowHeight`; another height that is negative or no
    /// number means 0. Asked once for each row and reload, insertion or removal, but not in sections of more than
    /// `UITableViewRows::highestHeightCount` rows.
    virtual CGFloat tableView_heightForRowAtIndexPath(const Ref<UITableView>& tableView, NSIndexPath indexPath);
    /// Whether a row can be tapped; asked when a finger comes down on it, and when a key comes to it. Default: true.
    virtual bool tableView_shouldHighlightRowAtIndexPath(const Ref<UITableView>& tableView, NSIndexPath indexPath);
    /// Called once for each tap on a row, by a finger or a key. Default: nothing.
    virtual void tableView_didSelectRowAtIndexPath(const Ref<UITableView>& tableView, NSIndexPath indexPath);
    /// Called after a cell has left the screen, with the path that its row had then. Default: nothing.
    virtual void tableView_didEndDisplayingCell_forRowAtIndexPath(const Ref<UITableView>& tableView, const Ref<UITableViewCell>& cell,
                                                                  NSIndexPath indexPath);
};

} // namespace gx

#include "UITableViewRowCache.h"

#include <utility>
#include <vector>

namespace gx {

void UITableViewRowCache::refresh() {
    isValid_ = true;
    UITableViewRows rows = queryRows();
    rows_ = std::move(rows);
}

UITableViewRows UITableViewRowCache::queryRows() {
    UITableViewRows rows;
    const NSInteger sections = UITableViewRows::clampedSectionCount(source_.sectionCount());
    for (NSInteger section = 0; section < sections; ++section) {
        const NSInteger count = UITableViewRows::clampedRowCount(source_.rowCountOfSection(section));
        std::optional<std::string> title = source_.titleOfSection(section);
        const CGFloat headerHeight = title ? source_.heightOfHeader(section) : 0;
        if (!source_.hasHeightsOfItsOwn() || count > UITableViewRows::highestHeightCount) {
            rows.addSection(std::move(title), headerHeight, count, source_.usualRowHeight());
            continue;
        }
        std::vector<CGFloat> heights;
        heights.reserve(static_cast<std::size_t>(count));
        for (NSInteger row = 0; row < count; ++row) heights.push_back(source_.heightOfRow({section, row}));
        rows.addSection(std::move(title), headerHeight, heights);
    }
    return rows;
}

void UITableViewRowCache::refreshHeightOfRow(NSIndexPath path) {
    if (rows_.rowCount(path.section) > UITableViewRows::highestHeightCount) return;
    rows_.setHeight(path, source_.heightOfRow(path));
}

} // namespace gx

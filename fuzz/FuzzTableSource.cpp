#include "FuzzTableSource.h"

using namespace gx;

NSInteger FuzzTableSource::numberOfSectionsInTableView(const Ref<UITableView>&) {
    react(8);
    return sections;
}
NSInteger FuzzTableSource::tableView_numberOfRowsInSection(const Ref<UITableView>&, NSInteger) {
    react(16);
    return rows;
}
Ref<UITableViewCell> FuzzTableSource::oddCell(const Ref<UITableView>& table) {
    switch (world->bytes().below(4)) {
    case 0:
        return nullptr;
    case 1:
        return create<UITableViewCell>();
    case 2:
        return lastCell; // Which shows another row, or did.
    default:
        return table->cellForRowAtIndexPath({0, world->bytes().below(16)});
    }
}
Ref<UITableViewCell> FuzzTableSource::tableView_cellForRowAtIndexPath(const Ref<UITableView>& table, NSIndexPath path) {
    react(16);
    constexpr std::array<const char*, 4> identifiers = {"cell", "own", "picker", "own"};
    const bool isOdd = world && world->bytes().below(16) == 15;
    lastCell = isOdd ? oddCell(table) : table->dequeueReusableCellWithIdentifier(identifiers[static_cast<std::size_t>(path.row) % 4]);
    return lastCell;
}
std::optional<std::string> FuzzTableSource::tableView_titleForHeaderInSection(const Ref<UITableView>&, NSInteger section) {
    if (section % 2) return std::nullopt;
    return "header";
}
CGFloat FuzzTableSource::tableView_heightForRowAtIndexPath(const Ref<UITableView>&, NSIndexPath path) {
    if (path.row > 0 || !world) return 20 + static_cast<CGFloat>(path.row % 3) * 15;
    react(16);
    return world ? world->bytes().number() : 0;
}
bool FuzzTableSource::tableView_shouldHighlightRowAtIndexPath(const Ref<UITableView>&, NSIndexPath) {
    react(4);
    return true;
}
void FuzzTableSource::tableView_didSelectRowAtIndexPath(const Ref<UITableView>&, NSIndexPath) { react(1); }
void FuzzTableSource::tableView_didEndDisplayingCell_forRowAtIndexPath(const Ref<UITableView>&, const Ref<UITableViewCell>&, NSIndexPath) {
    react(16);
}

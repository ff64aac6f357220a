#include "UITableViewProtocols.h"

#include "UITableView.h"

namespace gx {

NSInteger UITableViewDataSource::numberOfSectionsInTableView(const Ref<UITableView>&) { return 1; }
std::optional<std::string> UITableViewDataSource::tableView_titleForHeaderInSection(const Ref<UITableView>&, NSInteger) {
    return std::nullopt;
}

CGFloat UITableViewDelegate::tableView_heightForRowAtIndexPath(const Ref<UITableView>&, NSIndexPath) {
    return UITableView::automaticDimension;
}
bool UITableViewDelegate::tableView_shouldHighlightRowAtIndexPath(const Ref<UITableView>&, NSIndexPath) { return true; }
void UITableViewDelegate::tableView_didSelectRowAtIndexPath(const Ref<UITableView>&, NSIndexPath) {}
void UITableViewDelegate::tableView_didEndDisplayingCell_forRowAtIndexPath(const Ref<UITableView>&, const Ref<UITableViewCell>&,
                                                                           NSIndexPath) {}

} // namespace gx

#include "UITableViewCellPool.h"

#include <algorithm>
#include <utility>

namespace gx {

const UITableViewCellPool::Kind* UITableViewCellPool::find(const std::string& identifier) const {
    const auto found =
        std::find_if(kinds_.begin(), kinds_.end(), [&identifier](const Kind& kind) { return kind.identifier == identifier; });
    return found == kinds_.end() ? nullptr : &*found;
}

UITableViewCellPool::Kind& UITableViewCellPool::kind(const std::string& identifier) {
    if (const Kind* found = find(identifier)) return kinds_[static_cast<std::size_t>(found - kinds_.data())];
    kinds_.push_back({identifier, {}, {}});
    return kinds_.back();
}

UITableViewCellPool::Cells UITableViewCellPool::setFactory(Factory factory, const std::string& identifier) {
    Kind& registered = kind(identifier);
    // Destroyed last: what it captured may do anything.
    const Factory before = std::exchange(registered.factory, std::move(factory));
    return std::exchange(registered.cells, {});
}

UITableViewCellPool::Factory UITableViewCellPool::factory(const std::string& identifier) const {
    const Kind* found = find(identifier);
    return found ? found->factory : nullptr;
}

Ref<UITableViewCell> UITableViewCellPool::take(const std::string& identifier) {
    if (!find(identifier)) return nullptr;
    Cells& cells = kind(identifier).cells;
    if (cells.empty()) return nullptr;
    Ref<UITableViewCell> cell = std::move(cells.back());
    cells.pop_back();
    return cell;
}

void UITableViewCellPool::remove(const Ref<UITableViewCell>& cell) {
    for (Kind& kind : kinds_) kind.cells.erase(std::remove(kind.cells.begin(), kind.cells.end(), cell), kind.cells.end());
}

bool UITableViewCellPool::put(const Ref<UITableViewCell>& cell) {
    if (!cell->reuseIdentifier()) return false;
    Cells& cells = kind(*cell->reuseIdentifier()).cells;
    if (cells.size() >= highestWaitingCount) return false;
    cells.push_back(cell);
    return true;
}

} // namespace gx

#include "UITableViewCells.h"

#include <algorithm>

namespace gx {

UITableViewCells::Kind* UITableViewCells::find(const std::string& identifier) {
    const auto found =
        std::find_if(kinds_.begin(), kinds_.end(), [&identifier](const Kind& kind) { return kind.identifier == identifier; });
    return found == kinds_.end() ? nullptr : &*found;
}

UITableViewCells::Kind& UITableViewCells::kind(const std::string& identifier) {
    if (Kind* found = find(identifier)) return *found;
    kinds_.push_back({identifier, {}, {}});
    return kinds_.back();
}

void UITableViewCells::setFactory(Factory factory, const std::string& identifier) { kind(identifier).factory = std::move(factory); }

UITableViewCells::Factory UITableViewCells::factory(const std::string& identifier) const {
    const auto found =
        std::find_if(kinds_.begin(), kinds_.end(), [&identifier](const Kind& kind) { return kind.identifier == identifier; });
    return found == kinds_.end() ? nullptr : found->factory;
}

Ref<UITableViewCell> UITableViewCells::take(const std::string& identifier) {
    Kind* found = find(identifier);
    if (!found || found->cells.empty()) return nullptr;
    Ref<UITableViewCell> cell = std::move(found->cells.back());
    found->cells.pop_back();
    return cell;
}

void UITableViewCells::remove(const Ref<UITableViewCell>& cell) {
    for (Kind& kind : kinds_) kind.cells.erase(std::remove(kind.cells.begin(), kind.cells.end(), cell), kind.cells.end());
}

bool UITableViewCells::put(const Ref<UITableViewCell>& cell) {
    if (!cell->reuseIdentifier()) return false;
    auto& cells = kind(*cell->reuseIdentifier()).cells;
    if (cells.size() >= highestWaitingCount) return false;
    cells.push_back(cell);
    return true;
}

} // namespace gx

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "UITableViewCell.h"

namespace gx {

/// The cells of a table that show no row at present, by reuse identifier, and how more are made.
///
/// It holds references only; where the cells stay in the view tree is up to the table.
class UITableViewCellPool {
public:
    using Factory = std::function<Ref<UITableViewCell>()>;
    using Cells = std::vector<Ref<UITableViewCell>>;
    /// For each identifier. Chosen as more than a screen shows; the bound keeps a data source that
    /// makes cells but never dequeues one from filling the memory.
    static constexpr std::size_t highestWaitingCount = 100;

    /// Empties the pool of this identifier and returns the cells that waited: they were made in
    /// another way. Without a factory no cells are made.
    Cells setFactory(Factory factory, const std::string& identifier);
    /// Empty without one.
    Factory factory(const std::string& identifier) const;

    /// Takes the cell out that came last; nothing if there is none.
    Ref<UITableViewCell> take(const std::string& identifier);
    /// Takes this cell out, if it is here.
    void remove(const Ref<UITableViewCell>& cell);
    /// Returns whether the cell is kept: it has an identifier, and not too many wait already.
    bool put(const Ref<UITableViewCell>& cell);

private:
    struct Kind {
        std::string identifier;
        Factory factory;
        Cells cells;
    };
    const Kind* find(const std::string& identifier) const;
    Kind& kind(const std::string& identifier);

    std::vector<Kind> kinds_; // A handful: a search is a few comparisons.
};

} // namespace gx

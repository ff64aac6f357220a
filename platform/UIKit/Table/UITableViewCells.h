#pragma once

#include <functional>
#include <string>
#include <vector>

#include "UITableViewCell.h"

namespace gx {

/// The cells of a table that show no row at present, by their reuse identifiers, and how more of them are made.
class UITableViewCells {
public:
    using Factory = std::function<Ref<UITableViewCell>()>;
    /// Of each identifier. More than a screen shows; the bound keeps a data source that makes cells and takes none from here from filling
    /// the memory.
    static constexpr std::size_t highestWaitingCount = 100;

    /// An empty factory makes no cells any more.
    void setFactory(Factory factory, const std::string& identifier);
    /// Empty without one.
    Factory factory(const std::string& identifier) const;

    /// Takes a cell out, the one that came last; nothing if there is none.
    Ref<UITableViewCell> take(const std::string& identifier);
    /// Takes this one out, if it is here.
    void remove(const Ref<UITableViewCell>& cell);
    /// Answers whether the cell is kept: one without an identifier is not, nor one too many.
    bool put(const Ref<UITableViewCell>& cell);

private:
    struct Kind {
        std::string identifier;
        Factory factory;
        std::vector<Ref<UITableViewCell>> cells;
    };
    Kind* find(const std::string& identifier);
    Kind& kind(const std::string& identifier);

    std::vector<Kind> kinds_; // A handful: a search is a few comparisons.
};

} // namespace gx

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace gx::qt {

/// What tells two prepared texts apart. Fields that a cache does not need keep their defaults.
struct QtTextKey {
    std::string_view text;
    std::uint32_t face = 0;
    std::uint32_t color = 0;
    /// Device pixels for the font's em.
    double resolution = 0;
    friend bool operator==(const QtTextKey&, const QtTextKey&) = default;
};

struct QtTextKeyHash {
    std::size_t operator()(const QtTextKey& key) const {
        constexpr std::size_t factor = 31; // Chosen as an odd prime: spreads the small numbers.
        std::size_t hash = std::hash<std::string_view>()(key.text);
        hash = hash * factor + key.face;
        hash = hash * factor + key.color;
        return hash * factor + std::hash<double>()(key.resolution);
    }
};

/// Values that were made of texts, bounded by the sum of their costs.
///
/// Above the capacity, the least recently used values are removed. The value that was inserted last
/// always stays, whatever it costs. Finding a value allocates nothing.
template <class Value>
class QtTextCache {
public:
    explicit QtTextCache(std::size_t capacity) : capacity_(capacity) {}

    /// Nothing if there is none. A value that is found counts as used last; the pointer is valid
    /// until the next insertion.
    const Value* find(const QtTextKey& key) {
        const auto place = places_.find(key);
        if (place == places_.end()) return nullptr;
        entries_.splice(entries_.begin(), entries_, place->second);
        return &place->second->value;
    }

    /// Only for a key that was not found.
    const Value& insert(const QtTextKey& key, Value value, std::size_t cost) {
        entries_.push_front({std::string(key.text), key, std::move(value), cost});
        Entry& entry = entries_.front();
        entry.key.text = entry.text;
        places_.emplace(entry.key, entries_.begin());
        cost_ += cost;
        trim();
        return entry.value;
    }

    void clear() {
        places_.clear();
        entries_.clear();
        cost_ = 0;
    }

    std::size_t size() const { return entries_.size(); }
    std::size_t cost() const { return cost_; }
    std::size_t capacity() const { return capacity_; }
    void setCapacity(std::size_t capacity) {
        capacity_ = capacity;
        trim();
    }

private:
    struct Entry {
        std::string text;
        QtTextKey key; // Its text is the one above.
        Value value;
        std::size_t cost = 0;
    };
    using Entries = std::list<Entry>;

    void trim() {
        while (cost_ > capacity_ && entries_.size() > 1) {
            cost_ -= entries_.back().cost;
            places_.erase(entries_.back().key);
            entries_.pop_back();
        }
    }

    std::size_t capacity_;
    std::size_t cost_ = 0;
    Entries entries_; // The one used last comes first.
    std::unordered_map<QtTextKey, typename Entries::iterator, QtTextKeyHash> places_;
};

} // namespace gx::qt

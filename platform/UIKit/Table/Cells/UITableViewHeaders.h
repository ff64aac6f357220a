#pragma once

#include <optional>
#include <vector>

#include "UILabel.h"
#include "UITableViewRows.h"

namespace gx {

/// The labels above the sections in sight.
///
/// A label that leaves stays a hidden subview of the table and is used for the next header, so
/// that scrolling allocates nothing.
class UITableViewHeaders {
public:
    struct Header {
        NSInteger section = 0;
        Ref<UILabel> label;
    };

    /// Shows the headers in this range, below the other subviews of `table`, and no others. Nothing
    /// for the font is the usual one.
    void show(UIView& table, const UITableViewRows& rows, UITableViewRows::Range range, const Ref<UIFont>& font);
    void hideAll();
    /// In no particular order.
    const std::vector<Header>& shown() const { return shown_; }
    bool contains(const Ref<UIView>& view) const { return sectionOf(view).has_value(); }
    /// The section that the view is the header of at present.
    std::optional<NSInteger> sectionOf(const Ref<UIView>& view) const;

private:
    void hide(std::size_t index);
    Header& headerOfSection(UIView& table, NSInteger section);

    std::vector<Header> shown_;
    std::vector<Ref<UILabel>> spare_;
};

} // namespace gx

#pragma once

#include <optional>
#include <vector>

#include "UILabel.h"
#include "UITableViewRows.h"

namespace gx {

/// The labels above the sections in sight, or the delegate's views in place of them.
///
/// A label that leaves stays a hidden subview of the table and is used for the next header, so
/// that scrolling allocates nothing. A view of the delegate is queried each time that its section
/// comes into sight, and removed when it leaves.
class UITableViewHeaders {
public:
    struct Header {
        NSInteger section = 0;
        Ref<UIView> view;
        Ref<UILabel> label; // The same; empty for a view of the delegate.
    };
    /// The calls may do anything but destroy the table or change the headers.
    class Client {
    public:
        virtual ~Client() = default;
        /// Of the labels; nothing is the usual one.
        virtual Ref<UIFont> headerFont() const = 0;
        /// Nothing for a label.
        virtual Ref<UIView> headerView(NSInteger section) = 0;
    };

    /// Shows the headers in this range, below the other subviews of `table`, and no others.
    void show(UIView& table, const UITableViewRows& rows, UITableViewRows::Range range, Client& client);
    void hideAll();
    /// In no particular order.
    const std::vector<Header>& shown() const { return shown_; }
    bool contains(const Ref<UIView>& view) const { return sectionOf(view).has_value(); }
    /// The section that the view is the header of at present.
    std::optional<NSInteger> sectionOf(const Ref<UIView>& view) const;

private:
    void hide(std::size_t index);
    Header& headerOfSection(UIView& table, NSInteger section, Client& client);

    std::vector<Header> shown_;
    std::vector<Ref<UILabel>> spare_;
};

} // namespace gx

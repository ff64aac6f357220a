#include "UITableViewElement.h"

#include <algorithm>

namespace gx {

namespace {

using Table = UITableViewElement::Table;

// What elements are known by: items by their path, headings and lists by numbers below 0. No
// section has as many rows as this.
constexpr NSInteger partsOfSection = NSInteger{1} << 40;

NSInteger partOfRow(NSIndexPath path) { return path.section * partsOfSection + path.row; }
NSIndexPath rowOfPart(NSInteger part) { return {part / partsOfSection, part % partsOfSection}; }
NSInteger partOfList(NSInteger section) { return -2 - 2 * section; }
NSInteger partOfHeading(NSInteger section) { return -3 - 2 * section; }

bool isControl(const Ref<UIAccessibilityElement>& element) {
    const UIAccessibilityRole role = element->role();
    return role != UIAccessibilityRole::Text && role != UIAccessibilityRole::Image;
}

/// What can be operated in a cell, besides the cell.
UIAccessibilityElements operatedIn(const Ref<UITableViewCell>& cell) {
    UIAccessibilityElements elements;
    for (const Ref<UIAccessibilityElement>& element : cell ? cell->accessibilityElements() : elements) {
        if (element->view() != cell && isControl(element)) elements.push_back(element);
    }
    return elements;
}

bool hasRow(Table& table, NSIndexPath path) {
    return path.section >= 0 && path.section < table.sectionCount() && path.row >= 0 && path.row < table.rowCount(path.section);
}

bool isPart(Table& table, NSIndexPath path) {
    return path.row > 0 && table.rowCount(path.section) <= UITableViewElement::highestPartCount && table.isPartOfRowAbove(path);
}

/// The number of items in a section, up to a row.
NSInteger itemCount(Table& table, NSInteger section, NSInteger rows) {
    if (rows > UITableViewElement::highestPartCount) return rows;
    NSInteger count = 0;
    for (NSInteger row = 0; row < rows; ++row) count += isPart(table, {section, row}) ? 0 : 1;
    return count;
}

/// Cannot have the focus: that of the table's view is a row's.
class ReadOnlyElement : public UITableViewElement {
public:
    bool isFocusable() const override { return false; }
    bool isFocused() const override { return false; }
    bool focus() const override { return false; }
    std::optional<bool> isExpanded() const override { return std::nullopt; }

protected:
    using UITableViewElement::UITableViewElement;
};

class HeadingElement : public ReadOnlyElement {
public:
    HeadingElement(const Ref<UIView>& view, const Ref<Table>& table, NSInteger section)
        : ReadOnlyElement(view, UIAccessibilityRole::Heading, partOfHeading(section), table), section_(section) {}

    std::optional<std::string> label() const override {
        const Ref<Table> table = this->table();
        return table && existsIn(*table) ? table->title(section_) : std::nullopt;
    }

protected:
    bool existsIn(Table& table) const override { return section_ < table.sectionCount() && table.title(section_).has_value(); }
    CGRect frameIn(Table& table) const override { return table.frameOfHeader(section_); }

private:
    NSInteger section_;
};

class RowElement : public UITableViewElement {
public:
    RowElement(const Ref<UIView>& view, const Ref<Table>& table, NSIndexPath path)
        : UITableViewElement(view, UIAccessibilityRole::ListItem, partOfRow(path), table), path_(path) {}

    std::optional<std::string> label() const override {
        std::optional<std::string> label;
        read([&label](const UITableViewCell& cell) { label = cell.accessibilityLabel(); });
        return label;
    }
    std::optional<bool> isExpanded() const override {
        std::optional<bool> isExpanded;
        read([&isExpanded](const UITableViewCell& cell) { isExpanded = cell.isAccessibilityExpanded(); });
        return isExpanded;
    }
    std::optional<UIAccessibilityPlace> place() const override {
        const Ref<Table> table = this->table();
        if (!table || !existsIn(*table)) return std::nullopt;
        const NSInteger count = itemCount(*table, path_.section, table->rowCount(path_.section));
        return UIAccessibilityPlace{itemCount(*table, path_.section, path_.row), count};
    }

    Ref<UIAccessibilityElement> container() const override;
    NSInteger childCount() const override { return static_cast<NSInteger>(children().size()); }
    Ref<UIAccessibilityElement> child(NSInteger index) const override {
        const UIAccessibilityElements children = this->children();
        return index >= 0 && index < static_cast<NSInteger>(children.size()) ? children[static_cast<std::size_t>(index)] : nullptr;
    }

    bool isFocusable() const override {
        const Ref<Table> table = this->table();
        return table && existsIn(*table) && UITableViewElement::isFocusable() && table->canTap(path_);
    }
    bool isFocused() const override {
        const Ref<Table> table = this->table();
        return table && UITableViewElement::isFocused() && table->rowOfKeys() == path_;
    }
    bool focus() const override {
        const Ref<Table> table = this->table();
        if (!isFocusable()) return false;
        table->chooseRow(path_);
        return UITableViewElement::focus() && isFocused();
    }
    void activateAtTime(NSTimeInterval time) const override {
        const Ref<Table> table = this->table();
        const Ref<UIView> view = tableView();
        if (!isFocusable() || !view->viewRoot()) return;
        table->chooseRow(path_);
        view->becomeFirstResponder();
        if (existsIn(*table)) table->tapRow(path_, time);
    }

protected:
    bool existsIn(Table& table) const override { return hasRow(table, path_); }
    CGRect frameIn(Table& table) const override { return table.frameOfRow(path_); }

private:
    void read(const Table::CellReader& read) const {
        const Ref<Table> table = this->table();
        if (table && existsIn(*table)) table->readCell(path_, read);
    }
    UIAccessibilityElements children() const {
        UIAccessibilityElements children;
        const Ref<Table> table = this->table();
        for (NSIndexPath path = path_; table && hasRow(*table, path) && (path == path_ || isPart(*table, path)); ++path.row) {
            for (const Ref<UIAccessibilityElement>& element : operatedIn(table->visibleCell(path))) {
                element->setContainer(std::make_shared<RowElement>(tableView(), table, path_));
                children.push_back(element);
            }
        }
        return children;
    }

    NSIndexPath path_;
};

class ListElement : public ReadOnlyElement {
public:
    ListElement(const Ref<UIView>& view, const Ref<Table>& table, NSInteger section)
        : ReadOnlyElement(view, UIAccessibilityRole::List, partOfList(section), table), section_(section) {}

    /// The section's title or, without one, what the table is called.
    std::optional<std::string> label() const override {
        const Ref<Table> table = this->table();
        if (!table || !existsIn(*table)) return std::nullopt;
        const std::optional<std::string> title = table->title(section_);
        return title ? title : UIAccessibilityElement::label();
    }
    NSInteger childCount() const override {
        const Ref<Table> table = this->table();
        return table && existsIn(*table) ? itemCount(*table, section_, table->rowCount(section_)) : 0;
    }
    Ref<UIAccessibilityElement> child(NSInteger index) const override {
        const Ref<Table> table = this->table();
        if (!table || index < 0 || index >= childCount()) return nullptr;
        NSInteger row = index;
        if (table->rowCount(section_) <= highestPartCount) {
            row = 0;
            for (NSInteger items = 0; row < table->rowCount(section_); ++row) {
                if (!isPart(*table, {section_, row}) && items++ == index) break;
            }
        }
        return std::make_shared<RowElement>(tableView(), table, NSIndexPath{section_, row});
    }
    NSInteger indexOfChild(const UIAccessibilityElement& child) const override {
        const Ref<Table> table = this->table();
        if (!table || child.view() != view() || child.part() < 0) return -1;
        const NSIndexPath path = rowOfPart(child.part());
        if (path.section != section_ || !hasRow(*table, path) || isPart(*table, path)) return -1;
        return itemCount(*table, section_, path.row);
    }

protected:
    bool existsIn(Table& table) const override { return section_ < table.sectionCount(); }
    CGRect frameIn(Table& table) const override {
        const NSInteger count = table.rowCount(section_);
        if (count == 0) return CGRectNull;
        const CGRect first = table.frameOfRow({section_, 0});
        const CGFloat bottom = CGRectGetMaxY(table.frameOfRow({section_, count - 1}));
        return CGRectMake(first.origin.x, first.origin.y, first.size.width, bottom - first.origin.y);
    }

private:
    NSInteger section_;
};

Ref<UIAccessibilityElement> RowElement::container() const {
    const Ref<Table> table = this->table();
    return table ? std::make_shared<ListElement>(tableView(), table, path_.section) : nullptr;
}

/// Collects the elements from top to bottom.
class Collection {
public:
    Collection(const Ref<UIView>& view, const Ref<Table>& table) : view_(view), table_(table), count_(table->sectionCount()) {}

    void addHeading(NSInteger section) {
        goToSection(section);
        if (!hasHeading_ && table_->title(section)) add(std::make_shared<HeadingElement>(view_, table_, section));
        hasHeading_ = true;
    }
    void addRow(NSIndexPath path, const Ref<UITableViewCell>& cell) {
        goToSection(path.section);
        hasItem_ = true;
        NSIndexPath item = path;
        while (isPart(*table_, item)) --item.row;
        const auto element = std::make_shared<RowElement>(view_, table_, item);
        const std::optional<std::string> label = cell ? cell->accessibilityLabel() : std::nullopt;
        if (item == path && label && !label->empty()) add(element);
        for (const Ref<UIAccessibilityElement>& operated : operatedIn(cell)) {
            operated->setContainer(element);
            add(operated);
        }
    }
    void addOthers(const UIAccessibilityElements& elements) { elements_.insert(elements_.end(), elements.begin(), elements.end()); }
    UIAccessibilityElements take() {
        goToSection(count_);
        return std::move(elements_);
    }

private:
    void add(const Ref<UIAccessibilityElement>& element) { elements_.push_back(element); }
    /// Sections that are passed without anything in sight are lists all the same.
    void goToSection(NSInteger section) {
        const bool isEach = count_ <= UITableViewElement::highestSectionCount;
        while (section_ < section) {
            if (isEach && !hasHeading_ && table_->title(section_)) add(std::make_shared<HeadingElement>(view_, table_, section_));
            const bool isOffered = !hasItem_ && (isEach || hasHeading_);
            if (isOffered && table_->rowCount(section_) > 0) add(std::make_shared<ListElement>(view_, table_, section_));
            ++section_;
            hasHeading_ = hasItem_ = false;
        }
    }

    const Ref<UIView>& view_;
    const Ref<Table>& table_;
    NSInteger count_;
    NSInteger section_ = 0;
    bool hasHeading_ = false;
    bool hasItem_ = false;
    UIAccessibilityElements elements_;
};

} // namespace

bool UITableViewElement::exists() const {
    const Ref<Table> table = this->table();
    return table && UIAccessibilityElement::exists() && existsIn(*table);
}

CGRect UITableViewElement::frame() const {
    const Ref<Table> table = this->table(); // Keeps the view, too.
    if (!table || !exists()) return CGRectNull;
    const CGPoint origin = tableView()->convertPointFromWindow({});
    return CGRectOffset(frameIn(*table), -origin.x, -origin.y);
}

UIAccessibilityElements UITableViewElement::elementsOf(const Ref<UIView>& view, const Ref<Table>& table) {
    view->layoutIfNeeded();
    Collection collection(view, table);
    const std::vector<Ref<UIView>> below = view->subviewsInReadingOrder();
    for (const Ref<UIView>& subview : below) {
        if (subview->isHidden() || subview->alpha() == 0 || CGRectIsEmpty(subview->frame())) continue;
        if (const std::optional<NSInteger> section = table->sectionOfHeader(subview)) {
            collection.addHeading(*section);
        } else if (const std::optional<NSIndexPath> path = table->rowOfView(subview)) {
            collection.addRow(*path, table->visibleCell(*path));
        } else {
            collection.addOthers(subview->accessibilityElements());
        }
    }
    return collection.take();
}

Ref<UIAccessibilityElement> UITableViewElement::focusedOf(const Ref<UIView>& view, const Ref<Table>& table) {
    const std::optional<NSIndexPath> path = table->rowOfKeys();
    const Ref<UIAccessibilityElement> element = path ? std::make_shared<RowElement>(view, table, *path) : nullptr;
    return element && element->isFocused() ? element : nullptr;
}

} // namespace gx

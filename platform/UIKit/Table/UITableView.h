#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "GXExport.h"
#include "NSIndexPath.h"
#include "UIFont.h"
#include "UIScrollView.h"
#include "UITableViewCell.h"

namespace gx {

class UITableView;
class UITableViewContent;

/// Tells a table how many sections and rows there are, and gives the cells that show them.
///
/// The table caches the results; see `UITableView` for when it queries again. All operations may
/// call back.
class GX_EXPORT UITableViewDataSource {
public:
    virtual ~UITableViewDataSource() = default;

    /// Clamped to 0 … 10,000. Default: 1.
    virtual NSInteger numberOfSectionsInTableView(const Ref<UITableView>& /*tableView*/) { return 1; }
    /// Clamped to 0 … 10¹².
    virtual NSInteger tableView_numberOfRowsInSection(const Ref<UITableView>& tableView, NSInteger section) = 0;
    /// Called for each row that comes into sight. Nothing leaves the row empty as long as it is in
    /// sight.
    virtual Ref<UITableViewCell> tableView_cellForRowAtIndexPath(const Ref<UITableView>& tableView, NSIndexPath indexPath) = 0;
    /// Nothing for a section without a header. Default: nothing.
    virtual std::optional<std::string> tableView_titleForHeaderInSection(const Ref<UITableView>& /*tableView*/, NSInteger /*section*/) {
        return std::nullopt;
    }
    /// Whether a row belongs to the one above it, as an open picker does. Default: false.
    ///
    /// A screen reader does not count it, and finds what it holds in the row above. Called only for
    /// screen readers, and not in sections of more than 1000 rows.
    virtual bool tableView_isRowPartOfRowAbove(const Ref<UITableView>& /*tableView*/, NSIndexPath /*indexPath*/) { return false; }
};

/// Gives a table the heights of rows, and is notified of what the user does with them. All
/// operations may call back.
class GX_EXPORT UITableViewDelegate {
public:
    virtual ~UITableViewDelegate() = default;

    /// In points. Default: `UITableView::automaticDimension`, which is the table's `rowHeight`.
    /// Another height that is negative or NaN means 0.
    ///
    /// Called once for each row and reload, insertion or removal, but not in sections of more than
    /// 100,000 rows.
    virtual CGFloat tableView_heightForRowAtIndexPath(const Ref<UITableView>& tableView, NSIndexPath indexPath);
    /// In points, for a section that has a title. Default: `UITableView::automaticDimension`, which
    /// is the table's `sectionHeaderHeight`. Called once for each reload, insertion or removal.
    virtual CGFloat tableView_heightForHeaderInSection(const Ref<UITableView>& tableView, NSInteger section);
    /// A view to show in place of a label with the title, in the label's frame. Called each time
    /// that the header comes into sight. Default: nothing, for a label.
    virtual Ref<UIView> tableView_viewForHeaderInSection(const Ref<UITableView>& /*tableView*/, NSInteger /*section*/) { return nullptr; }
    /// Whether a row can be tapped: called when a finger comes down on it, and when a key comes to
    /// it. Default: true.
    virtual bool tableView_shouldHighlightRowAtIndexPath(const Ref<UITableView>& /*tableView*/, NSIndexPath /*indexPath*/) { return true; }
    /// Called once for each tap on a row, by a finger or a key. Default: nothing.
    virtual void tableView_didSelectRowAtIndexPath(const Ref<UITableView>& /*tableView*/, NSIndexPath /*indexPath*/) {}
    /// Called after a cell has left the screen, with the path that its row had then. Default:
    /// nothing.
    virtual void tableView_didEndDisplayingCell_forRowAtIndexPath(const Ref<UITableView>& /*tableView*/,
                                                                  const Ref<UITableViewCell>& /*cell*/, NSIndexPath /*indexPath*/) {}
};

/// Rows below each other, in sections, that the user scrolls through and taps.
///
/// For a few views that stay as they are, a `UIScrollView` is enough. The table owns neither its
/// data source nor its delegate; both may do anything when they are called.
///
/// **Cells** exist only for rows in sight and are as wide as the table. One that leaves is kept,
/// hidden, under its reuse identifier until the data source dequeues it; one without an identifier
/// is let go. So a reload and a frame cost no more with more rows, unless rows have heights of
/// their own.
///
/// **Caching.** Counts, header titles and heights are cached until a reload, a new data source or
/// delegate, or another `rowHeight` or `sectionHeaderHeight`; insertions and removals query them
/// again. The next query or layout reads what is needed. A callback of an open query sees what was
/// cached before; rows that it inserts or removes cause a reload.
///
/// **Fingers.** A finger that rests on a row for `highlightDelay` highlights it, so that scrolling
/// does not flash. A tap highlights it for `tapDuration` and is reported to the delegate. A finger
/// that scrolls, or has stopped moving rows, taps nothing. No row stays selected.
///
/// **Keys.** The table takes the focus if a row can be tapped; one such row is then focused.
/// - Up and Down move the focus by one row, page keys by what is in sight, Home and End all the
///   way. Rows that cannot be tapped are skipped. Return and Space tap the row.
/// - The focused row scrolls into sight, and is marked while the window shows the focus. A tap by
///   a finger focuses its row too.
/// - Tab goes on to views inside the rows in sight that take the focus. When such a row leaves,
///   the table has the focus again.
///
/// **Accessibility.** Each section is a list, with a heading before it if it has a title. Its rows
/// are items, also those out of sight, which come into sight when they get the focus or are
/// activated. A cell's label and `isAccessibilityExpanded` are its row's.
class GX_EXPORT UITableView : public UIScrollView {
public:
    /// Makes the cells of a reuse identifier.
    using CellFactory = std::function<Ref<UITableViewCell>()>;

    /// A delegate's way to leave a height to the table.
    static constexpr CGFloat automaticDimension = -1;
    /// Prescribed by the phone's platform: a row that a finger hits safely.
    static constexpr CGFloat defaultRowHeight = 44;
    /// Chosen: a line of text and some space above the rows.
    static constexpr CGFloat defaultSectionHeaderHeight = 28;
    /// Chosen: a hairline, one pixel at a scale of 2.
    static constexpr CGFloat separatorHeight = 0.5;
    /// Chosen by eye: the shortest delay with which scrolling does not flash.
    static constexpr NSTimeInterval highlightDelay = 0.08;
    /// Chosen by eye: long enough to be seen.
    static constexpr NSTimeInterval tapDuration = 0.1;
    /// Chosen as more rows than any screen shows; it keeps a huge frame from filling the memory.
    static constexpr NSInteger highestVisibleCount = 1000;
    /// A key skips this many rows in sequence that cannot be tapped; beyond them the focus stays
    /// where it is. Chosen: so many queries still take no time that a user notices.
    static constexpr int highestPassedCount = 100;

    UITableView();
    ~UITableView() override;

    /// Held weakly; empty for none. Setting it reloads.
    WeakRef<UITableViewDataSource> dataSource() const { return dataSource_; }
    void setDataSource(WeakRef<UITableViewDataSource> dataSource) {
        dataSource_ = std::move(dataSource);
        reloadData();
    }
    /// Held weakly; empty for none. Setting it reloads.
    WeakRef<UITableViewDelegate> delegate() const { return delegate_; }
    void setDelegate(WeakRef<UITableViewDelegate> delegate) {
        delegate_ = std::move(delegate);
        reloadData();
    }

    /// In points. `automaticDimension` is the default, other negative heights and NaN are 0, and a
    /// height above 0 is at least 1.
    CGFloat rowHeight() const { return rowHeight_; }
    void setRowHeight(CGFloat height);
    /// Of sections with a title; clamped as for rows.
    CGFloat sectionHeaderHeight() const { return sectionHeaderHeight_; }
    void setSectionHeaderHeight(CGFloat height);
    /// Of the titles of sections, which have one line. Nothing, the default, is a font a little
    /// smaller than that of the rows.
    const Ref<UIFont>& sectionHeaderFont() const { return sectionHeaderFont_; }
    void setSectionHeaderFont(Ref<UIFont> font) {
        sectionHeaderFont_ = std::move(font);
        setNeedsLayout();
    }
    /// Of the hairlines between the rows of a section; nothing draws none.
    std::optional<UIColor> separatorColor() const { return separatorColor_; }
    void setSeparatorColor(std::optional<UIColor> color) {
        if (color == separatorColor_) return;
        separatorColor_ = color;
        setNeedsDisplay();
    }

    // Cells

    /// Cells for this identifier are of this class, made with the default style.
    ///
    /// Registering again empties the identifier's pool: cells made before are not dequeued any
    /// more, and those in sight stay until they leave. So an application whose cells should take a
    /// new style registers their class again and calls `reloadData`.
    template <class T>
    void registerClass_forCellReuseIdentifier(const std::string& identifier) {
        registerClass_forCellReuseIdentifier([identifier] { return create<T>(UITableViewCellStyleDefault, identifier); }, identifier);
    }
    /// As above, with a factory. Its cells are reused if they carry the identifier. An empty
    /// factory makes none.
    void registerClass_forCellReuseIdentifier(CellFactory factory, const std::string& identifier);
    /// A cell that has left the screen, after its `prepareForReuse`, or a new one. Nothing for an
    /// identifier that is not registered.
    Ref<UITableViewCell> dequeueReusableCellWithIdentifier(const std::string& identifier);

    // Queries

    /// As cached, 0 to 10,000; 0 without a data source.
    NSInteger numberOfSections();
    /// 0 for a section that does not exist.
    NSInteger numberOfRowsInSection(NSInteger section);
    /// In this view's coordinates; the zero rectangle for a row that does not exist.
    CGRect rectForRowAtIndexPath(NSIndexPath path);
    /// Nothing on a header and beside the rows.
    std::optional<NSIndexPath> indexPathForRowAtPoint(CGPoint point);
    // These lay the table out first, if needed.
    /// Nothing for a row that is not in sight.
    Ref<UITableViewCell> cellForRowAtIndexPath(NSIndexPath path);
    /// Nothing for a cell that shows no row.
    std::optional<NSIndexPath> indexPathForCell(const Ref<UITableViewCell>& cell);
    /// From top to bottom.
    std::vector<NSIndexPath> indexPathsForVisibleRows();
    /// The row that keys act on; nothing before the table has had the focus.
    ///
    /// It follows insertions and removals; if it is removed, the row that takes its place is
    /// focused. A reload clamps it to the rows there are.
    std::optional<NSIndexPath> indexPathForFocusedRow();

    // Changes

    /// Queries everything again when it is next needed. Keeps the offset, clamped to the content.
    void reloadData();
    /// Queries the cells and heights of these rows again; the others stay as they are.
    void reloadRowsAtIndexPaths(const std::vector<NSIndexPath>& paths);
    /// The data source has to return the new counts already, and the paths are those of the new
    /// rows. If the numbers do not add up, this is a reload. Rows that stay in sight keep their
    /// cells.
    ///
    /// Everything is in its new place at once; only drawing is animated, for a quarter of a
    /// second. A change that is higher than the table is not animated, nor one without a window or
    /// in a window that reduces motion.
    void insertRowsAtIndexPaths_animated(const std::vector<NSIndexPath>& paths, bool animated);
    /// As an insertion; the paths are those that the rows had before.
    void deleteRowsAtIndexPaths_animated(const std::vector<NSIndexPath>& paths, bool animated);
    /// Scrolls just far enough to show the whole row, or its top if it is higher than the table.
    /// Ignored for a row that does not exist.
    void scrollToRowAtIndexPath_animated(NSIndexPath path, bool animated);

    // Overrides

    /// From top to bottom.
    std::vector<Ref<UIView>> subviewsInReadingOrder() const override;
    void layoutSubviews() override;
    /// Also removes the highlight, and draws rows that came or went where they belong.
    void finishAnimations() override;
    void touchEnded(const UITouch& touch) override;
    void touchCancelled(const UITouch& touch) override;
    /// Rows that can be tapped are marked below the pointer.
    std::optional<UIPointerStyle> hoverMoved(CGPoint locationInWindow) override;
    void hoverEnded() override;
    bool keyPressed(const UIKey& key) override;
    bool canBecomeFirstResponder() override;
    void focusDidChange() override;
    /// When Tab comes to the table itself, the focused row scrolls into sight.
    void revealDescendant(CGRect rect) override;
    bool advanceToTime(NSTimeInterval time) override;
    UIAccessibilityElements accessibilityElements() override;
    Ref<UIAccessibilityElement> focusedAccessibilityElement() override;

protected:
    void scrollViewDidScroll() override;
    void pressBegan(CGPoint point, NSTimeInterval time) override;
    void pressEnded(bool isTap, NSTimeInterval time) override;
    bool isMoving() const override;
    void drawScrolledViews(UIGraphicsContext& context) override;

private:
    class Implementation;

    Ref<UITableView> self() { return refTo(this); }
    UITableViewContent& content() const;
    UITableViewContent& refreshedContent();
    void setHeight(CGFloat& height, CGFloat automatic, CGFloat wanted);

    WeakRef<UITableViewDataSource> dataSource_;
    WeakRef<UITableViewDelegate> delegate_;
    CGFloat rowHeight_ = defaultRowHeight;
    CGFloat sectionHeaderHeight_ = defaultSectionHeaderHeight;
    Ref<UIFont> sectionHeaderFont_;
    std::optional<UIColor> separatorColor_ = UIColor::tertiarySystemFillColor();
    std::unique_ptr<Implementation> implementation_; // Made once, by the constructor.
};

inline CGFloat UITableViewDelegate::tableView_heightForRowAtIndexPath(const Ref<UITableView>&, NSIndexPath) {
    return UITableView::automaticDimension;
}
inline CGFloat UITableViewDelegate::tableView_heightForHeaderInSection(const Ref<UITableView>&, NSInteger) {
    return UITableView::automaticDimension;
}

} // namespace gx

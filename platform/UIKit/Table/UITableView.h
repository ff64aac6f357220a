#pragma once

#include <string>
#include <vector>

#include "UIKey.h"
#include "UIScrollView.h"
#include "UITableViewCell.h"
#include "UITableViewCells.h"
#include "UITableViewChange.h"
#include "UITableViewProtocols.h"
#include "UITableViewRows.h"

namespace gx {

class UILabel;

/// Rows below each other, in sections, that the user scrolls through and taps.
///
/// What is shown. Cells exist only for rows in sight and go round: one that leaves is kept, hidden, under its reuse identifier until
/// the data source asks for it; one without an identifier is let go. Cells fill the width. So neither a reload nor a frame costs more
/// with more rows, unless a delegate gives them heights of their own.
///
/// Answers it keeps. Counts, header titles and heights are kept until a reload, a new data source or delegate, or another `rowHeight` or
/// `sectionHeaderHeight`; insertions and removals ask for them anew. The next question or layout asks again. While a question is open,
/// who asks back hears the last answer, and whoever inserts or removes rows gets a reload.
///
/// Fingers. A row lights up under a finger that rests on it for `highlightDelay`, so that a stroke does not flash; a tap lights it up
/// for `tapDuration` and is told to the delegate. A finger that scrolls, or has stopped moving rows, taps nothing. Nothing stays chosen.
///
/// Keys. The table takes the focus if there is a row that can be tapped, and one such row is then the focused one. Up and down go on to
/// the row beside it, page keys by what is in sight, home and end all the way, passing over rows that cannot be tapped; Return and Space
/// tap it. It comes into sight, and is marked while the window shows the focus. A tap by a finger focuses its row too. Tab goes on to what
/// takes the focus inside the rows in sight, whose keys are their own; when such a row leaves, the table has the focus again.
///
/// The table owns neither its data source nor its delegate. Both may do anything while they are asked.
class UITableView : public UIScrollView {
public:
    /// The answer of a delegate that leaves a height to the table.
    static constexpr CGFloat automaticDimension = -1;
    /// A row that a finger hits safely.
    static constexpr CGFloat defaultRowHeight = 44;
    static constexpr CGFloat defaultSectionHeaderHeight = 28;
    static constexpr CGFloat separatorHeight = 0.5;
    static constexpr NSTimeInterval highlightDelay = 0.08;
    static constexpr NSTimeInterval tapDuration = 0.1;
    /// More rows than any screen shows; the bound keeps a huge frame from filling the memory.
    static constexpr NSInteger highestVisibleCount = 1000;
    /// So many rows in a row that cannot be tapped are passed over by a key; beyond them the focus stays where it is.
    static constexpr int highestPassedCount = 100;

    WeakRef<UITableViewDataSource> dataSource() const { return dataSource_; }
    void setDataSource(WeakRef<UITableViewDataSource> dataSource);
    WeakRef<UITableViewDelegate> delegate() const { return delegate_; }
    void setDelegate(WeakRef<UITableViewDelegate> delegate);

    /// In points; `automaticDimension` is the default, other negative heights and NaN are 0, and a height above 0 is at least 1.
    CGFloat rowHeight() const { return rowHeight_; }
    void setRowHeight(CGFloat height);
    /// Of sections with a title; as for rows.
    CGFloat sectionHeaderHeight() const { return sectionHeaderHeight_; }
    void setSectionHeaderHeight(CGFloat height);
    /// Of the hairlines between the rows of a section; nothing draws none.
    std::optional<UIColor> separatorColor() const { return separatorColor_; }
    void setSeparatorColor(std::optional<UIColor> color);

    // Cells

    /// Cells for this identifier are of this class, made with the default style.
    template <class T>
    void registerClass_forCellReuseIdentifier(const std::string& identifier) {
        registerClass_forCellReuseIdentifier([identifier] { return create<T>(UITableViewCellStyleDefault, identifier); }, identifier);
    }
    /// Cells for this identifier are made so; they come back if they bear the identifier.
    void registerClass_forCellReuseIdentifier(UITableViewCells::Factory factory, const std::string& identifier);
    /// A cell that has left the screen, after its `prepareForReuse`, or a new one; nothing if nobody has registered the identifier.
    Ref<UITableViewCell> dequeueReusableCellWithIdentifier(const std::string& identifier);

    // Questions

    NSInteger numberOfSections();
    /// 0 for a section that does not exist.
    NSInteger numberOfRowsInSection(NSInteger section);
    /// In this view's coordinates; the zero rectangle for a row that does not exist.
    CGRect rectForRowAtIndexPath(NSIndexPath path);
    /// Nothing on a header and beside the rows.
    std::optional<NSIndexPath> indexPathForRowAtPoint(CGPoint point);
    // These lay the table out first, if that is due.
    /// Nothing for a row that is not in sight.
    Ref<UITableViewCell> cellForRowAtIndexPath(NSIndexPath path);
    /// Nothing for a cell that shows no row.
    std::optional<NSIndexPath> indexPathForCell(const Ref<UITableViewCell>& cell);
    std::vector<NSIndexPath> indexPathsForVisibleRows();
    /// The row that keys are meant for; nothing before the table has had the focus. It follows insertions and removals; where it goes
    /// itself, the row that takes its place follows it. A reload holds it to the rows there are.
    std::optional<NSIndexPath> indexPathForFocusedRow();

    // Orders

    /// Asks for everything anew, once that is needed. Keeps the offset, held to what there is then.
    void reloadData();
    /// Asks anew for the cells and heights of these rows; the others stay as they are.
    void reloadRowsAtIndexPaths(const std::vector<NSIndexPath>& paths);
    /// The data source answers the new counts already, and the paths are those of the new rows. Where the numbers do not add up, this is a
    /// reload. Rows that stay in sight keep their cells untouched. Everything is in its new place at once, and only drawn on its way there
    /// for `UITableViewChange::duration`; a change that is higher than the table, or has no window or one that reduces motion, is not
    /// animated.
    void insertRowsAtIndexPaths_animated(const std::vector<NSIndexPath>& paths, bool animated);
    /// As an insertion; the paths are those that the rows had before.
    void deleteRowsAtIndexPaths_animated(const std::vector<NSIndexPath>& paths, bool animated);
    /// Scrolls just as far as shows the whole row, or its top if it is higher than the table. Ignored for a row that does not exist.
    void scrollToRowAtIndexPath_animated(NSIndexPath path, bool animated);

    /// From top to bottom.
    std::vector<Ref<UIView>> subviewsInReadingOrder() const override;
    void layoutSubviews() override;
    /// Also forgets the row that is lit, and draws rows that came or went where they belong.
    void finishAnimations() override;
    void touchEnded(const UITouch& touch) override;
    void touchCancelled(const UITouch& touch) override;
    bool keyPressed(const UIKey& key) override;
    bool canBecomeFirstResponder() override;
    void focusDidChange() override;
    /// Where Tab has come to the table itself, it is the focused row that comes into sight.
    void revealDescendant(CGRect rect) override;
    bool advanceToTime(NSTimeInterval time) override;

protected:
    void scrollViewDidScroll() override;
    void pressBegan(CGPoint point, NSTimeInterval time) override;
    void pressEnded(bool isTap, NSTimeInterval time) override;
    bool isMoving() const override;
    void drawScrolledViews(UIGraphicsContext& context) override;

private:
    /// A row in sight. The data source may have left it without a cell.
    struct Row {
        NSIndexPath path;
        Ref<UITableViewCell> cell;
    };
    struct Header {
        NSInteger section = 0;
        Ref<UILabel> label;
    };
    struct Sight {
        CGFloat top = 0;
        CGFloat bottom = 0;
    };

    Ref<UITableView> self() { return refTo(this); }
    // Where the rows are: UITableView.cpp.
    void refreshRows();
    UITableViewRows askRows();
    CGFloat askHeight(NSIndexPath path);
    void fitContent();
    CGRect rectOf(const UITableViewRows::Span& span) const;
    // The cells of those in sight: UITableViewShowing.cpp.
    Sight sight() const;
    void recycleRowsOutside(Sight sight);
    void showRow(NSIndexPath path);
    Ref<UITableViewCell> askCell(NSIndexPath path);
    void placeCell(const Ref<UITableViewCell>& cell, NSIndexPath path);
    void showHeaders(Sight sight);
    void hideHeader(std::size_t index);
    std::vector<Row>::iterator findRow(NSIndexPath path);
    Row takeRow(std::size_t index);
    void retire(const Row& row);
    void dropLeaving();
    // Insertions and removals, and how they are drawn: UITableViewChanging.cpp.
    void change(UITableViewChange::Kind kind, std::vector<NSIndexPath> paths, bool animated);
    void finishChange();
    bool showsRowOrHeader(const Ref<UIView>& view) const;
    void drawChanging(UIGraphicsContext& context);
    void drawSeparators(UIGraphicsContext& context) const;
    // Fingers: UITableViewTouches.cpp.
    void forgetPress();
    void tapRow(NSIndexPath path, NSTimeInterval time);
    void light(NSIndexPath path);
    void darken();
    // Keys: UITableViewKeys.cpp.
    bool canBeTapped(NSIndexPath path);
    std::optional<NSIndexPath> tappableRow(std::optional<NSIndexPath> path, bool isDownward);
    std::optional<NSIndexPath> rowOfKeys();
    std::optional<NSIndexPath> rowForKey(UIKey::Code code, NSIndexPath present);
    std::optional<NSIndexPath> rowAPageFrom(NSIndexPath present, bool isDownward) const;
    void focusRow(NSIndexPath path);
    void takeFocusFrom(const Ref<UITableViewCell>& cell);
    CGRect rectToReveal(NSIndexPath path) const;
    void drawFocus(UIGraphicsContext& context);

    WeakRef<UITableViewDataSource> dataSource_;
    WeakRef<UITableViewDelegate> delegate_;
    CGFloat rowHeight_ = defaultRowHeight;
    CGFloat sectionHeaderHeight_ = defaultSectionHeaderHeight;
    std::optional<UIColor> separatorColor_ = UIColor::tertiarySystemFillColor();

    UITableViewRows rows_;
    bool isStale_ = true;
    bool isBusy_ = false;    // A question is open.
    std::vector<Row> shown_; // From top to bottom.
    UITableViewCells cells_;
    std::vector<Ref<UITableViewCell>> lent_;    // Handed out for the row that is being asked for.
    std::vector<Ref<UITableViewCell>> leaving_; // Not to be used again, but perhaps below a finger.
    std::vector<Header> headers_;
    std::vector<Ref<UILabel>> spareHeaders_;

    std::optional<UITableViewChange> change_;
    std::vector<Row> removed_; // By the change that is being drawn.

    std::optional<NSIndexPath> pressed_;
    std::optional<NSTimeInterval> lightsAt_;
    std::optional<NSTimeInterval> darkensAt_;
    Ref<UITableViewCell> lit_;
    std::optional<NSIndexPath> focused_;
};

} // namespace gx

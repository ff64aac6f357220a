#pragma once

#include <optional>
#include <string>

#include "GXExport.h"
#include "UIView.h"

namespace gx {

class UILabel;

/// Which labels a cell has.
enum UITableViewCellStyle {
    /// A text at the leading edge.
    UITableViewCellStyleDefault = 0,
    /// A text at the leading edge and a quieter one, its value, at the trailing edge.
    UITableViewCellStyleValue1 = 1
};

/// A row of a table. What it shows goes into its content view.
///
/// A table reuses cells that have left the screen for other rows with the same reuse identifier,
/// with whatever they contain. A cell that must not keep something from one row to the next
/// resets it in `prepareForReuse`.
///
/// Invariant: the content view fills the cell. For rows outside a table, a `UIView` is enough.
class GX_EXPORT UITableViewCell : public UIView {
public:
    /// Until its table gives it another size. Prescribed by the phone's platform: the width of the
    /// smallest phone, and a row that a finger hits safely.
    static constexpr CGSize defaultSize = {320, 44};
    /// From the edges to the labels. Chosen: the margin of lists on the phone.
    static constexpr CGFloat labelInset = 16;

    /// A cell of `defaultSize`. A style that does not exist adds nothing to the default style.
    virtual bool initWithStyle_reuseIdentifier(UITableViewCellStyle style, const std::optional<std::string>& reuseIdentifier);
    /// Of the default style and without an identifier.
    bool initWithFrame(CGRect frame) override;
    /// Also restores "style" and "reuseIdentifier".
    bool initWithCoder(const Ref<NSCoder>& coder) override;

    /// As given to the initialiser.
    UITableViewCellStyle style() const { return style_; }
    /// Under which a table reuses the cell; nothing for a cell that is not reused.
    const std::optional<std::string>& reuseIdentifier() const { return reuseIdentifier_; }
    /// The view for what the cell shows. Never empty once the cell is made.
    const Ref<UIView>& contentView() const { return contentView_; }

    /// Made on first use, so that cells with content of their own have none.
    const Ref<UILabel>& textLabel();
    /// Nothing in the default style.
    const Ref<UILabel>& detailTextLabel();

    /// Filled while a finger is down on it. Set by the table.
    bool isHighlighted() const { return isHighlighted_; }
    virtual void setHighlighted(bool highlighted);
    /// Filled until it is deselected or shows another row. For the application: a table selects no
    /// rows itself.
    bool isSelected() const { return isSelected_; }
    virtual void setSelected(bool selected);

    /// Called by the table before it reuses the cell. Here the cell is deselected and loses its
    /// highlight.
    virtual void prepareForReuse();

    void setFrame(CGRect frame) override;
    void setBounds(CGRect bounds) override;
    void layoutSubviews() override;
    void drawRect(UIGraphicsContext& context, CGRect rect) override;

    /// The texts and images in it, joined as a list, unless a label was set.
    std::optional<std::string> accessibilityLabel() const override;
    /// Itself as one button, if it has a label, instead of its texts and images; then the buttons
    /// and wheels that it contains.
    UIAccessibilityElements accessibilityElements() override;

private:
    void makeContentView();
    void fillWithContentView();

    UITableViewCellStyle style_ = UITableViewCellStyleDefault;
    std::optional<std::string> reuseIdentifier_;
    Ref<UIView> contentView_;
    Ref<UILabel> textLabel_;
    Ref<UILabel> detailTextLabel_;
    bool isHighlighted_ = false;
    bool isSelected_ = false;
};

/// How `create` makes a cell: `(style, reuseIdentifier)`.
inline bool initialise(UITableViewCell& cell, UITableViewCellStyle style, const std::optional<std::string>& reuseIdentifier) {
    return cell.initWithStyle_reuseIdentifier(style, reuseIdentifier);
}

} // namespace gx

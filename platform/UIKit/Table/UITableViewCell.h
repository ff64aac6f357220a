#pragma once

#include <optional>
#include <string>

#include "UIView.h"

namespace gx {

class UILabel;

enum UITableViewCellStyle {
    UITableViewCellStyleDefault = 0, ///< a text at the left
    UITableViewCellStyleValue1 = 1 ///< a text at the left and a quieter one, its value, at the right; mirrored where one reads to the left
};

/// A row of a table. What it shows goes into its content view, which always fills it.
///
/// A table keeps cells that have left the screen and hands them out again under their reuse identifier, with whatever they
/// contain: a cell that keeps something from one row to the next lets go of it in `prepareForReuse`.
class UITableViewCell : public UIView {
public:
    /// The size of a cell until its table gives it another: the width of the smallest phone, and a row that a finger hits safely.
    static constexpr CGSize defaultSize = {320, 44};
    /// From the edges to the labels.
    static constexpr CGFloat labelInset = 16;

    /// A cell of `defaultSize`. What another style would add is left out for one that does not exist.
    virtual bool initWithStyle_reuseIdentifier(UITableViewCellStyle style, const std::optional<std::string>& reuseIdentifier);
    /// Of the default style and without an identifier.
    bool initWithFrame(CGRect frame) override;
    /// Also restores "style" and "reuseIdentifier".
    bool initWithCoder(const Ref<NSCoder>& coder) override;

    UITableViewCellStyle style() const { return style_; }
    /// Under which a table hands the cell out again; nothing for a cell that is not reused.
    const std::optional<std::string>& reuseIdentifier() const { return reuseIdentifier_; }
    const Ref<UIView>& contentView() const { return contentView_; }

    /// Made when first asked for, so that cells with a content of their own go without.
    const Ref<UILabel>& textLabel();
    /// Nothing in the default style.
    const Ref<UILabel>& detailTextLabel();

    /// Lit while a finger holds it. Set by the table.
    bool isHighlighted() const { return isHighlighted_; }
    virtual void setHighlighted(bool highlighted);
    /// Lit until it is set otherwise, or shows another row. For who fills the cell; a table leaves nothing chosen.
    bool isSelected() const { return isSelected_; }
    virtual void setSelected(bool selected);

    /// Called by the table before it hands the cell out for another row. Here it is no longer lit.
    virtual void prepareForReuse();

    void setFrame(CGRect frame) override;
    void setBounds(CGRect bounds) override;
    void layoutSubviews() override;
    void drawRect(UIGraphicsContext& context, CGRect rect) override;

    /// The texts and images in it, joined by ", ", unless a label was set.
    std::optional<std::string> accessibilityLabel() const override;
    /// Itself as one button, if it has a label, instead of its texts and images; then the buttons and wheels that it contains.
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

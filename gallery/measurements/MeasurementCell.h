#pragma once

#include <GXUIPickers/UILabel.h>
#include <GXUIPickers/UITableViewCell.h>

namespace gallery {

/// A row of the entry screen: a name at the left and its value at the right.
///
/// The value is below the name if the text is large or both need more than the width. The row
/// is mirrored in languages that are read from right to left.
class MeasurementCell : public gx::UITableViewCell {
public:
    bool initWithStyle_reuseIdentifier(gx::UITableViewCellStyle style, const std::optional<std::string>& reuseIdentifier) override;

    /// Texts follow the style sheet's scale, up to a size at which each name fits on a phone.
    void setName_value(const std::string& name, const std::string& value);
    const std::string& name() const { return *nameLabel_->text(); }
    const std::string& value() const { return *valueLabel_->text(); }
    /// Highlighted while its picker is open.
    void setOpen(bool open);

    static gx::CGFloat height();

    void layoutSubviews() override;

private:
    gx::Ref<gx::UILabel> nameLabel_;
    gx::Ref<gx::UILabel> valueLabel_;
};

} // namespace gallery

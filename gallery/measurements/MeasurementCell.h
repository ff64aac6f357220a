#pragma once

#include "Paragraph.h"
#include <GXUIPickers/UITableViewCell.h>

namespace gallery {

/// A row of the entry screen: a name at the leading edge and its value at the trailing one.
///
/// Texts follow the text scale. Where both have no room side by side, the value is below the name,
/// and the row is as much higher as their lines need.
class MeasurementCell : public gx::UITableViewCell {
public:
    bool initWithStyle_reuseIdentifier(gx::UITableViewCellStyle style, const std::optional<std::string>& reuseIdentifier) override;

    void setName_value(const std::string& name, const std::string& value);
    const std::string& name() const { return name_->text(); }
    const std::string& value() const { return value_->text(); }
    /// Highlighted while its picker is open.
    void setOpen(bool open);

    /// Of a row with one line.
    static gx::CGFloat height();

    /// As wide as offered, and as high as the texts need, but no lower than `height`.
    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;

private:
    struct Frames;
    Frames framesForWidth(gx::CGFloat width) const;

    gx::Ref<Paragraph> name_;
    gx::Ref<Paragraph> value_;
};

} // namespace gallery

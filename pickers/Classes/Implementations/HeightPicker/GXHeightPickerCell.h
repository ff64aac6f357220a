#pragma once

#include "GXExport.h"
#include "GXHeightPickerView.h"
#include "UITableViewCell.h"

namespace gx {

/// A table cell with a `GXHeightPickerView`. It stands apart from the other picker cells, as its
/// picker does from theirs: it has no background of its own, and its picker is placed by the layout
/// alone.
///
/// The picker is made once, with the cell's bounds, and kept when the cell is used again: at
/// construction in code, in `awakeFromNib` for a cell from an interface.
class GX_EXPORT GXHeightPickerCell : public UITableViewCell {
public:
    /// What an application registers the class under.
    static std::string cellIdentifier();

    bool initWithStyle_reuseIdentifier(UITableViewCellStyle style, const std::optional<std::string>& reuseIdentifier) override;
    bool initWithFrame(CGRect frame) override;
    void awakeFromNib() override;

    /// Held strongly.
    virtual const Ref<GXHeightPickerView>& pickerView() const { return pickerView_; }

    /// Makes the picker and pins it to the content view. Does nothing if there is one.
    virtual void initPicker();

private:
    Ref<GXHeightPickerView> pickerView_;
};

} // namespace gx

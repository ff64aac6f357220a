#pragma once

#include <optional>
#include <string>

#include "CGGeometry.h"
#include "NSAttributedString.h"
#include "NSObject.h"

namespace gx {

class UIPickerView;
class UIView;

/// Says how many columns a wheel has and how many rows each of them.
///
/// The wheel keeps the answers; see `UIPickerView` for when it asks again. All operations may call back.
class UIPickerViewDataSource {
public:
    virtual ~UIPickerViewDataSource() = default;

    /// A negative count means 0; of more than `UIPickerView::highestComponentCount` columns, the rest is left out.
    virtual NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>& pickerView) = 0;
    /// A negative count means 0.
    virtual NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>& pickerView, NSInteger component) = 0;
};

/// Says what a wheel's rows look like, and is told when the user has turned it.
///
/// A view goes before an attributed title, and that before a plain one. All operations may call back.
class UIPickerViewDelegate {
public:
    virtual ~UIPickerViewDelegate() = default;

    /// In points. Default: an equal share of the wheel.
    virtual CGFloat pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component);
    /// In points. Default: 32. A height that is not above 0 means the default.
    virtual CGFloat pickerView_rowHeightForComponent(const Ref<UIPickerView>& pickerView, NSInteger component);
    /// Default: no title.
    virtual std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                           NSInteger component);
    /// Default: nothing.
    virtual Ref<NSAttributedString> pickerView_attributedTitleForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                                  NSInteger component);
    /// `view` is one that this delegate gave before for the same component and that may be used again, or
    /// nothing. Default: nothing.
    virtual Ref<UIView> pickerView_viewForRow_forComponent_reusingView(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                       NSInteger component, const Ref<UIView>& view);
    /// Called once after each turn by the user, when the column has come to rest on a row, also on the one it
    /// left; never for a request by the program. Default: nothing.
    virtual void pickerView_didSelectRow_inComponent(const Ref<UIPickerView>& pickerView, NSInteger row, NSInteger component);

    /// What a screen reader calls the column. Default: nothing, which leaves it to the wheel's own label.
    virtual std::optional<std::string> pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>& pickerView, NSInteger component);
    /// What a screen reader says of the column while it reports the row. Default: nothing, which leaves it to the row's title or, for a row
    /// with a view, to what there is to be read in that.
    virtual std::optional<std::string> pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                                        NSInteger component);
};

} // namespace gx

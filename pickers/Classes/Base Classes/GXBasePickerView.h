#pragma once

#include <type_traits>
#include <vector>

#include "GXBasePickerViewDelegate.h"
#include "GXMultiValuePickerView.h"
#include "GXSpeech.h"
#include "NSNumber.h"

namespace gx {

/// Picks a number from a range by turning a wheel. The base of all pickers, and by itself a wheel of the
/// integers minimum, minimum + step, … below the maximum.
///
/// It owns one `GXMultiValuePickerView`, fills itself with it, and is its data source and delegate. The value
/// model is four boxed numbers; the selected rows are the wheel's own, and no copy of them is kept here.
///
/// Points of variation. The class calls every operation through the object, so a subclass changes it by
/// overriding the answers to the wheel, `selectCurrentValue`, `informDelegateOfValueChange`, `setIsMetric` and
/// `setCurrentValue`. A subclass runs its own set-up after the superclass's initialiser, through the public
/// setters. The wheel asks questions before that has run, so every field needs an initialiser.
///
/// Numbers are read as integers, truncated toward zero, but for the one comparison in `selectCurrentValue`.
/// Nothing is clamped: a value outside the range is kept, and its row handed to the wheel as it is.
class GXBasePickerView : public UIView, public UIPickerViewDataSource, public GXMultiValuePickerViewDelegate {
public:
    /// Rows are as high as the style sheet says at this moment, for the picker's lifetime.
    bool initWithFrame(CGRect frame) override;
    bool initWithCoder(const Ref<NSCoder>& coder) override;
    /// Rows are `rowHeight` points high.
    virtual bool initWithFrame_rowHeight(CGRect frame, float rowHeight);

    /// The wheel; a picker without one (a composite, or after `setPickerView` with nothing) is safe to use.
    const Ref<GXMultiValuePickerView>& pickerView() const { return pickerView_; }
    /// Stores only: neither subviews nor data source and delegate follow.
    void setPickerView(Ref<GXMultiValuePickerView> pickerView) { pickerView_ = std::move(pickerView); }

    /// The value of row 0. Default 0. The setter does nothing for the very box that is stored already; any
    /// other one, also of an equal number, reloads the wheel and selects the current value again.
    const NSNumber& minValue() const { return minValue_; }
    virtual void setMinValue(NSNumber value);
    /// Exclusive: the last row lies below it. Default 100. Set like the minimum.
    const NSNumber& maxValue() const { return maxValue_; }
    virtual void setMaxValue(NSNumber value);
    /// From one row to the next. Default 1. A step below 1 becomes 1; otherwise set like the minimum.
    const NSNumber& stepSize() const { return stepSize_; }
    virtual void setStepSize(NSNumber value);
    /// The value shown. Default 0. The setter always stores, and turns the wheel to it; the delegate is not told.
    const NSNumber& currentValue() const { return currentValue_; }
    virtual void setCurrentValue(NSNumber value);
    /// Metric or imperial units, for the subclasses that know both. Default false.
    bool isMetric() const { return isMetric_; }
    virtual void setIsMetric(bool isMetric) { isMetric_ = isMetric; }

    /// Go before the style sheet's fonts, for the rows and for the labels beside the wheel. Setting one reloads.
    const Ref<GXStyleSheetFont>& customValueFont() const { return customValueFont_; }
    virtual void setCustomValueFont(Ref<GXStyleSheetFont> font);
    const Ref<GXStyleSheetFont>& customLabelFont() const { return customLabelFont_; }
    virtual void setCustomLabelFont(Ref<GXStyleSheetFont> font);

    /// Held weakly.
    WeakRef<GXBasePickerViewDelegate> delegate() const { return delegate_; }
    virtual void setDelegate(WeakRef<GXBasePickerViewDelegate> delegate) { delegate_ = std::move(delegate); }

    /// The value as the wheel shows it, such as "5.3 km": the titles of the selected rows, the
    /// separators between them, and the unit beside the wheel.
    ///
    /// - It needs no window: a picker that is on no screen has the same text.
    /// - A composite puts the texts of its inner pickers together, as in "5.3 km, 0:27 h".
    /// - A picker without a wheel has an empty text.
    virtual std::string currentValueText();
    /// Gives the picker the largest fonts, up to the style sheet's, with which every title fits into
    /// its column and every label stands within the selection indicator; 13 points at least.
    ///
    /// - Call it when the picker has its frame, and again after a new frame, unit or style. It
    ///   replaces both custom fonts.
    /// - Values and labels keep one size, and with that one baseline. All pickers of a composite get
    ///   the same fonts.
    /// - Without a wheel, or in an empty frame, nothing happens.
    virtual void sizeFontsToFit();

    /// Turns the wheel to the current value, without animation; a value below the minimum leaves it where it is.
    virtual void selectCurrentValue();
    /// Tells the delegate the current value, for component 0.
    virtual void informDelegateOfValueChange();

    // Answers to the wheel

    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>& pickerView) override;
    /// The whole steps from minimum to maximum, the maximum itself not offered.
    NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    /// The row's value; beyond 32 bits it wraps around.
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                   NSInteger component) override;
    /// 1.8 times the width of the last title in the label font, at least 50 points.
    CGFloat pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    CGFloat pickerView_rowHeightForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    /// A label with the row's title: right-aligned in the first column, left-aligned in the last of several,
    /// centred between.
    Ref<UIView> pickerView_viewForRow_forComponent_reusingView(const Ref<UIPickerView>& pickerView, NSInteger row, NSInteger component,
                                                               const Ref<UIView>& view) override;
    /// Stores the row's value and informs the delegate.
    void pickerView_didSelectRow_inComponent(const Ref<UIPickerView>& pickerView, NSInteger row, NSInteger component) override;

    // Answers to a screen reader, in the words of the shared localiser at this moment

    /// The measurement and what the column stands for, such as "Distance, kilometres". The picker's own `accessibilityLabel`, if one was
    /// set, stands in for the measurement's name.
    std::optional<std::string> pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    /// The whole measurement, so that one hears it whichever column is turned, such as "5.3 kilometres": as the wheel reports it, but for
    /// the component, which stands on `row`. Here the row's title.
    std::optional<std::string> pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                                NSInteger component) override;

protected:
    /// Gives the defaults and makes the wheel. A composite overrides it to have neither.
    virtual void initGXBasePickerView();
    Ref<GXBasePickerView> self() { return refTo(this); }
    /// The pickers that a composite is made of, from the left; none may be absent. Here there are
    /// none.
    virtual std::vector<Ref<GXBasePickerView>> innerPickers() const { return {}; }
    /// What the picker measures, and what a column of it stands for. Here nothing: any number, and a single column.
    virtual std::optional<GXSpokenName> spokenMeasurement() const { return std::nullopt; }
    virtual std::optional<GXSpokenName> spokenPartOfComponent(NSInteger /*component*/) { return std::nullopt; }
    /// The row that a column reports, but for one component, which stands on a given row.
    struct SpokenRow {
        NSInteger row;
        NSInteger component;
    };
    /// The title of the row that a column stands on; empty for none.
    std::string spokenTitle(NSInteger component, SpokenRow row);
    /// The number on two columns, with what the wheel shows between them.
    GXSpokenNumber spokenNumber(NSInteger wholeComponent, std::string fraction, SpokenRow row);
    /// Takes a value without turning the wheel.
    void storeCurrentValue(NSNumber value) { currentValue_ = std::move(value); }

private:
    void storeBound(NSNumber& bound, NSNumber value);
    NSInteger valueOfRow(NSInteger row) const;
    void addPickersToFit(std::vector<Ref<GXBasePickerView>>& found);

    float rowHeight_ = 0;
    bool isMetric_ = false;
    Ref<GXMultiValuePickerView> pickerView_;
    NSNumber minValue_;
    NSNumber maxValue_;
    NSNumber currentValue_;
    NSNumber stepSize_;
    Ref<GXStyleSheetFont> customValueFont_;
    Ref<GXStyleSheetFont> customLabelFont_;
    WeakRef<GXBasePickerViewDelegate> delegate_;
};

/// How `create` makes a picker, besides `(frame)` and `(coder)`: `(frame, rowHeight)`, with any number as row height.
template <class Number>
requires std::is_arithmetic_v<Number>
bool initialise(GXBasePickerView& picker, CGRect frame, Number rowHeight) {
    return picker.initWithFrame_rowHeight(frame, static_cast<float>(rowHeight));
}

} // namespace gx

#pragma once

#include <concepts>
#include <type_traits>
#include <vector>

#include "GXAccessibilityTexts.h"
#include "GXExport.h"
#include "GXHeldWeakly.h"
#include "GXMultiValuePickerView.h"
#include "NSNumber.h"

namespace gx {

class GXBasePickerView;

/// Is notified of what the user picks.
class GX_EXPORT GXBasePickerViewDelegate {
public:
    virtual ~GXBasePickerViewDelegate() = default;

    /// Called when the user has selected a row, never after a setter. The value is in the picker's
    /// base unit, whatever unit it shows.
    ///
    /// The call may do anything to the picker, drop the last reference to it included.
    virtual void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>& pickerView, const NSNumber& value,
                                                               NSInteger component) = 0;
};

/// Picks a number from a range on a wheel: the base of all pickers but the height picker.
///
/// By itself it shows the integers minimum, minimum + step, … below the maximum. It owns one
/// `GXMultiValuePickerView`, fills itself with it, and is its data source and delegate. For a
/// measurement use the picker of its name; derive from this one for a measurement of your own.
///
/// The value model is four boxed numbers; the selected rows are the wheel's, and no copy is kept
/// here.
/// - Numbers are read as integers, truncated toward zero, but for the one comparison in
///   `selectCurrentValue`.
/// - Nothing is clamped: a value outside the range is kept, and its row passed to the wheel as it
///   is.
///
/// To derive:
/// - Override `didInitialize` to set range, step, value and unit through the public setters, after
///   the superclass's `didInitialize`. Every initialiser calls it once. A set-up in `initWithFrame`
///   alone runs with every form of `create` as well.
/// - Override what the wheel queries, `selectCurrentValue`, `showTexts`, `setIsMetric` and
///   `setCurrentValue` as needed. The base calls every operation, getters too, through the object.
/// - Give every field an initialiser: the wheel queries rows before `didInitialize` has run.
/// - Where you override `setDelegate`, write `using GXBasePickerView::setDelegate;` beside it.
///
/// `docs/guide/own-picker.md` shows a picker and its cell.
class GX_EXPORT GXBasePickerView : public UIView, public UIPickerViewDataSource, public GXMultiValuePickerViewDelegate {
public:
    /// Rows are as high as the style sheet says at this moment, for the picker's lifetime.
    bool initWithFrame(CGRect frame) override;
    bool initWithCoder(const Ref<NSCoder>& coder) override;
    /// Rows are `rowHeight` points high.
    virtual bool initWithFrame_rowHeight(CGRect frame, float rowHeight);
    /// What `create` calls for a subclass that overrides `initWithFrame` alone: they run that one,
    /// on the coder's view or with the given row height.
    bool initByFrameWithCoder(const Ref<NSCoder>& coder);
    /// As above, with rows of `rowHeight` points.
    bool initByFrameWithRowHeight(CGRect frame, float rowHeight);

    /// The wheel. A picker without one (a composite, or after `setPickerView` with nothing) is safe
    /// to use: what concerns the wheel is a no-op then.
    virtual const Ref<GXMultiValuePickerView>& pickerView() const { return pickerView_; }
    /// Stores only: neither subviews nor data source and delegate follow.
    virtual void setPickerView(Ref<GXMultiValuePickerView> pickerView) { pickerView_ = std::move(pickerView); }

    /// The value of row 0. Default 0. The setter does nothing for the very box that is stored
    /// already; any other one, also of an equal number, reloads the wheel and selects the current
    /// value again.
    virtual const NSNumber& minValue() const { return minValue_; }
    virtual void setMinValue(NSNumber value);
    /// Exclusive: the last row lies below it. Default 100. Set like the minimum.
    virtual const NSNumber& maxValue() const { return maxValue_; }
    virtual void setMaxValue(NSNumber value);
    /// From one row to the next. Default 1. A step below 1 becomes 1; otherwise set like the
    /// minimum.
    virtual const NSNumber& stepSize() const { return stepSize_; }
    virtual void setStepSize(NSNumber value);
    /// The value shown. Default 0. The setter always stores, and selects the value's row; the
    /// delegate is not called.
    virtual const NSNumber& currentValue() const { return currentValue_; }
    virtual void setCurrentValue(NSNumber value);
    /// Metric or imperial units, for the subclasses that know both. Default false.
    virtual bool isMetric() const { return isMetric_; }
    virtual void setIsMetric(bool isMetric) { isMetric_ = isMetric; }

    /// Go before the style sheet's fonts: this for the rows. Nothing, the default, leaves the style
    /// sheet's. Setting one reloads.
    virtual const Ref<GXStyleSheetFont>& customValueFont() const { return customValueFont_; }
    virtual void setCustomValueFont(Ref<GXStyleSheetFont> font);
    /// The same for the labels beside the wheel.
    virtual const Ref<GXStyleSheetFont>& customLabelFont() const { return customLabelFont_; }
    virtual void setCustomLabelFont(Ref<GXStyleSheetFont> font);

    /// Held weakly: keep the delegate yourself.
    virtual WeakRef<GXBasePickerViewDelegate> delegate() const { return delegate_; }
    virtual void setDelegate(WeakRef<GXBasePickerViewDelegate> delegate) { delegate_ = std::move(delegate); }
    /// A delegate that nothing else holds would be gone at once: debug builds stop here.
    template <std::derived_from<GXBasePickerViewDelegate> Delegate>
    void setDelegate(Ref<Delegate>&& delegate) {
        setDelegate(heldWeakly<GXBasePickerViewDelegate>(delegate));
    }

    /// The value as the wheel shows it, such as "5.3 km": the titles of the selected rows, the
    /// separators between them, and the unit beside the wheel.
    ///
    /// - It needs no window: a picker that is on no screen has the same text.
    /// - A composite puts the texts of its inner pickers together, as in "5.3 km, 0:27 h".
    /// - A picker without a wheel has an empty text.
    virtual std::string currentValueText();
    /// Gives the picker the largest fonts, up to the style sheet's, with which every title fits
    /// into its column and every label stands within the selection indicator; 13 points at least.
    ///
    /// - Call it when the picker has its frame, and again after a new frame, unit or style. It
    ///   replaces both custom fonts.
    /// - Values and labels keep one size, and with that one baseline. All pickers of a composite
    ///   get the same fonts.
    /// - Without a wheel, or in an empty frame, nothing happens.
    virtual void sizeFontsToFit();
    /// The least height at which the picker shows its rows well, in a view of this width: three
    /// rows of its wheel, or of both wheels of a composite that needs one above the other.
    virtual CGFloat smallestHeightForWidth(CGFloat width);

    /// Selects the row of the current value, without animation. A value below the minimum leaves
    /// the selection alone.
    virtual void selectCurrentValue();
    /// Calls the delegate with the current value, for component 0.
    virtual void informDelegateOfValueChange();

    /// Reads again what the services give: unit texts and separators, fonts and colours, rows.
    ///
    /// Call it after the language, the locale or the style sheet has changed. Values, selected
    /// rows, the height of rows and a movement of the wheel stay. Texts that an application has put
    /// on the wheel itself are replaced by the picker's.
    virtual void reloadData();

    // What the wheel queries

    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>& pickerView) override;
    /// The whole steps from minimum to maximum, the maximum itself not offered.
    NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    /// The row's value; beyond 32 bits it wraps around.
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                   NSInteger component) override;
    /// 1.8 times the width of the last title in the label font, at least 50 points.
    CGFloat pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    CGFloat pickerView_rowHeightForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    /// A label with the row's title: right-aligned in the first component, left-aligned in the last
    /// of several, centred between. A label that is offered is used again, any other view is not.
    Ref<UIView> pickerView_viewForRow_forComponent_reusingView(const Ref<UIPickerView>& pickerView, NSInteger row, NSInteger component,
                                                               const Ref<UIView>& view) override;
    /// Stores the row's value and informs the delegate.
    void pickerView_didSelectRow_inComponent(const Ref<UIPickerView>& pickerView, NSInteger row, NSInteger component) override;

    // Accessibility texts, in the words of the shared localiser at this moment

    /// The measurement and what the component stands for, such as "Distance, kilometres". The
    /// picker's own `accessibilityLabel`, if one was set, stands in for the measurement's name.
    std::optional<std::string> pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    /// The whole measurement, whichever component is queried, such as "5.3 kilometres": of the
    /// rows that the wheel reports, with `row` in `component`. Here the row's title.
    std::optional<std::string> pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                                NSInteger component) override;

protected:
    /// Fewer rows in sight look like no wheel. Chosen by eye.
    static constexpr double fewestRows = 3;

    /// Gives the defaults and makes the wheel. A composite overrides it to have neither.
    virtual void initGXBasePickerView();
    /// Called once at the end of every initialiser: where a subclass sets itself up, after its
    /// superclass. Here it does nothing.
    virtual void didInitialize() {}
    /// The argument of `initWithFrame_rowHeight`; nothing after the other initialisers.
    std::optional<float> givenRowHeight() const { return givenRowHeight_; }
    /// How high this picker's own rows are to be: the given height, else the style sheet's.
    virtual float initialRowHeight() const;
    /// Puts the texts that services give on the wheel: unit and separators. Here there are none.
    virtual void showTexts() {}

    /// This picker, to keep it alive across a call. Empty while it is destroyed.
    Ref<GXBasePickerView> self() { return refTo(this); }
    /// The pickers that a composite is made of, from the left; none may be absent. Here there are
    /// none.
    virtual std::vector<Ref<GXBasePickerView>> innerPickers() const { return {}; }

    // What several pickers of more than one component do

    /// The title of the row that a component of this wheel has selected.
    std::optional<std::string> selectedTitle(const Ref<UIPickerView>& pickerView, NSInteger component);
    /// The width of a component of digits: the base class's, at most a third of the wheel that
    /// queries it.
    CGFloat widthOfDigits(const Ref<UIPickerView>& pickerView, NSInteger component);
    /// Stores a component's own step and reloads the wheel, if it is another one. Selects nothing.
    void storeStep(std::int32_t& stored, std::int32_t step) const;
    /// Sets the value, clamped to the maximum first and then to the minimum, and informs the
    /// delegate.
    void setClampedValueAndInformDelegate(double value);
    /// Stores a value without selecting its row.
    void storeCurrentValue(NSNumber value) { currentValue_ = std::move(value); }

    // Of what accessibility texts are made

    /// What the picker measures. Here nothing: any number.
    virtual std::optional<GXAccessibilityName> accessibilityMeasurement() const { return std::nullopt; }
    /// What a component stands for. Here nothing: a single component.
    virtual std::optional<GXAccessibilityName> accessibilityPartOfComponent(NSInteger /*component*/) { return std::nullopt; }
    /// A row that stands in for the one that its component reports.
    struct RowInComponent {
        NSInteger row;       ///< may be out of range
        NSInteger component; ///< whose row it replaces
    };
    /// The title of the row that a screen reader says of a component; empty for none.
    std::string reportedTitle(NSInteger component, RowInComponent instead);
    /// The number on two components, with what the wheel shows between them.
    GXAccessibilityNumber reportedNumber(NSInteger wholeComponent, std::string fraction, RowInComponent instead);

private:
    void setUp();
    void storeBound(NSNumber& bound, NSNumber value);
    NSInteger valueOfRow(NSInteger row) const;
    void addPickersToFit(std::vector<Ref<GXBasePickerView>>& found);

    float rowHeight_ = 0;
    bool isRestored_ = false; // Its view comes from a coder.
    std::optional<float> givenRowHeight_;
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

namespace detail {

template <class Operation>
struct DeclaringClass;
template <class Class, class Result, class... Arguments>
struct DeclaringClass<Result (Class::*)(Arguments...)> {
    using Type = Class;
};
/// Whether the first operation is declared by a class that derives from that of the second.
template <class One, class Other, class OneClass = typename DeclaringClass<One>::Type,
          class OtherClass = typename DeclaringClass<Other>::Type>
inline constexpr bool isDeclaredBelow = std::is_base_of_v<OtherClass, OneClass> && !std::is_same_v<OtherClass, OneClass>;

} // namespace detail

// Pickers whose class overrides `initWithFrame` alone: the set-up that it has there runs for the
// other forms of `create` too.

template <class Picker>
concept GXMadeByFrameWithCoder = std::derived_from<Picker, GXBasePickerView> && requires {
    requires detail::isDeclaredBelow<decltype(&Picker::initWithFrame), decltype(&Picker::initWithCoder)>;
};
template <class Picker>
concept GXMadeByFrameWithRowHeight = std::derived_from<Picker, GXBasePickerView> && requires {
    requires detail::isDeclaredBelow<decltype(&Picker::initWithFrame), decltype(&Picker::initWithFrame_rowHeight)>;
};

/// How `create` makes a picker, besides `(frame)`: `(coder)`, and `(frame, rowHeight)` with any
/// number as row height.
template <GXMadeByFrameWithCoder Picker>
bool initialise(Picker& picker, const Ref<NSCoder>& coder) {
    return static_cast<GXBasePickerView&>(picker).initByFrameWithCoder(coder);
}
/// With rows of `rowHeight` points, narrowed to a float.
template <std::derived_from<GXBasePickerView> Picker, class Number>
requires std::is_arithmetic_v<Number>
bool initialise(Picker& picker, CGRect frame, Number rowHeight) {
    GXBasePickerView& base = picker;
    const auto height = static_cast<float>(rowHeight);
    if constexpr (GXMadeByFrameWithRowHeight<Picker>) return base.initByFrameWithRowHeight(frame, height);
    return base.initWithFrame_rowHeight(frame, height);
}

} // namespace gx

#pragma once

#include <concepts>

#include "GXExport.h"
#include "GXHeldWeakly.h"
#include "UIPickerView.h"

namespace gx {

class GXHeightPickerView;

/// Is notified of the height that the user picks.
class GX_EXPORT GXHeightPickerViewDelegate {
public:
    virtual ~GXHeightPickerViewDelegate() = default;

    /// Called once after each selection by the user, also of a unit, never after a setter. `height`
    /// is in centimetres whatever the unit; `metric` is false for feet and inches.
    ///
    /// The call may do anything to the picker, drop the last reference to it included.
    virtual void heightPickerView_didSelectHeightInCm_metric(const Ref<GXHeightPickerView>& pickerView, CGFloat height, bool metric) = 0;
};

/// Picks a body height: 120 to 220 cm, or 4 feet to 6 feet 11 inches. The last component chooses
/// between the two.
///
/// Unlike the other pickers it is itself a wheel, and its own data source and delegate: leave those
/// as they are and set `heightDelegate`. It has no bounds and no step.
///
/// `heightInCm` is the truth and the rows follow from it. A selection by the user replaces it by
/// the height of the rows that the wheel shows then. Switching units is such a selection: 180 cm
/// become 5 feet 11 inches and with that 180.34 cm.
///
/// A fresh picker selects nothing until a height or a unit is set; then a height of 0 shows as 180
/// cm or 5 feet 10 inches, and stays 0 until the user selects a row.
///
/// The row of the unit is selected in a later pass of the main run loop, once the wheel has taken
/// the new components. Keys and screen readers that use the unit's component stay with it.
class GX_EXPORT GXHeightPickerView : public UIPickerView, public UIPickerViewDataSource, public UIPickerViewDelegate {
public:
    /// Sets the picker up as its own data source and delegate.
    bool initWithFrame(CGRect frame) override;
    /// Sets up a picker that was loaded from an interface; one made with a coder is a bare wheel
    /// until then.
    void awakeFromNib() override;
    ~GXHeightPickerView() override;

    /// In centimetres. Default 0. Takes any number: what lies outside the wheel is kept, see
    /// `calculatePickerValues`. Also an equal height selects its rows again.
    virtual CGFloat heightInCm() const { return heightInCm_; }
    virtual void setHeightInCm(CGFloat height);
    /// Centimetres, or feet and inches, which is the default. The stored height stays; also an
    /// equal flag selects its rows again.
    virtual bool isMetric() const { return isMetric_; }
    virtual void setIsMetric(bool isMetric);
    /// Held weakly.
    virtual WeakRef<GXHeightPickerViewDelegate> heightDelegate() const { return heightDelegate_; }
    virtual void setHeightDelegate(WeakRef<GXHeightPickerViewDelegate> delegate) { heightDelegate_ = std::move(delegate); }
    /// A delegate that nothing else holds would be gone at once: debug builds stop here.
    template <std::derived_from<GXHeightPickerViewDelegate> Delegate>
    void setHeightDelegate(Ref<Delegate>&& delegate) {
        setHeightDelegate(heldWeakly<GXHeightPickerViewDelegate>(delegate));
    }

    /// Reads the rows again, in the localiser's language of this moment. Height, selected rows and
    /// a movement stay.
    virtual void reloadData();

    /// The height as the wheel shows it: "176 cm", or "5' 9\"". It needs no window.
    ///
    /// There are no fonts to fit by hand: see `titleFont`.
    virtual std::string currentValueText();

    /// Makes the picker its own data source and delegate, and its rows black. Selects nothing.
    virtual void setupSelf();
    /// Selects the rows of the height, reloads the wheel and leaves the unit's row to the next pass
    /// of the run loop.
    virtual void reload();
    /// Selects the row of the unit that is shown now.
    virtual void reload2ndStage();
    /// Selects the rows of the height, as follows:
    /// - metric: whole centimetres, a fraction cut off; a height that is not above 0 shows 180;
    /// - imperial: the whole feet below, and the nearest inch. A height below 120 cm shows 5 feet
    ///   10 inches, one from there to 4 feet shows 4 feet, one of 7 feet or more 6 feet 11 inches.
    ///
    /// What is no number shows like 0. Rows that do not exist are requested of the wheel as they
    /// are: centimetres beyond either end, and a twelfth inch, which shows as the eleventh and not
    /// as the next foot.
    virtual void calculatePickerValues();
    /// Stores the height of the rows that the wheel shows, and informs the delegate. Feet and
    /// inches are added in single precision; so 5 feet become 152.39999 cm, a hair less, and the
    /// wheel then shows 4 feet 11 inches. Every other height stays on its rows.
    virtual void recalculateHeight();
    /// A row's title, in the tint colour of this moment. Nothing for no text.
    virtual Ref<NSAttributedString> styleString(std::optional<std::string> text) const;

    /// Shows the rows in the new tint.
    void tintColorDidChange() override;

    // What the wheel queries: centimetres and unit, or feet, inches and unit

    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>& pickerView) override;
    NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    CGFloat pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    CGFloat pickerView_rowHeightForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    Ref<NSAttributedString> pickerView_attributedTitleForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                          NSInteger component) override;
    /// Switches the unit, if its column was turned, and then takes the height of the rows.
    void pickerView_didSelectRow_inComponent(const Ref<UIPickerView>& pickerView, NSInteger row, NSInteger component) override;

    /// "Height, centimetres", in the words of the shared localiser; the picker's own
    /// `accessibilityLabel`, if one was set, instead of "Height".
    std::optional<std::string> pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    /// The whole height, such as "5 feet 9 inches": as the wheel reports it, but for the component,
    /// for which `row` is selected. On the column of the unit, it is the height in the unit shown.
    std::optional<std::string> pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                                NSInteger component) override;

protected:
    /// The wheel's own font, scaled as the style sheet's, up to the size at which every title fits
    /// into its row and its column: those have fixed sizes.
    Ref<UIFont> titleFont() override;

private:
    /// What a component shows. The unit comes after the values, and so does every component that
    /// does not exist.
    enum class Shown { Centimetres, Feet, Inches, Unit };
    Shown shownIn(NSInteger component) const;
    std::optional<std::string> titleOfRow(NSInteger row, Shown shown) const;
    Ref<UIFont> scaledTitleFont(double scale);

    CGFloat heightInCm_ = 0;
    bool isMetric_ = false;
    WeakRef<GXHeightPickerViewDelegate> heightDelegate_;
    // Made when first needed after a reload.
    Ref<UIFont> titleFont_;
    double titleScale_ = 0;
};

} // namespace gx

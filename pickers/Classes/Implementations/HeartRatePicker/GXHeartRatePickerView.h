#pragma once

#include "GXBasePickerView.h"
#include "GXExport.h"
#include "GXHeartRatePickerViewDelegate.h"

namespace gx {

/// Picks an average and a maximum heart rate at once, in beats per minute, on two components side
/// by side: the average on the left, the maximum on the right. For a single rate use
/// `GXBpmPickerView`.
///
/// 26 to 228 and 26 to 229 unless the range is changed, both with a first row "-" for "no value"; a
/// fresh one shows 120 and 160.
///
/// After a selection by the user the maximum lies at least `minimumGapBetweenAvgAndMax` above the
/// average: the other rate makes room, and the one that was selected gives way only at the ends of
/// the range. What the application sets is not clamped to the gap.
///
/// "-" counts as 0, so an average without a value leaves room for any maximum; but if the maximum
/// shows "-" as well, selecting an average there makes the gap itself the maximum's value.
///
/// The rates are kept here, as integers; `currentValue` is not theirs and stays 0. Since a new
/// minimum, maximum or step selects `currentValue` again, it puts the average on its first row: set
/// the rates afterwards. Keep the step at 1, for titles go up by 1 whatever the step.
class GX_EXPORT GXHeartRatePickerView : public GXBasePickerView {
public:
    /// In beats per minute; 0 for no value. The setters select the rate's row, animated, and do
    /// not call the delegate.
    /// - An empty number gives 120 for the average and 160 for the maximum.
    /// - With the row "-", the minimum itself becomes 0, for that row stands in its place.
    /// - A rate below the minimum is kept and shown on the first row, one above the range is kept
    ///   and its row passed to the wheel as it is.
    virtual const NSNumber& currentAvgHeartRate() const { return currentAvgHeartRate_; }
    virtual void setCurrentAvgHeartRate(NSNumber rate);
    /// The maximum, set as the average is.
    virtual const NSNumber& currentMaxHeartRate() const { return currentMaxHeartRate_; }
    virtual void setCurrentMaxHeartRate(NSNumber rate);

    /// Whether the first row of both wheels is "-" and picks 0, instead of the minimum. Default
    /// true. Titles follow with the next reload.
    virtual bool shouldShowNullValue() const { return shouldShowNullValue_; }
    virtual void setShouldShowNullValue(bool shouldShow) { shouldShowNullValue_ = shouldShow; }
    /// In beats per minute. Default 1. Applied from the next selection on; an empty number means 0.
    virtual const NSNumber& minimumGapBetweenAvgAndMax() const { return minimumGapBetweenAvgAndMax_; }
    virtual void setMinimumGapBetweenAvgAndMax(NSNumber gap) { minimumGapBetweenAvgAndMax_ = std::move(gap); }

    /// Turns the average wheel to the row `currentValue` / `stepSize`, which is the first unless an
    /// application sets a current value.
    void selectCurrentValue() override;
    /// Both rates after the labels beside their columns, "AVG 142, MAX 171"; a dash for no value.
    std::string currentValueText() override;

    // What the wheel queries: average, spacer, maximum

    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>& pickerView) override;
    /// The average has one row less, so that above the highest average there is always a maximum.
    /// The spacer has as many rows as the maximum, all without a title, and so cannot be turned.
    NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                   NSInteger component) override;
    CGFloat pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    /// Stores the rate, makes room for the gap and calls the delegate with both rates: the maximum
    /// as component 1, then the average as component 0. A row of the spacer does nothing.
    void pickerView_didSelectRow_inComponent(const Ref<UIPickerView>& pickerView, NSInteger row, NSInteger component) override;
    /// Each column is a measurement of its own, unless the application gives both one name.
    std::optional<std::string> pickerView_accessibilityLabelForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    /// The rate of the column alone.
    std::optional<std::string> pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                                NSInteger component) override;

protected:
    void didInitialize() override {
        GXBasePickerView::didInitialize();
        initGXHeartRatePickerView();
    }
    /// Sets range, gap, rates and labels to those above.
    virtual void initGXHeartRatePickerView();
    void showTexts() override;

private:
    NSNumber storedRate(NSNumber rate, NSInteger component);
    NSInteger rateOfRow(NSInteger row) const;
    std::string textOfRate(const std::optional<std::string>& label, NSInteger component);
    void makeRoomAboveAverage();
    void makeRoomBelowMaximum();
    void informDelegateOfRate(const NSNumber& rate, NSInteger reportedComponent);

    NSNumber currentAvgHeartRate_;
    NSNumber currentMaxHeartRate_;
    NSNumber minimumGapBetweenAvgAndMax_;
    bool shouldShowNullValue_ = false;
};

} // namespace gx

#pragma once

#include <array>
#include <bitset>

#include "PropertyPicker.h"
#include "QuickEnums.h"
#include "QuickItem.h"

namespace gx::quick {

/// A picker of any kind with the properties of all: the content of this module's controls, each of
/// which offers those that its kind has.
///
/// - What is set before the item is complete is applied then, in the order in which a picker takes
///   it, so the order in a document does not matter.
/// - A number that is none, and one that the property does not take, is ignored with a warning.
/// - An upper bound below the lower one counts as the lower one; of a pace, one above it. It is
///   warned of before the next frame, once all bindings of a change have run.
/// - After the user has selected something the values change, and then the control's `moved` is
///   emitted. Nothing else emits it.
class QuickPickerItem : public gx::quick::QuickItem { // Its whole name: Qt's tools find no other.
    Q_OBJECT
    QML_NAMED_ELEMENT(PickerItem)
    /// Which picker it is, set once, before the item is complete. The types of the module do so.
    Q_PROPERTY(Kind kind READ kind WRITE setKind NOTIFY kindChanged REQUIRED FINAL)
    /// The units that are shown. Values stay as they are. A number that is no `UnitSystem` is
    /// ignored with a warning.
    Q_PROPERTY(gx::quick::UnitSystem::Value unitSystem READ unitSystem WRITE setUnitSystem NOTIFY unitSystemChanged FINAL)
    /// The unit that is shown. The value stays in kilograms. A number that is no `WeightUnit` is
    /// ignored with a warning.
    Q_PROPERTY(gx::quick::WeightUnit::Value weightUnit READ weightUnit WRITE setWeightUnit NOTIFY weightUnitChanged FINAL)
    /// Whether the unit has a column, in which the user chooses it.
    Q_PROPERTY(bool weightUnitSelectable READ weightUnitSelectable WRITE setWeightUnitSelectable NOTIFY weightUnitSelectableChanged FINAL)
    /// Decimal places of a distance, 1 or 2. Another number is ignored.
    Q_PROPERTY(
        int numberOfFractionUnits READ numberOfFractionUnits WRITE setNumberOfFractionUnits NOTIFY numberOfFractionUnitsChanged FINAL)
    /// The columns of a duration. A number that is no `DurationType` is ignored with a warning.
    Q_PROPERTY(gx::quick::DurationType::Value type READ type WRITE setType NOTIFY typeChanged FINAL)
    /// From one row of hours to the next. Only 1 and above; else ignored with a warning.
    Q_PROPERTY(int hoursStepSize READ hoursStepSize WRITE setHoursStepSize NOTIFY hoursStepSizeChanged FINAL)
    /// From one row of minutes to the next. Only 1 and above; else ignored with a warning.
    Q_PROPERTY(int minutesStepSize READ minutesStepSize WRITE setMinutesStepSize NOTIFY minutesStepSizeChanged FINAL)
    /// From one row of seconds to the next. Only 1 and above; else ignored with a warning.
    Q_PROPERTY(int secondsStepSize READ secondsStepSize WRITE setSecondsStepSize NOTIFY secondsStepSizeChanged FINAL)
    /// Whether the first row is "-", which stands for no value and is 0.
    Q_PROPERTY(bool shouldShowNullValue READ shouldShowNullValue WRITE setShouldShowNullValue NOTIFY shouldShowNullValueChanged FINAL)
    /// How far apart the two rates are at least, in beats per minute, once the user has selected
    /// one.
    Q_PROPERTY(int minimumGapBetweenAvgAndMax READ minimumGapBetweenAvgAndMax WRITE setMinimumGapBetweenAvgAndMax NOTIFY
                   minimumGapBetweenAvgAndMaxChanged FINAL)
    /// Where the wheel begins. With a `to` beyond it, only `from` can be chosen, and a warning says
    /// so.
    Q_PROPERTY(double from READ from WRITE setFrom NOTIFY fromChanged FINAL)
    /// Where the wheel ends. NaN and infinite numbers are ignored with a warning.
    Q_PROPERTY(double to READ to WRITE setTo NOTIFY toChanged FINAL)
    /// From one row to the next. What is not above 0 is ignored with a warning.
    Q_PROPERTY(double stepSize READ stepSize WRITE setStepSize NOTIFY stepSizeChanged FINAL)
    /// Where the wheels of the distance begin, in metres.
    Q_PROPERTY(double minDistance READ minDistance WRITE setMinDistance NOTIFY minDistanceChanged FINAL)
    /// Where they end, in metres. Below `minDistance`, only that can be chosen, and a warning says
    /// so.
    Q_PROPERTY(double maxDistance READ maxDistance WRITE setMaxDistance NOTIFY maxDistanceChanged FINAL)
    /// Where the wheels of the duration begin, in milliseconds.
    Q_PROPERTY(double minDuration READ minDuration WRITE setMinDuration NOTIFY minDurationChanged FINAL)
    /// Where they end, in milliseconds. Below `minDuration`, only that can be chosen, and a warning
    /// says so.
    Q_PROPERTY(double maxDuration READ maxDuration WRITE setMaxDuration NOTIFY maxDurationChanged FINAL)
    /// The average in beats per minute; 0 is no value. NaN and infinite numbers are ignored with a
    /// warning.
    Q_PROPERTY(double currentAvgHeartRate READ currentAvgHeartRate WRITE setCurrentAvgHeartRate NOTIFY currentAvgHeartRateChanged FINAL)
    /// The maximum in beats per minute; 0 is no value. NaN and infinite numbers are ignored with a
    /// warning.
    Q_PROPERTY(double currentMaxHeartRate READ currentMaxHeartRate WRITE setCurrentMaxHeartRate NOTIFY currentMaxHeartRateChanged FINAL)
    /// The distance in metres. NaN and infinite numbers are ignored with a warning.
    Q_PROPERTY(double distance READ distance WRITE setDistance NOTIFY distanceChanged FINAL)
    /// The duration in milliseconds. NaN and infinite numbers are ignored with a warning.
    Q_PROPERTY(double duration READ duration WRITE setDuration NOTIFY durationChanged FINAL)
    /// The index of the chosen picture. NaN and infinite numbers are ignored with a warning.
    Q_PROPERTY(double weather READ weather WRITE setWeather NOTIFY weatherChanged FINAL)
    /// The temperature in degrees Celsius. NaN and infinite numbers are ignored with a warning.
    Q_PROPERTY(double temperature READ temperature WRITE setTemperature NOTIFY temperatureChanged FINAL)
    /// What the user picks, in one unit whatever is shown. NaN and infinite numbers are ignored
    /// with a warning.
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged FINAL)
    /// Files of the pictures, as addresses relative to the document that makes the picker. One that
    /// cannot be read gives a warning, and a row without a picture.
    Q_PROPERTY(QStringList iconImages READ iconImages WRITE setIconImages NOTIFY iconImagesChanged FINAL)
    /// What a screen reader calls the pictures, in their order.
    Q_PROPERTY(QStringList iconLabels READ iconLabels WRITE setIconLabels NOTIFY iconLabelsChanged FINAL)
    /// The value as it is shown, with its unit.
    Q_PROPERTY(QString text READ text NOTIFY textChanged FINAL)

public:
    /// In the order of `elements::PickerKind`.
    enum Kind {
        Integer,
        Bpm,
        Calories,
        Distance,
        DistanceAndDuration,
        Duration,
        HeartRate,
        Height,
        Icon,
        Pace,
        Speed,
        Temperature,
        WeatherAndTemperature,
        Weight
    };
    Q_ENUM(Kind)
    using Property = elements::PickerProperty;

    ~QuickPickerItem() override;

    Kind kind() const { return kind_; }
    /// Once, before the item is complete.
    void setKind(Kind kind) {
        if (kind == kind_) return;
        kind_ = kind;
        emit kindChanged();
    }

    double number(Property property) const { return values_[indexOf(property)]; }
    void setNumber(Property property, double value);

    const QStringList& iconImages() const { return iconImages_; }
    void setIconImages(const QStringList& images);
    const QStringList& iconLabels() const { return iconLabels_; }
    void setIconLabels(const QStringList& labels);
    const QString& text() const { return text_; }

    UnitSystem::Value unitSystem() const { return number(Property::Metric) != 0 ? UnitSystem::Metric : UnitSystem::Imperial; }
    void setUnitSystem(UnitSystem::Value value) {
        setNumber(Property::Metric, value == UnitSystem::Metric ? 1 : value == UnitSystem::Imperial ? 0 : value);
    }
    WeightUnit::Value weightUnit() const { return static_cast<WeightUnit::Value>(number(Property::WeightUnit)); }
    void setWeightUnit(WeightUnit::Value value) { setNumber(Property::WeightUnit, value); }
    bool weightUnitSelectable() const { return number(Property::UnitSelectable) != 0; }
    void setWeightUnitSelectable(bool value) { setNumber(Property::UnitSelectable, value ? 1 : 0); }
    int numberOfFractionUnits() const { return static_cast<int>(number(Property::FractionDigits)); }
    void setNumberOfFractionUnits(int value) { setNumber(Property::FractionDigits, value); }
    DurationType::Value type() const { return static_cast<DurationType::Value>(number(Property::Layout)); }
    void setType(DurationType::Value value) { setNumber(Property::Layout, value); }
    int hoursStepSize() const { return static_cast<int>(number(Property::HoursStep)); }
    void setHoursStepSize(int value) { setNumber(Property::HoursStep, value); }
    int minutesStepSize() const { return static_cast<int>(number(Property::MinutesStep)); }
    void setMinutesStepSize(int value) { setNumber(Property::MinutesStep, value); }
    int secondsStepSize() const { return static_cast<int>(number(Property::SecondsStep)); }
    void setSecondsStepSize(int value) { setNumber(Property::SecondsStep, value); }
    bool shouldShowNullValue() const { return number(Property::NullRow) != 0; }
    void setShouldShowNullValue(bool value) { setNumber(Property::NullRow, value ? 1 : 0); }
    int minimumGapBetweenAvgAndMax() const { return static_cast<int>(number(Property::Gap)); }
    void setMinimumGapBetweenAvgAndMax(int value) { setNumber(Property::Gap, value); }
    double from() const { return number(Property::Min); }
    void setFrom(double value) { setNumber(Property::Min, value); }
    double to() const { return number(Property::Max); }
    void setTo(double value) { setNumber(Property::Max, value); }
    double stepSize() const { return number(Property::Step); }
    void setStepSize(double value) { setNumber(Property::Step, value); }
    double minDistance() const { return number(Property::MinDistance); }
    void setMinDistance(double value) { setNumber(Property::MinDistance, value); }
    double maxDistance() const { return number(Property::MaxDistance); }
    void setMaxDistance(double value) { setNumber(Property::MaxDistance, value); }
    double minDuration() const { return number(Property::MinDuration); }
    void setMinDuration(double value) { setNumber(Property::MinDuration, value); }
    double maxDuration() const { return number(Property::MaxDuration); }
    void setMaxDuration(double value) { setNumber(Property::MaxDuration, value); }
    double currentAvgHeartRate() const { return number(Property::Average); }
    void setCurrentAvgHeartRate(double value) { setNumber(Property::Average, value); }
    double currentMaxHeartRate() const { return number(Property::Maximum); }
    void setCurrentMaxHeartRate(double value) { setNumber(Property::Maximum, value); }
    double distance() const { return number(Property::Distance); }
    void setDistance(double value) { setNumber(Property::Distance, value); }
    double duration() const { return number(Property::Duration); }
    void setDuration(double value) { setNumber(Property::Duration, value); }
    double weather() const { return number(Property::Weather); }
    void setWeather(double value) { setNumber(Property::Weather, value); }
    double temperature() const { return number(Property::Temperature); }
    void setTemperature(double value) { setNumber(Property::Temperature, value); }
    double value() const { return number(Property::Value); }
    void setValue(double value) { setNumber(Property::Value, value); }

signals:
    void kindChanged();
    void unitSystemChanged();
    void weightUnitChanged();
    void weightUnitSelectableChanged();
    void numberOfFractionUnitsChanged();
    void typeChanged();
    void hoursStepSizeChanged();
    void minutesStepSizeChanged();
    void secondsStepSizeChanged();
    void shouldShowNullValueChanged();
    void minimumGapBetweenAvgAndMaxChanged();
    void fromChanged();
    void toChanged();
    void stepSizeChanged();
    void minDistanceChanged();
    void maxDistanceChanged();
    void minDurationChanged();
    void maxDurationChanged();
    void currentAvgHeartRateChanged();
    void currentMaxHeartRateChanged();
    void distanceChanged();
    void durationChanged();
    void weatherChanged();
    void temperatureChanged();
    void valueChanged();
    void iconImagesChanged();
    void iconLabelsChanged();
    void textChanged();

protected:
    void surroundingsDidChange(bool isRowHeightChanged) override;
    void componentComplete() override;
    void updatePolish() override;
    /// Two pickers side by side need more, to show hours and minutes in the usual font; measured.
    double usualWidth() const override { return kind_ == DistanceAndDuration ? 560 : QuickItem::usualWidth(); }

private:
    static constexpr std::size_t propertyCount = static_cast<std::size_t>(Property::Count);
    /// What a property is called in QML, and the signal of its changes.
    struct Description {
        const char* name;
        void (QuickPickerItem::*changed)();
    };
    static const std::array<Description, propertyCount> descriptions;
    static constexpr std::size_t indexOf(Property property) { return static_cast<std::size_t>(property); }

    bool isTaken(Property property, double value) const;
    bool areCrossed(double lower, double upper) const;
    double given(double value) const;
    void apply(Property property);
    void applyIcons();
    void makePicker();
    void refresh();
    void userDidSelect();

    Kind kind_ = Integer;
    Ref<elements::PropertyPicker> picker_;
    /// As the application reads them: those of the picker, but for crossed bounds.
    std::array<double, propertyCount> values_{};
    std::bitset<propertyCount> isSet_;
    QStringList iconImages_;
    QStringList iconLabels_;
    QString text_;
    bool isApplying_ = false;
};

} // namespace gx::quick

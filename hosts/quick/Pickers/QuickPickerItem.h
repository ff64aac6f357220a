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
/// - An upper bound below the lower one counts as the lower one. It is warned of before the next
///   frame, once all bindings of a change have run.
/// - After the user has selected something the values change, and then the control's `moved` is
///   emitted. Nothing else emits it.
class QuickPickerItem : public gx::quick::QuickItem { // Its whole name: Qt's tools find no other.
    Q_OBJECT
    QML_NAMED_ELEMENT(PickerItem)
    Q_PROPERTY(Kind kind READ kind WRITE setKind NOTIFY kindChanged REQUIRED FINAL)
    Q_PROPERTY(gx::quick::UnitSystem::Value unitSystem READ unitSystem WRITE setUnitSystem NOTIFY unitSystemChanged FINAL)
    Q_PROPERTY(gx::quick::WeightUnit::Value weightUnit READ weightUnit WRITE setWeightUnit NOTIFY weightUnitChanged FINAL)
    Q_PROPERTY(bool weightUnitSelectable READ weightUnitSelectable WRITE setWeightUnitSelectable NOTIFY weightUnitSelectableChanged FINAL)
    Q_PROPERTY(
        int numberOfFractionUnits READ numberOfFractionUnits WRITE setNumberOfFractionUnits NOTIFY numberOfFractionUnitsChanged FINAL)
    Q_PROPERTY(gx::quick::DurationType::Value type READ type WRITE setType NOTIFY typeChanged FINAL)
    Q_PROPERTY(int hoursStepSize READ hoursStepSize WRITE setHoursStepSize NOTIFY hoursStepSizeChanged FINAL)
    Q_PROPERTY(int minutesStepSize READ minutesStepSize WRITE setMinutesStepSize NOTIFY minutesStepSizeChanged FINAL)
    Q_PROPERTY(int secondsStepSize READ secondsStepSize WRITE setSecondsStepSize NOTIFY secondsStepSizeChanged FINAL)
    Q_PROPERTY(bool shouldShowNullValue READ shouldShowNullValue WRITE setShouldShowNullValue NOTIFY shouldShowNullValueChanged FINAL)
    Q_PROPERTY(int minimumGapBetweenAvgAndMax READ minimumGapBetweenAvgAndMax WRITE setMinimumGapBetweenAvgAndMax NOTIFY
                   minimumGapBetweenAvgAndMaxChanged FINAL)
    Q_PROPERTY(double from READ from WRITE setFrom NOTIFY fromChanged FINAL)
    Q_PROPERTY(double to READ to WRITE setTo NOTIFY toChanged FINAL)
    Q_PROPERTY(double stepSize READ stepSize WRITE setStepSize NOTIFY stepSizeChanged FINAL)
    Q_PROPERTY(double minDistance READ minDistance WRITE setMinDistance NOTIFY minDistanceChanged FINAL)
    Q_PROPERTY(double maxDistance READ maxDistance WRITE setMaxDistance NOTIFY maxDistanceChanged FINAL)
    Q_PROPERTY(double minDuration READ minDuration WRITE setMinDuration NOTIFY minDurationChanged FINAL)
    Q_PROPERTY(double maxDuration READ maxDuration WRITE setMaxDuration NOTIFY maxDurationChanged FINAL)
    Q_PROPERTY(double currentAvgHeartRate READ currentAvgHeartRate WRITE setCurrentAvgHeartRate NOTIFY currentAvgHeartRateChanged FINAL)
    Q_PROPERTY(double currentMaxHeartRate READ currentMaxHeartRate WRITE setCurrentMaxHeartRate NOTIFY currentMaxHeartRateChanged FINAL)
    Q_PROPERTY(double distance READ distance WRITE setDistance NOTIFY distanceChanged FINAL)
    Q_PROPERTY(double duration READ duration WRITE setDuration NOTIFY durationChanged FINAL)
    Q_PROPERTY(double weather READ weather WRITE setWeather NOTIFY weatherChanged FINAL)
    Q_PROPERTY(double temperature READ temperature WRITE setTemperature NOTIFY temperatureChanged FINAL)
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged FINAL)
    Q_PROPERTY(QStringList iconImages READ iconImages WRITE setIconImages NOTIFY iconImagesChanged FINAL)
    Q_PROPERTY(QStringList iconLabels READ iconLabels WRITE setIconLabels NOTIFY iconLabelsChanged FINAL)
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

    /// Files of pictures, relative to the document that makes the control, and what a screen reader
    /// calls them.
    const QStringList& iconImages() const { return iconImages_; }
    void setIconImages(const QStringList& images);
    const QStringList& iconLabels() const { return iconLabels_; }
    void setIconLabels(const QStringList& labels);
    /// The value as it is shown, with its unit.
    const QString& text() const { return text_; }

    UnitSystem::Value unitSystem() const { return number(Property::Metric) != 0 ? UnitSystem::Metric : UnitSystem::Imperial; }
    void setUnitSystem(UnitSystem::Value value) {
        setNumber(Property::Metric, value == UnitSystem::Metric ? 1 : value == UnitSystem::Imperial ? 0 : notTaken);
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

private:
    static constexpr std::size_t propertyCount = static_cast<std::size_t>(Property::Count);
    /// Of an enumeration: a number that is none of its values.
    static constexpr double notTaken = -1;
    /// What a property is called in QML, and the signal of its changes.
    struct Description {
        const char* name;
        void (QuickPickerItem::*changed)();
    };
    static const std::array<Description, propertyCount> descriptions;
    static constexpr std::size_t indexOf(Property property) { return static_cast<std::size_t>(property); }

    bool isTaken(Property property, double value) const;
    void apply(Property property);
    void applyIcons();
    void applyName();
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

#include "QuickPickerItem.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include <QMetaEnum>
#include <QQmlFile>
#include <QtQml>

#include <GXUIPickers/UIImage.h>

#include "PropertyPickerFactory.h"
#include "QuickNumbers.h"

namespace gx::quick {

namespace {

using Property = QuickPickerItem::Property;

struct Bounds {
    Property lower;
    Property upper;
};
constexpr std::array<Bounds, 3> boundsOfAll = {
    {{Property::Min, Property::Max}, {Property::MinDistance, Property::MaxDistance}, {Property::MinDuration, Property::MaxDuration}}};

std::optional<Bounds> boundsOf(Property property) {
    for (const Bounds& bounds : boundsOfAll) {
        if (property == bounds.lower || property == bounds.upper) return bounds;
    }
    return std::nullopt;
}

bool isStep(Property property) {
    return property == Property::Step || property == Property::HoursStep || property == Property::MinutesStep ||
           property == Property::SecondsStep;
}

/// The enumeration of a property; nothing for other properties.
std::optional<QMetaObject> enumerationOf(Property property) {
    if (property == Property::Metric) return UnitSystem::staticMetaObject;
    if (property == Property::WeightUnit) return WeightUnit::staticMetaObject;
    if (property == Property::Layout) return DurationType::staticMetaObject;
    return std::nullopt;
}

} // namespace

const std::array<QuickPickerItem::Description, QuickPickerItem::propertyCount> QuickPickerItem::descriptions = {
    {{"unitSystem", &QuickPickerItem::unitSystemChanged},
     {"weightUnit", &QuickPickerItem::weightUnitChanged},
     {"weightUnitSelectable", &QuickPickerItem::weightUnitSelectableChanged},
     {"numberOfFractionUnits", &QuickPickerItem::numberOfFractionUnitsChanged},
     {"type", &QuickPickerItem::typeChanged},
     {"hoursStepSize", &QuickPickerItem::hoursStepSizeChanged},
     {"minutesStepSize", &QuickPickerItem::minutesStepSizeChanged},
     {"secondsStepSize", &QuickPickerItem::secondsStepSizeChanged},
     {"shouldShowNullValue", &QuickPickerItem::shouldShowNullValueChanged},
     {"minimumGapBetweenAvgAndMax", &QuickPickerItem::minimumGapBetweenAvgAndMaxChanged},
     {"from", &QuickPickerItem::fromChanged},
     {"to", &QuickPickerItem::toChanged},
     {"stepSize", &QuickPickerItem::stepSizeChanged},
     {"minDistance", &QuickPickerItem::minDistanceChanged},
     {"maxDistance", &QuickPickerItem::maxDistanceChanged},
     {"minDuration", &QuickPickerItem::minDurationChanged},
     {"maxDuration", &QuickPickerItem::maxDurationChanged},
     {"currentAvgHeartRate", &QuickPickerItem::currentAvgHeartRateChanged},
     {"currentMaxHeartRate", &QuickPickerItem::currentMaxHeartRateChanged},
     {"distance", &QuickPickerItem::distanceChanged},
     {"duration", &QuickPickerItem::durationChanged},
     {"weather", &QuickPickerItem::weatherChanged},
     {"temperature", &QuickPickerItem::temperatureChanged},
     {"value", &QuickPickerItem::valueChanged}}};

QuickPickerItem::~QuickPickerItem() {
    if (picker_) picker_->didChange = nullptr;
}

// Properties

bool QuickPickerItem::isTaken(Property property, double value) const {
    const QString name = QString::fromLatin1(descriptions[indexOf(property)].name);
    // In a document, defaults are not known yet.
    const QString rest = isComponentComplete() ? QStringLiteral("It stays %1.").arg(number(property)) : QStringLiteral("It is ignored.");
    if (!std::isfinite(value)) {
        warn(QStringLiteral("%1 has to be a number. %2").arg(name, rest));
        return false;
    }
    if (const std::optional<QMetaObject> enumeration = enumerationOf(property)) {
        const QMetaEnum values = enumeration->enumerator(0);
        if (values.valueToKey(static_cast<int>(value)) != nullptr) return true;
        QStringList names;
        for (int i = 0; i < values.keyCount(); ++i) names.append(QLatin1String(values.key(i)));
        const QString type = QString::fromLatin1(enumeration->className()).section(QStringLiteral("::"), -1);
        warn(QStringLiteral("%1: %2 is no %3, which has %4. It stays as it is.")
                 .arg(name)
                 .arg(value)
                 .arg(type, names.join(QStringLiteral(", "))));
        return false;
    }
    if (isStep(property) && !(value > 0)) {
        warn(QStringLiteral("%1 has to be above 0, not %2. %3").arg(name).arg(value).arg(rest));
        return false;
    }
    return true;
}

void QuickPickerItem::setNumber(Property property, double value) {
    if (!isTaken(property, value)) return;
    if (isComponentComplete() && value == number(property)) return;
    values_[indexOf(property)] = value;
    isSet_.set(indexOf(property));
    if (!isComponentComplete()) return;
    const QPointer<QuickPickerItem> self(this);
    emit(this->*descriptions[indexOf(property)].changed)();
    if (!self) return;
    const QuickSurroundings::Visit here = visit();
    apply(property);
    refresh();
}

bool QuickPickerItem::areCrossed(double lower, double upper) const {
    // A pace begins with the fastest, which is the largest speed.
    return kind_ == Pace ? lower < upper : lower > upper;
}

/// Hands a value to the picker, which may take another one.
void QuickPickerItem::apply(Property property) {
    isApplying_ = true;
    if (const std::optional<Bounds> bounds = boundsOf(property)) {
        const double lower = number(bounds->lower);
        const double upper = number(bounds->upper);
        if (areCrossed(lower, upper)) polish(); // Bindings may still change the other one.
        picker_->set(bounds->lower, lower);
        picker_->set(bounds->upper, areCrossed(lower, upper) ? lower : upper);
        // What is selected may lie within the bounds again.
    } else {
        picker_->set(property, number(property));
    }
    isApplying_ = false;
}

void QuickPickerItem::updatePolish() {
    QuickItem::updatePolish();
    for (const Bounds& bounds : boundsOfAll) {
        const double lower = number(bounds.lower);
        const double upper = number(bounds.upper);
        if (!areCrossed(lower, upper)) continue;
        const char* const relation = lower > upper ? "above" : "below";
        const char* const reason = kind_ == Pace ? ", but from is the fastest pace, the largest speed" : "";
        warn(QStringLiteral("%1 (%2) is %5 %3 (%4)%6. Only %2 can be chosen.")
                 .arg(QLatin1String(descriptions[indexOf(bounds.lower)].name))
                 .arg(lower)
                 .arg(QLatin1String(descriptions[indexOf(bounds.upper)].name))
                 .arg(upper)
                 .arg(QLatin1String(relation), QLatin1String(reason)));
    }
}

/// A number of the picker for the application. Those that count are no floats.
double QuickPickerItem::given(double value) const {
    const bool isCount = kind_ == Integer || kind_ == Bpm || kind_ == Calories || kind_ == HeartRate || kind_ == Icon;
    return isCount ? value : shortestOfFloat(value);
}

/// Reads what the picker has now, and emits the signals of what has changed.
void QuickPickerItem::refresh() {
    std::bitset<propertyCount> changed;
    for (std::size_t i = 0; i < propertyCount; ++i) {
        const auto property = static_cast<Property>(i);
        const std::optional<double> value = picker_->get(property);
        const std::optional<Bounds> bounds = boundsOf(property);
        const bool isCrossed = bounds && areCrossed(number(bounds->lower), number(bounds->upper));
        // What the application has set stays as it is to the last digit.
        if (!value || isCrossed || *value == values_[i] || given(*value) == values_[i]) continue;
        values_[i] = given(*value);
        changed.set(i);
    }
    const QString text = QString::fromStdString(picker_->text());
    const bool isTextChanged = text != text_;
    text_ = text;
    const QPointer<QuickPickerItem> self(this); // Handlers may drop the item.
    for (std::size_t i = 0; i < propertyCount && self; ++i) {
        if (changed.test(i)) emit(this->*descriptions[i].changed)();
    }
    if (self && isTextChanged) emit textChanged();
}

void QuickPickerItem::userDidSelect() {
    if (isApplying_) return;
    const QPointer<QuickPickerItem> self(this);
    refresh();
    if (self) notifyMoved();
}

// Icons

void QuickPickerItem::setIconImages(const QStringList& images) {
    if (images == iconImages_) return;
    iconImages_ = images;
    const QPointer<QuickPickerItem> self(this); // Handlers may drop the item.
    if (picker_) applyIcons();
    if (self) emit iconImagesChanged();
}

void QuickPickerItem::setIconLabels(const QStringList& labels) {
    if (labels == iconLabels_) return;
    iconLabels_ = labels;
    const QPointer<QuickPickerItem> self(this); // Handlers may drop the item.
    if (picker_) applyIcons();
    if (self) emit iconLabelsChanged();
}

void QuickPickerItem::applyIcons() {
    const QuickSurroundings::Visit here = visit();
    auto images = std::make_shared<GXIconPickerView::Images>();
    const QQmlContext* const document = qmlContext(&owner());
    for (qsizetype i = 0; i < iconImages_.size(); ++i) {
        const QUrl url(iconImages_[i]);
        const QString file = QQmlFile::urlToLocalFileOrQrc(document ? document->resolvedUrl(url) : url);
        Ref<UIImage> image = UIImage::imageWithContentsOfFile(file.toStdString());
        if (!image) warn(QStringLiteral("iconImages[%1]: the picture \"%2\" cannot be read. Its row is empty.").arg(i).arg(iconImages_[i]));
        if (image && i < iconLabels_.size()) image->setAccessibilityLabel(iconLabels_[i].toStdString());
        images->push_back(std::move(image));
    }
    isApplying_ = true;
    picker_->setIcons(std::move(images));
    isApplying_ = false;
    refresh();
}

// The picker

void QuickPickerItem::makePicker() {
    picker_ = elements::pickerOfKind(static_cast<elements::PickerKind>(kind_));
    if (!picker_) return;
    picker_->didChange = [this] { userDidSelect(); };
}

void QuickPickerItem::surroundingsDidChange(bool isRowHeightChanged) {
    if (!picker_) return;
    if (isRowHeightChanged) {
        // Rows are as high as their fonts need from the making of a picker on.
        const QPointer<QuickPickerItem> self(this); // Handlers may drop the item.
        finishMovements();
        if (!self) return;
        const Ref<elements::PropertyPicker> before = picker_;
        makePicker();
        before->copyTo(*picker_);
        before->didChange = nullptr;
        setRootView(picker_->view());
    }
    picker_->setAccessibilityLabel(accessibilityLabel());
    picker_->reload();
    refresh();
}

void QuickPickerItem::componentComplete() {
    QuickItem::componentComplete(); // The looks are known from here on.
    const QuickSurroundings::Visit here = visit();
    makePicker();
    if (!picker_) return;
    if (!isSet_.test(indexOf(Property::Metric))) values_[indexOf(Property::Metric)] = 1;
    isSet_.set(indexOf(Property::Metric));
    for (std::size_t i = 0; i < propertyCount; ++i) {
        if (!isSet_.test(i)) values_[i] = given(picker_->get(static_cast<Property>(i)).value_or(0));
    }
    for (std::size_t i = 0; i < propertyCount; ++i) {
        if (isSet_.test(i)) apply(static_cast<Property>(i));
    }
    if (!iconImages_.isEmpty()) applyIcons(); // Selects again, and reads what was applied.
    picker_->setAccessibilityLabel(accessibilityLabel());
    setRootView(picker_->view());
    picker_->reload();
    refresh();
}

} // namespace gx::quick

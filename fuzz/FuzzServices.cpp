#include "FuzzServices.h"

#include "GXCaloriesPickerView.h"
#include "GXDistancePickerView.h"
#include "GXLocalization.h"
#include "GXSpeedPickerView.h"
#include "GXStyleSheet.h"

using namespace gx;

namespace {

/// The world there is. Services may outlive theirs.
FuzzWorld*& reacting() {
    static FuzzWorld* world = nullptr;
    return world;
}

/// One time in 16, for services are asked often.
void react() {
    if (reacting()) reacting()->react(16);
}

/// Each operation looks at its object once more after the reaction, which may have replaced it.
class ReactingStyleSheet : public GXStyleSheet {
public:
    double pickerRowHeight() const override {
        react();
        return GXStyleSheet::pickerRowHeight();
    }
    double pickerImageRowHeight() const override {
        react();
        return GXStyleSheet::pickerImageRowHeight();
    }
    Ref<GXStyleSheetFont> pickerValueFont() const override {
        react();
        return GXStyleSheet::pickerValueFont();
    }
    Ref<GXStyleSheetFont> pickerLabelFont() const override {
        react();
        return GXStyleSheet::pickerLabelFont();
    }
    UIColor tableBgColor() const override {
        react();
        return textScale() > 1 ? UIColor::whiteColor() : GXStyleSheet::tableBgColor();
    }
};

class ReactingLocalization : public GXLocalization {
public:
    std::optional<std::string> localizedStringWithKey_comment(const std::string& key, const std::string& comment) const override {
        react();
        return GXLocalization::localizedStringWithKey_comment(key, comment);
    }
    std::optional<std::string> accessibilityTextForName(GXAccessibilityName name) const override {
        react();
        return GXLocalization::accessibilityTextForName(name);
    }
    std::optional<std::string> accessibilityTextForNumber_unit(const GXAccessibilityNumber& number,
                                                               GXAccessibilityUnit unit) const override {
        react();
        return GXLocalization::accessibilityTextForNumber_unit(number, unit);
    }
};

template <class Formatter>
class Reacting : public Formatter {
public:
    std::optional<std::string> unit(const NSNumber& quantity) const override {
        react();
        return Formatter::unit(quantity);
    }
};

} // namespace

void setReactingService(FuzzWorld& world) {
    reacting() = &world;
    if (world.bytes().flag()) {
        GXStyleSheet::setGlobalStyleSheet(create<ReactingStyleSheet>());
    } else {
        GXLocalization::setSharedLocalization(create<ReactingLocalization>());
    }
}

void setReactingFormatter(FuzzWorld& world, const Ref<GXBasePickerView>& picker) {
    reacting() = &world;
    const bool isMetric = world.bytes().flag();
    if (auto* const distance = dynamic_cast<GXDistancePickerView*>(picker.get())) {
        distance->setDistanceFormatter(create<Reacting<GXDistanceFormatter>>(1, isMetric, true));
    } else if (auto* const speed = dynamic_cast<GXSpeedPickerView*>(picker.get())) {
        speed->setSpeedFormatter(create<Reacting<GXSpeedFormatter>>(1, isMetric, true));
    } else if (auto* const calories = dynamic_cast<GXCaloriesPickerView*>(picker.get())) {
        calories->setCaloriesFormatter(create<Reacting<GXCaloriesFormatter>>(0, isMetric, true));
    }
}

void endReactions() { reacting() = nullptr; }

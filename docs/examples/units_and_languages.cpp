// One value in two units and three languages.

#include <GXUIPickers/GXUIPickers.h>

#include <iostream>

using namespace gx;

namespace {

void show(const std::string& heading, const Ref<GXWeightPickerView>& weight, const Ref<GXDistancePickerView>& distance) {
    std::cout << heading << ": " << weight->currentValueText() << ", " << distance->currentValueText() << "\n";
}

/// What an application does when its user has chosen another language.
void chooseLanguage(const std::string& identifier) {
    // Decimal separator and writing direction; then the texts.
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier(identifier));
    GXLocalization::sharedLocalization()->setLanguage(identifier);
}

} // namespace

int main() {
    const auto weight = create<GXWeightPickerView>(CGRectMake(0, 0, 320, 216));
    weight->setCurrentValue(NSNumber::numberWithFloat(72.5F)); // Kilograms, whatever is shown.
    const auto distance = create<GXDistancePickerView>(CGRectMake(0, 0, 320, 216));
    distance->setCurrentValue(NSNumber::numberWithInt(5300)); // Metres.

    weight->setWeightUnit(GXWeightUnitPound);
    weight->setCurrentValue(weight->currentValue()); // Selects its rows in the new unit.
    show("imperial", weight, distance);
    weight->setWeightUnit(GXWeightUnitKilogram);
    weight->setCurrentValue(weight->currentValue());
    distance->setIsMetric(true);
    show("metric", weight, distance);

    for (const char* const identifier : {"de", "ru", "ar"}) {
        chooseLanguage(identifier);
        weight->reloadData();
        distance->reloadData();
        show(identifier, weight, distance);
    }
    return 0;
}

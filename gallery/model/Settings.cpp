#include "Settings.h"

#include <GXUIPickers/GXLocalization.h>
#include <GXUIPickers/GXStyleSheet.h>
#include <GXUIPickers/NSLocale.h>

using namespace gx;

namespace gallery {

void Settings::apply() const {
    GXStyleSheet::globalStyleSheet()->setTextScale(textScale);
    const auto locale = NSLocale::localeWithIdentifier(language);
    // Without a translation the texts are in another language than the user's.
    const bool isSameLanguage = language == GXLocalization::sharedLocalization()->translationLanguage();
    if (isSameLanguage) locale->setCharacterDirection(NSLocale::currentLocale()->characterDirection());
    GXLocalization::sharedLocalization()->setLanguage(language);
    if (decimalSeparator) locale->setDecimalSeparator(*decimalSeparator);
    NSLocale::setCurrentLocale(locale);
}

Settings Settings::current() {
    Settings settings;
    settings.textScale = GXStyleSheet::globalStyleSheet()->textScale();
    settings.language = GXLocalization::sharedLocalization()->translationLanguage();
    const auto locale = NSLocale::currentLocale();
    const auto custom = NSLocale::localeWithIdentifier(settings.language)->objectForKey(NSLocaleDecimalSeparator);
    const auto separator = locale->objectForKey(NSLocaleDecimalSeparator);
    if (separator != custom) settings.decimalSeparator = separator;
    return settings;
}

} // namespace gallery

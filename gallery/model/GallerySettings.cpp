#include "GallerySettings.h"

#include <GXUIPickers/GXLocalization.h>
#include <GXUIPickers/GXStyleSheet.h>
#include <GXUIPickers/NSLocale.h>

using namespace gx;

namespace gallery {

void GallerySettings::apply() const {
    GXStyleSheet::globalStyleSheet()->setTextScale(textScale);
    const auto locale = NSLocale::localeWithIdentifier(language);
    // The texts may be in another language than the user's, for want of a translation.
    const bool isSameLanguage = language == GXLocalization::sharedLocalization()->translationLanguage();
    if (isSameLanguage) locale->setCharacterDirection(NSLocale::currentLocale()->characterDirection());
    GXLocalization::sharedLocalization()->setLanguage(language);
    if (decimalSeparator) locale->setDecimalSeparator(*decimalSeparator);
    NSLocale::setCurrentLocale(locale);
}

GallerySettings GallerySettings::current() {
    GallerySettings settings;
    settings.textScale = GXStyleSheet::globalStyleSheet()->textScale();
    settings.language = GXLocalization::sharedLocalization()->translationLanguage();
    const auto locale = NSLocale::currentLocale();
    const auto custom = NSLocale::localeWithIdentifier(settings.language)->objectForKey(NSLocaleDecimalSeparator);
    const auto separator = locale->objectForKey(NSLocaleDecimalSeparator);
    if (separator != custom) settings.decimalSeparator = separator;
    return settings;
}

} // namespace gallery

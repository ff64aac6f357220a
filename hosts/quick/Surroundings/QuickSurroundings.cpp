#include "QuickSurroundings.h"

#include <GXUIPickers/QtHost.h>

namespace gx::quick {

void QuickSurroundings::setLocale_isMirrored(const QLocale& locale, bool isMirrored) {
    locale_ = qt::localeFromQLocale(locale);
    locale_->setCharacterDirection(isMirrored ? NSLocaleLanguageDirection::RightToLeft : NSLocaleLanguageDirection::LeftToRight);
    localization_->setLanguage(locale_->objectForKey(NSLocaleIdentifier).value_or("en"));
}

QuickSurroundings::Visit::Visit(const QuickSurroundings& surroundings) {
    GXStyleSheet::setGlobalStyleSheet(surroundings.styleSheet_);
    GXLocalization::setSharedLocalization(surroundings.localization_);
    NSLocale::setCurrentLocale(surroundings.locale_);
}

QuickSurroundings::Visit::~Visit() {
    GXStyleSheet::setGlobalStyleSheet(styleSheet_);
    GXLocalization::setSharedLocalization(localization_);
    NSLocale::setCurrentLocale(locale_);
}

} // namespace gx::quick

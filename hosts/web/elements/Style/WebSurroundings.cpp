#include "WebSurroundings.h"

namespace gx::web {

WebTextEngine& sharedTextEngine() {
    static const Ref<WebTextEngine> engine = create<WebTextEngine>();
    if (UITextEngine::shared() != engine) UITextEngine::setShared(engine);
    return *engine;
}

WebSurroundings::WebSurroundings() : locale_(NSLocale::localeWithIdentifier("en")) {}

void WebSurroundings::setLanguage_isRightToLeft(const std::string& language, bool isRightToLeft) {
    localization_->setLanguage(language);
    locale_ = NSLocale::localeWithIdentifier(language);
    locale_->setCharacterDirection(isRightToLeft ? NSLocaleLanguageDirection::RightToLeft : NSLocaleLanguageDirection::LeftToRight);
}

void WebSurroundings::enter() const {
    sharedTextEngine().setSystemFont(styleSheet_->fonts().rows);
    GXStyleSheet::setGlobalStyleSheet(styleSheet_);
    GXLocalization::setSharedLocalization(localization_);
    NSLocale::setCurrentLocale(locale_);
}

} // namespace gx::web

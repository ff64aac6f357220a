#pragma once

#include <string>

#include <GXUIPickers/GXLocalization.h>
#include <GXUIPickers/NSLocale.h>

#include "WebStyleSheet.h"
#include "WebTextEngine.h"

namespace gx::web {

/// What an element has apart from the others of its page: fonts, language and direction.
///
/// Pickers read shared services. So work on an element begins by entering its surroundings, which
/// are the shared ones until another element's are entered.
class WebSurroundings {
public:
    WebSurroundings();

    const Ref<WebStyleSheet>& styleSheet() const { return styleSheet_; }
    /// The language of the texts and of the decimal separator.
    void setLanguage_isRightToLeft(const std::string& language, bool isRightToLeft);

    /// Makes these the shared services.
    void enter() const;

private:
    Ref<WebStyleSheet> styleSheet_ = create<WebStyleSheet>();
    Ref<GXLocalization> localization_ = create<GXLocalization>();
    Ref<NSLocale> locale_;
};

/// The one engine that measures for all elements. It is the shared one from the first call on.
WebTextEngine& sharedTextEngine();

} // namespace gx::web

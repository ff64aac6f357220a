#pragma once

#include <QLocale>

#include <GXUIPickers/GXLocalization.h>
#include <GXUIPickers/NSLocale.h>

#include "QuickStyleSheet.h"

namespace gx::quick {

/// What an item has apart from the others of its application: looks, language and direction.
///
/// Pickers read shared services. So work on an item is done in its surroundings, which are the
/// shared ones for as long as a `Visit` lives; then those before are restored.
class QuickSurroundings {
public:
    class Visit {
    public:
        explicit Visit(const QuickSurroundings& surroundings);
        ~Visit();
        Visit(const Visit&) = delete;
        Visit& operator=(const Visit&) = delete;

    private:
        Ref<GXStyleSheet> styleSheet_ = GXStyleSheet::globalStyleSheet();
        Ref<GXLocalization> localization_ = GXLocalization::sharedLocalization();
        Ref<NSLocale> locale_ = NSLocale::currentLocale();
    };

    const Ref<QuickStyleSheet>& styleSheet() const { return styleSheet_; }
    void setLocale_isMirrored(const QLocale& locale, bool isMirrored);

private:
    Ref<QuickStyleSheet> styleSheet_ = create<QuickStyleSheet>();
    Ref<GXLocalization> localization_ = create<GXLocalization>();
    Ref<NSLocale> locale_ = NSLocale::localeWithIdentifier("en");
};

} // namespace gx::quick

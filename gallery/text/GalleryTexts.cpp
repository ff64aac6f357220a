#include "GalleryTexts.h"

#include "GalleryTextTable.h"
#include <GXUIPickers/GXLocalization.h>

using gx::GXLocalization;

namespace gallery {

std::string GalleryTexts::text(const std::string& english) {
    return std::string(GalleryTextTable::textInLanguage(english, GXLocalization::sharedLocalization()->translationLanguage()));
}

} // namespace gallery

#include "GalleryTexts.h"

#include "GXLocalization.h"
#include "GalleryTextTable.h"

using gx::GXLocalization;

namespace gallery {

std::string GalleryTexts::text(const std::string& english) {
    return std::string(GalleryTextTable::textInLanguage(english, GXLocalization::sharedLocalization()->translationLanguage()));
}

} // namespace gallery

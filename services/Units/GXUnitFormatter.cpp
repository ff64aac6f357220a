#include "GXUnitFormatter.h"

#include "GXLocalization.h"

namespace gx {

bool GXUnitFormatter::init() { return initWithStyle_isMetric_usingUnit(/*style=*/0, /*isMetric=*/false, /*usingUnit=*/true); }

bool GXUnitFormatter::initWithStyle_isMetric_usingUnit(NSInteger style, bool isMetric, bool usingUnit) {
    if (!NSObject::init()) return false;
    style_ = style;
    isMetric_ = isMetric;
    usingUnit_ = usingUnit;
    return true;
}

void GXUnitFormatter::setMetric(bool isMetric) { isMetric_ = isMetric; }

std::optional<std::string> GXUnitFormatter::localizedUnit(const std::string& key, const std::string& comment) {
    return GXLocalization::sharedLocalization()->localizedStringWithKey_comment(key, comment);
}

} // namespace gx

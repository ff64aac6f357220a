#include "ReadingDirection.h"

#include <GXUIPickers/NSLocale.h>

using namespace gx;

namespace gallery {

bool ReadingDirection::isRightToLeft() { return NSLocale::currentLocale()->isRightToLeft(); }

CGRect ReadingDirection::frame(CGRect fromLeading, CGFloat superviewWidth) {
    if (isRightToLeft()) fromLeading.origin.x = superviewWidth - CGRectGetMaxX(fromLeading);
    return fromLeading;
}

NSTextAlignment ReadingDirection::trailingAlignment() { return isRightToLeft() ? NSTextAlignmentLeft : NSTextAlignmentRight; }

} // namespace gallery

#include "UIDrawingVersion.h"

namespace gx {

std::uint64_t UIDrawingVersion::next() {
    static std::uint64_t latest = 0;
    return ++latest;
}

} // namespace gx

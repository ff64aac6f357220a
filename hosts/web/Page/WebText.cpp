#include "WebText.h"

namespace gx::web {

std::string& sharedText() {
    static std::string text;
    return text;
}

} // namespace gx::web

#pragma once

#include <string>

namespace gx::web {

/// The buffer through which texts come from the page and go there, in UTF-8.
std::string& sharedText();

} // namespace gx::web

#pragma once

namespace gx::quick {

/// Gives the library Qt's host, unless the application has done so.
///
/// Only once in an application, since it may give the library a text engine of its own, before or
/// afterwards.
void installHost();

} // namespace gx::quick

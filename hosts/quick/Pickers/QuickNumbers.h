#pragma once

namespace gx::quick {

/// A float of the library as an application would write it: the double nearest to its shortest
/// decimal text, such as 180.34 and not 180.33999633789062. Other doubles stay as they are.
double shortestOfFloat(double value);

} // namespace gx::quick

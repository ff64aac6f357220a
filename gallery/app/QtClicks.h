#pragma once

#include <memory>

namespace gallery {

/// Lets wheels click through Qt Multimedia, which the gallery is built with only where it is
/// installed.
class QtClicks {
public:
    /// Nothing without Qt Multimedia, or on a machine that no sound can be heard on.
    static std::unique_ptr<QtClicks> make();
    virtual ~QtClicks() = default;

    /// `time` is in seconds. Clicks that come too fast are left out.
    virtual void click(double time) = 0;
};

} // namespace gallery

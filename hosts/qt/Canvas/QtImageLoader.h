#pragma once

#include <GXUIPickers/UIImage.h>

namespace gx::qt {

/// Reads picture files with Qt.
///
/// - Supports: the formats that Qt can read (PNG always), from the file system and from Qt
///   resources (":/…"); "@2x" to "@9x" at the end of the name for that many pixels a point.
/// - Does not support: moving pictures, colour profiles, looking for another resolution than the
///   one named.
class QtImageLoader : public UIImageLoader {
public:
    /// `path` in UTF-8. Nothing if the file cannot be read.
    Ref<UIImage> imageWithContentsOfFile(const std::string& path) override;

    /// 1 for a name without one.
    static double scaleOfFileName(const std::string& path);
};

} // namespace gx::qt

#pragma once

#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/UIImage.h>

namespace gx::qt {

/// Reads picture files with Qt.
///
/// Supports: the formats that Qt can read (PNG always), from the file system and from Qt resources (":/…"); "@2x" to "@9x" at the
/// end of the name for pictures with that many pixels for a point. Does not support: moving pictures, colour profiles, looking for
/// another resolution than the one named.
class GX_EXPORT QtImageLoader : public UIImageLoader {
public:
    /// `path` in UTF-8. Nothing if the file cannot be read.
    Ref<UIImage> imageWithContentsOfFile(const std::string& path) override;

    /// 1 for a name that tells none.
    static double scaleOfFileName(const std::string& path);
};

} // namespace gx::qt

#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QLocale>

#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/NSLocale.h>

class QGuiApplication;

namespace gx::qt {

/// Makes a Qt application the library's host: call once, after the application object was made and before the first view.
///
/// Supports: text (`QtTextEngine`), pictures (`QtImageLoader`), the user's language, decimal separator and writing direction,
/// passes of the run loop, one in each turn of Qt's event loop, and screen readers (`QtAccessibleView`). When the application object goes,
/// the library is without a host again. Does not support: a language that changes while the application runs.
struct QtHostOptions {
    /// Nothing for the user's own, as the system tells it.
    std::optional<QLocale> locale;
    /// The family of fonts that name none; nothing for the one that is set on the text engine already, or else the
    /// application's own.
    std::optional<std::string> interfaceFamily;
};
GX_EXPORT void installQtHost(QGuiApplication& application, const QtHostOptions& options = {});

/// The same customs for the library. A locale without a language counts as "en".
GX_EXPORT Ref<NSLocale> localeFromQLocale(const QLocale& locale);

/// What came of loading font files.
struct GX_EXPORT QtFontLoading {
    /// The family that the first readable file belongs to; empty if there is none.
    std::string family;
    /// The files that could not be read as fonts, as they were given.
    std::vector<std::string> unreadableFiles;

    explicit operator bool() const { return !family.empty(); }
};
/// Loads font files, usually one family in several weights, and makes the first one's family the interface family. If none can be read,
/// that stays as it was.
GX_EXPORT QtFontLoading loadInterfaceFont(const std::vector<std::string>& files);

} // namespace gx::qt

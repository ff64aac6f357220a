#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QLocale>

#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/NSLocale.h>

class QGuiApplication;

namespace gx::qt {

/// What an application decides itself instead of the system.
struct QtHostOptions {
    /// Nothing for the user's own, as the system has it.
    std::optional<QLocale> locale;
    /// The family of fonts that name none. Nothing for the one that `loadInterfaceFont` has set, or
    /// else the application's own.
    std::optional<std::string> interfaceFamily;
};

/// Makes a Qt application the library's host: call it once, after the application object was made
/// and before the first view.
///
/// - Supports: text, pictures, the user's decimal separator and writing direction, screen readers,
///   and passes of the run loop, one in each pass of Qt's event loop.
/// - Does not support: the language of the texts, which the application gives to
///   `GXLocalization::setLanguage` before the first picker, and a locale that changes while the
///   application runs.
///
/// When the application object is destroyed, the library is without a host again.
GX_EXPORT void installQtHost(QGuiApplication& application, const QtHostOptions& options = {});

/// The same locale for the library. One without a language counts as "en".
GX_EXPORT Ref<NSLocale> localeFromQLocale(const QLocale& locale);

/// The result of loading font files.
struct GX_EXPORT QtFontLoading {
    /// The family that the first readable file belongs to; empty if there is none.
    std::string family;
    /// The paths, as given, that could not be read as fonts.
    std::vector<std::string> unreadableFiles;

    /// Whether a font was loaded.
    explicit operator bool() const { return !family.empty(); }
};
/// Loads font files, usually one family in several weights, and makes the first one's family the
/// interface family. If none can be read, that stays as it was.
GX_EXPORT QtFontLoading loadInterfaceFont(const std::vector<std::string>& files);

} // namespace gx::qt

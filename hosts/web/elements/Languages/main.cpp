// A program of the build: the languages as the data that the page fetches. Here all of them are
// compiled in, so that their texts stand in one place alone.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <GXUIPickers/GXLocalization.h>

// NOLINTNEXTLINE(cppcoreguidelines-macro-usage): an attribute takes no constant
#define GX_WEB_EXPORT(name) extern "C" __attribute__((export_name(name)))

namespace {

std::string& data() {
    static std::string data;
    return data;
}

} // namespace

GX_WEB_EXPORT("count") std::int32_t gx_web_language_count() {
    return static_cast<std::int32_t>(gx::GXLocalization::availableLanguages().size());
}

/// Prepares a language and returns the length of its data in bytes.
GX_WEB_EXPORT("read") std::int32_t gx_web_language_read(std::int32_t index) {
    const std::string identifier = gx::GXLocalization::availableLanguages()[static_cast<std::size_t>(index)];
    data() = gx::GXLocalization::dataOfLanguage(identifier).value_or("");
    return static_cast<std::int32_t>(data().size());
}

GX_WEB_EXPORT("data") const char* gx_web_language_data() { return data().data(); }

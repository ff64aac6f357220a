#include "Recording.h"

#include "LineReader.h"
#include <GXUIPickers/GXLocalization.h>
#include <GXUIPickers/GXStyleSheet.h>
#include <GXUIPickers/NSLocale.h>

using namespace gx;

namespace gallery {

namespace {

constexpr const char* format = "GXUIPickers recording";
constexpr int version = 1;

} // namespace

RecordingStart RecordingStart::withCurrentLocale() {
    RecordingStart start;
    const auto locale = NSLocale::currentLocale();
    start.locale = locale->objectForKey(NSLocaleIdentifier).value_or(start.locale);
    start.decimalSeparator = locale->objectForKey(NSLocaleDecimalSeparator).value_or(start.decimalSeparator);
    start.isRightToLeft = locale->isRightToLeft();
    return start;
}

Ref<MainScreen> RecordingStart::makeScreen() const {
    const auto current = NSLocale::localeWithIdentifier(locale);
    current->setDecimalSeparator(decimalSeparator);
    current->setCharacterDirection(isRightToLeft ? NSLocaleLanguageDirection::RightToLeft : NSLocaleLanguageDirection::LeftToRight);
    NSLocale::setCurrentLocale(current);
    GXLocalization::sharedLocalization()->setLanguage(locale);

    auto screen = create<MainScreen>(CGRectZero);
    Settings settings = screen->settings();
    settings.textScale = textScale;
    settings.contrast = isContrastHigh ? UIAccessibilityContrast::High : UIAccessibilityContrast::Normal;
    if (offersClicks) settings.clicks = false;
    screen->setSettings(settings);
    const auto index = screen->indexOfPage(page);
    if (!index) return nullptr;
    screen->showPage(*index);
    return screen;
}

std::string RecordingStart::line() const {
    const nlohmann::ordered_json json = {{"format", format},
                                         {"version", version},
                                         {"width", size.width},
                                         {"height", size.height},
                                         {"scale", scale},
                                         {"locale", locale},
                                         {"decimalSeparator", decimalSeparator},
                                         {"isRightToLeft", isRightToLeft},
                                         {"textScale", textScale},
                                         {"isContrastHigh", isContrastHigh},
                                         {"isDark", isDark},
                                         {"offersClicks", offersClicks},
                                         {"page", page}};
    return json.dump(-1, ' ', /*ensure_ascii=*/false, nlohmann::ordered_json::error_handler_t::replace);
}

std::optional<RecordingStart> RecordingStart::startOfLine(const std::string& line, std::string& error) {
    constexpr double smallestSide = 1;
    constexpr double largestScale = 4;
    LineReader reader(line);
    if (reader.text("format") != format) reader.refuse("this is no recording of the gallery");
    const std::int64_t made = reader.integer("version");
    if (made < 1) reader.refuse("\"version\" is below 1");
    if (made > version) reader.refuse("this was recorded by a newer version of the gallery");
    RecordingStart start;
    start.size = reader.size(smallestSide);
    start.scale = reader.number("scale", 1, largestScale);
    start.locale = reader.text("locale");
    start.decimalSeparator = reader.text("decimalSeparator");
    start.isRightToLeft = reader.flag("isRightToLeft");
    start.textScale = reader.number("textScale", GXStyleSheet::minTextScale, GXStyleSheet::maxTextScale);
    start.isContrastHigh = reader.flag("isContrastHigh");
    start.isDark = reader.flag("isDark");
    start.offersClicks = reader.flag("offersClicks");
    start.page = reader.text("page");
    if (reader.isGood()) return start;
    error = reader.error();
    return std::nullopt;
}

std::optional<Recording> Recording::recordingOfText(const std::string& text, std::string& error) {
    Recording recording;
    std::size_t number = 0;
    for (std::size_t begin = 0; begin < text.size() || number == 0; ++number) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        const std::string line = text.substr(begin, end - begin);
        begin = end + 1;
        std::string reason;
        if (number == 0) {
            const auto start = RecordingStart::startOfLine(line, reason);
            if (start) recording.start = *start;
        } else if (auto event = RecordedEvent::eventOfLine(line, reason)) {
            recording.events.push_back(std::move(*event));
        }
        if (reason.empty()) continue;
        error = "line " + std::to_string(number + 1) + ": " + reason;
        return std::nullopt;
    }
    return recording;
}

} // namespace gallery

// The functions that the page calls: the exports of the WebAssembly module. Plain C, doubles and
// 32-bit integers. Elements are known by the numbers that the page gave them; a number that is not
// known is ignored.

#include <cmath>
#include <memory>

#include <GXUIPickers/NSArithmetic.h>
#include <GXUIPickers/UIKey.h>
#include <GXUIPickers/UITouch.h>

#include "WebRegistry.h"
#include "WebText.h"

// NOLINTNEXTLINE(cppcoreguidelines-macro-usage): an attribute takes no constant
#define GX_WEB_EXPORT(name) extern "C" __attribute__((export_name(name)))

namespace {

using namespace gx;
using namespace gx::web;

/// Puts a text into the shared buffer; its length, or −1 for none.
std::int32_t give(const std::optional<std::string>& text) {
    if (!text) return -1;
    sharedText() = *text;
    return static_cast<std::int32_t>(sharedText().size());
}

std::string takeText(std::int32_t length) { return sharedText().substr(0, static_cast<std::size_t>(std::max(length, 0))); }

// In a module for one picker, what others need is empty.
constexpr bool hasIcons = elements::isBuilt(elements::PickerKind::Icon) || elements::isBuilt(elements::PickerKind::WeatherAndTemperature);
constexpr bool hasColumns = elements::isBuilt(elements::PickerKind::Columns);

} // namespace

// Texts

/// Makes room for so many bytes in the shared text buffer, and returns where it lies.
GX_WEB_EXPORT("text") char* gx_web_text(std::int32_t length) {
    if (length > 0) sharedText().resize(static_cast<std::size_t>(length));
    return sharedText().data();
}

// Elements

/// The language is in the text buffer. Returns whether there is such a kind.
GX_WEB_EXPORT("open")
std::int32_t gx_web_open(std::int32_t number, std::int32_t kind, std::int32_t rowFont, double rowSize, std::int32_t labelFont,
                         double labelSize, std::int32_t languageLength, std::int32_t isRightToLeft) {
    WebSurroundings surroundings;
    surroundings.styleSheet()->setFonts({rowFont, rowSize, labelFont, labelSize});
    surroundings.setLanguage_isRightToLeft(takeText(languageLength), isRightToLeft != 0);
    auto element = std::make_unique<WebElement>(number, static_cast<elements::PickerKind>(kind), surroundings);
    if (!element->exists()) return 0;
    WebRegistry::add(std::move(element));
    return 1;
}

GX_WEB_EXPORT("close") void gx_web_close(std::int32_t number) { WebRegistry::remove(number); }
GX_WEB_EXPORT("elementCount") std::int32_t gx_web_element_count() { return WebRegistry::count(); }

/// Adds a language; its data is in the text buffer. Elements use it from their next `setLanguage`
/// on. Returns whether it is known now.
GX_WEB_EXPORT("addLanguage") std::int32_t gx_web_add_language(std::int32_t length) {
    return GXLocalization::addLanguage(takeText(length)) ? 1 : 0;
}

/// Fonts have come late: all texts measure differently. The page calls `reload` on its elements.
GX_WEB_EXPORT("fontsDidLoad") void gx_web_fonts_did_load() {
    sharedTextEngine().forgetMeasures();
    UITextEngine::measuresDidChange();
}

GX_WEB_EXPORT("setFonts")
void gx_web_set_fonts(std::int32_t number, std::int32_t rowFont, double rowSize, std::int32_t labelFont, double labelSize) {
    visit(number, [&](WebElement& element) { element.setFonts({rowFont, rowSize, labelFont, labelSize}); });
}

GX_WEB_EXPORT("setLanguage") void gx_web_set_language(std::int32_t number, std::int32_t length, std::int32_t isRightToLeft) {
    if (WebElement* element = WebRegistry::find(number))
        element->surroundings().setLanguage_isRightToLeft(takeText(length), isRightToLeft != 0);
    visit(number, [](WebElement& element) { element.reload(); });
}

/// A length below 0 leaves the name to the picker.
GX_WEB_EXPORT("setLabel") void gx_web_set_label(std::int32_t number, std::int32_t length) {
    const std::optional<std::string> label = length < 0 ? std::nullopt : std::optional(takeText(length));
    visit(number, [&](WebElement& element) { element.setLabel(label); });
}

GX_WEB_EXPORT("setSize") void gx_web_set_size(std::int32_t number, double width, double height) {
    visit(number, [&](WebElement& element) { element.setSize({width, height}); });
}

GX_WEB_EXPORT("reload") void gx_web_reload(std::int32_t number) {
    visit(number, [](WebElement& element) { element.reload(); });
}

/// Bits: 1 high contrast, 2 reduced motion, 4 takes input.
GX_WEB_EXPORT("setTraits") void gx_web_set_traits(std::int32_t number, std::int32_t traits) {
    visit(number, [&](WebElement& element) {
        const auto has = [traits](int bit) { return (static_cast<unsigned>(traits) & static_cast<unsigned>(bit)) != 0; };
        element.window().setAccessibilityContrast(has(1) ? UIAccessibilityContrast::High : UIAccessibilityContrast::Normal);
        element.window().setReducesMotion(has(2));
        element.picker().view()->setUserInteractionEnabled(has(4));
    });
}

// Properties

/// NaN for a property that the picker does not have.
GX_WEB_EXPORT("get") double gx_web_get(std::int32_t number, std::int32_t property) {
    return visit(number, [&](WebElement& element) {
        return element.picker().get(static_cast<elements::PickerProperty>(property)).value_or(std::nan(""));
    });
}

/// Its value for the rows that are in the selection indicator now.
GX_WEB_EXPORT("getLive") double gx_web_get_live(std::int32_t number, std::int32_t property) {
    return visit(number, [&](WebElement& element) { return element.liveValue(static_cast<elements::PickerProperty>(property)); });
}

GX_WEB_EXPORT("set") std::int32_t gx_web_set(std::int32_t number, std::int32_t property, double value) {
    return visit(number,
                 [&](WebElement& element) { return element.picker().set(static_cast<elements::PickerProperty>(property), value) ? 1 : 0; });
}

/// The value as it is shown, in the text buffer.
GX_WEB_EXPORT("valueText") std::int32_t gx_web_value_text(std::int32_t number) {
    return visit(number, [](WebElement& element) { return give(element.picker().text()); });
}

/// Pictures of the page: for each of them three numbers (handle, width, height). Their labels, each
/// with a line feed after it, are in the text buffer. The numbers begin at `numbers`.
GX_WEB_EXPORT("setIcons")
void gx_web_set_icons(std::int32_t number, const double* numbers, std::int32_t count, std::int32_t labelsLength) {
    if constexpr (!hasIcons) return;
    const std::string labels = takeText(labelsLength);
    auto images = std::make_shared<GXIconPickerView::Images>();
    std::size_t begin = 0;
    for (std::int32_t i = 0; i < count; ++i) {
        const double* entry = numbers + static_cast<std::ptrdiff_t>(i) * 3;
        const Ref<UIImage> image = UIImage::imageWithHostHandle_size(truncateTo<std::int64_t>(entry[0]), {entry[1], entry[2]});
        const std::size_t end = std::min(labels.find('\n', begin), labels.size());
        if (image && end > begin) image->setAccessibilityLabel(labels.substr(begin, end - begin));
        begin = std::min(end + 1, labels.size());
        images->push_back(image);
    }
    visit(number, [&](WebElement& element) { element.setIcons(images); });
}

/// Room for so many doubles that stays until the next call.
GX_WEB_EXPORT("numbers") double* gx_web_numbers(std::int32_t count) {
    if constexpr (!hasIcons && !hasColumns) return nullptr;
    static std::vector<double> numbers;
    numbers.assign(static_cast<std::size_t>(std::max(count, 0)), 0);
    return numbers.data();
}

// Columns of the page's own

GX_WEB_EXPORT("setRowCounts") void gx_web_set_row_counts(std::int32_t number, const double* counts, std::int32_t count) {
    if constexpr (!hasColumns) return;
    visit(number, [&](WebElement& element) {
        if (element.columns()) element.columns()->setRowCounts(std::vector<double>(counts, counts + count));
    });
}

/// The label is in the text buffer. A width of 0 leaves it to the wheel.
GX_WEB_EXPORT("setColumn") void gx_web_set_column(std::int32_t number, std::int32_t column, double width, std::int32_t labelLength) {
    if constexpr (!hasColumns) return;
    const std::string label = takeText(labelLength);
    visit(number, [&](WebElement& element) {
        if (!element.columns()) return;
        element.columns()->setWidth_ofColumn(width, column);
        element.columns()->setLabel_ofColumn(label, column);
    });
}

GX_WEB_EXPORT("row") double gx_web_row(std::int32_t number, std::int32_t column, std::int32_t isLive) {
    if constexpr (!hasColumns) return -1;
    return visit(number, [&](WebElement& element) {
        if (!element.columns()) return -1.0;
        return isLive != 0 ? element.columns()->shownRowOfColumn(column) : element.columns()->rowOfColumn(column);
    });
}

GX_WEB_EXPORT("setRow") void gx_web_set_row(std::int32_t number, std::int32_t column, double row) {
    if constexpr (!hasColumns) return;
    visit(number, [&](WebElement& element) {
        if (element.columns()) element.columns()->setRow_ofColumn(row, column);
    });
}

// Time and drawing

/// Returns whether to draw.
GX_WEB_EXPORT("tick") std::int32_t gx_web_tick(std::int32_t number, double time) {
    return visit(number, [&](WebElement& element) { return element.tick(time) ? 1 : 0; });
}

GX_WEB_EXPORT("draw") void gx_web_draw(std::int32_t number) {
    visit(number, [](WebElement& element) { element.draw(); });
}

GX_WEB_EXPORT("finish") void gx_web_finish(std::int32_t number) {
    visit(number, [](WebElement& element) { element.window().finishAnimations(); });
}

// Input. Results say whether it was taken.

/// Phases: 0 began, 1 moved, 2 ended, 3 cancelled.
GX_WEB_EXPORT("touch")
std::int32_t gx_web_touch(std::int32_t number, std::int32_t phase, double finger, double x, double y, double time) {
    return visit(number, [&](WebElement& element) {
        const auto identifier = truncateTo<std::int64_t>(finger);
        switch (phase) {
        case 0:
            return element.host().touchBegan(identifier, {x, y}, time) ? 1 : 0;
        case 1:
            element.window().touchMoved_at_time(identifier, {x, y}, time);
            return 1;
        case 2:
            element.window().touchEnded_at_time(identifier, {x, y}, time);
            return 1;
        default:
            element.window().touchCancelled_at_time(identifier, time);
            return 1;
        }
    });
}

/// Where the pointer of a mouse is, or that it has left. Its button held is the finger
/// `UITouch::pointerIdentifier`.
GX_WEB_EXPORT("pointer") void gx_web_pointer(std::int32_t number, std::int32_t isInside, double x, double y) {
    visit(number, [&](WebElement& element) {
        if (isInside != 0) {
            element.window().pointerMoved({x, y});
        } else {
            element.window().pointerLeft();
        }
    });
}

GX_WEB_EXPORT("scroll")
std::int32_t gx_web_scroll(std::int32_t number, std::int32_t isNotches, double deltaX, double deltaY, double x, double y, double time,
                           std::int32_t isFinished) {
    return visit(number, [&](WebElement& element) {
        const UIScroll::Unit unit = isNotches != 0 ? UIScroll::Unit::Notches : UIScroll::Unit::Points;
        return element.window().scroll({unit, deltaX, deltaY, time, {x, y}, isFinished != 0}) ? 1 : 0;
    });
}

/// `code` is a `UIKey::Code`; what the key types is in the text buffer.
GX_WEB_EXPORT("key")
std::int32_t gx_web_key(std::int32_t number, std::int32_t code, std::int32_t textLength, std::int32_t modifiers, std::int32_t isRepeat,
                        double time) {
    const std::string text = takeText(textLength);
    return visit(number, [&](WebElement& element) {
        const UIKey key = {static_cast<UIKey::Code>(code), text, static_cast<unsigned>(modifiers), isRepeat != 0, time};
        return element.window().keyDown(key) ? 1 : 0;
    });
}

GX_WEB_EXPORT("setReceivesKeys") void gx_web_set_receives_keys(std::int32_t number, std::int32_t receives) {
    visit(number, [&](WebElement& element) { element.window().setReceivesKeys(receives != 0); });
}

// Accessibility

/// Reads the columns that the user can spin again, and returns how many there are.
GX_WEB_EXPORT("columns") std::int32_t gx_web_columns(std::int32_t number) {
    return visit(number,
                 [](WebElement& element) { return static_cast<std::int32_t>(element.accessibility().refresh(*element.picker().view())); });
}

/// NaN for a number that the column does not have.
GX_WEB_EXPORT("columnNumber") double gx_web_column_number(std::int32_t number, std::int32_t column, std::int32_t which) {
    return visit(number, [&](WebElement& element) {
        return element.accessibility().number_ofColumn(static_cast<WebAccessibility::Number>(which), column).value_or(std::nan(""));
    });
}

GX_WEB_EXPORT("columnText") std::int32_t gx_web_column_text(std::int32_t number, std::int32_t column, std::int32_t which) {
    return visit(number, [&](WebElement& element) {
        return give(element.accessibility().text_ofColumn(static_cast<WebAccessibility::Text>(which), column));
    });
}

GX_WEB_EXPORT("columnAct")
void gx_web_column_act(std::int32_t number, std::int32_t column, std::int32_t action, double argument) {
    visit(number, [&](WebElement& element) {
        element.accessibility().act_onColumn(static_cast<WebAccessibility::Action>(action), column, argument);
    });
}

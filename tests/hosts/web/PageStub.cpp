#include "PageStub.h"

#include "WebPage.h"
#include "WebText.h"

PageStub& PageStub::page() {
    static PageStub page;
    return page;
}

std::vector<std::string> PageStub::middleRows() const {
    std::vector<std::string> found;
    for (const Text& text : texts) {
        if (text.isRow && text.scaleY == 1 && text.alpha == 1) found.push_back(text.text);
    }
    return found;
}

std::vector<std::string> PageStub::textsOutsideRows() const {
    std::vector<std::string> found;
    for (const Text& text : texts) {
        if (!text.isRow) found.push_back(text.text);
    }
    return found;
}

namespace {

std::string stringOf(const char* text, std::int32_t length) { return {text, static_cast<std::size_t>(length)}; }

} // namespace

void gx_page_measure_text(std::int32_t font, double fontSize, const char* text, std::int32_t length, double* size) {
    PageStub::page().measured.push_back(std::to_string(font) + ":" + stringOf(text, length));
    size[0] = PageStub::page().widthOfByte * length;
    size[1] = fontSize;
}

void gx_page_fill_rect(std::int32_t shape, double x, double y, double width, double height, double, double alpha) {
    PageStub::page().rects.push_back({shape, x, y, width, height, alpha});
}

void gx_page_draw_text(std::int32_t isRow, std::int32_t font, double fontSize, const char* text, std::int32_t length, double scaleX,
                       double scaleY, double x, double y, double alpha, double home) {
    PageStub::page().texts.push_back({isRow != 0, font, fontSize, stringOf(text, length), scaleX, scaleY, x, y, alpha, home});
}

void gx_page_draw_image(std::int32_t image, double, double, double x, double y, double width, double height, double, double) {
    PageStub::page().images.push_back({image, x, y, width, height});
}

void gx_page_needs_frame(std::int32_t) { ++PageStub::page().frames; }
void gx_page_did_pass_row(std::int32_t) { ++PageStub::page().passedRows; }
void gx_page_did_change(std::int32_t) { ++PageStub::page().changes; }

std::int32_t gx_page_row_title(std::int32_t, std::int32_t component, double row) {
    gx::web::sharedText() = PageStub::page().title(component, row);
    return static_cast<std::int32_t>(gx::web::sharedText().size());
}

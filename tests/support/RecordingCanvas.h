#pragma once

#include <locale>
#include <sstream>
#include <string>
#include <vector>

#include "UIGraphicsContext.h"

/// A canvas that notes each call as a line of text, numbers in the shortest form: "save",
/// "translate 10 20", "fill 0 0 30 40 with 1 0 0 1", "text abc at 0 10 with 0 0 0 1".
class RecordingCanvas : public gx::UIGraphicsContext {
public:
    std::vector<std::string> calls;
    std::vector<gx::CGFloat> fontSizes;

    /// What was noted since the last call of this.
    std::vector<std::string> takeCalls() { return std::move(calls); }
    /// The calls that leave something on the screen.
    std::vector<std::string> painted() const {
        std::vector<std::string> found;
        for (const std::string& call : calls) {
            if (call.starts_with("fill") || call.starts_with("text") || call.starts_with("image")) found.push_back(call);
        }
        return found;
    }

    void saveState() override { note("save"); }
    void restoreState() override { note("restore"); }
    void translate(gx::CGFloat x, gx::CGFloat y) override { note("translate", x, y); }
    void scale(gx::CGFloat x, gx::CGFloat y) override { note("scale", x, y); }
    void clipToRect(gx::CGRect rect) override { note("clip", rect.origin.x, rect.origin.y, rect.size.width, rect.size.height); }
    void multiplyAlpha(double alpha) override { note("alpha", alpha); }

protected:
    void fillRectWithComponents(gx::CGRect rect, const gx::UIColorComponents& color, gx::CGFloat radius) override {
        const std::string corners = radius > 0 ? line("", "rounded", radius) : "";
        note("fill", rect.origin.x, rect.origin.y, rect.size.width, rect.size.height, "with" + components(color) + corners);
    }
    void drawTextWithComponents(std::string_view text, const gx::UIFont& font, const gx::UIColorComponents& color,
                                gx::CGPoint origin) override {
        fontSizes.push_back(font.pointSize());
        note("text", text, "at", origin.x, origin.y, "with" + components(color));
    }
    void drawImageInRect(const gx::UIImage& image, gx::CGRect rect) override {
        note("image", image.pixelWidth(), "by", image.pixelHeight(), "in", rect.origin.x, rect.origin.y, rect.size.width, rect.size.height);
    }

private:
    template <class... Parts>
    static std::string line(const char* first, const Parts&... parts) {
        std::ostringstream text;
        text.imbue(std::locale::classic());
        text << first;
        ((text << ' ' << parts), ...);
        return text.str();
    }
    static std::string components(const gx::UIColorComponents& color) { return line("", color.red, color.green, color.blue, color.alpha); }
    template <class... Parts>
    void note(const char* name, const Parts&... parts) {
        calls.push_back(line(name, parts...));
    }
};

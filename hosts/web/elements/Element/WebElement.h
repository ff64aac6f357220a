#pragma once

#include <optional>
#include <string>
#include <vector>

#include "PropertyPicker.h"
#include "WebAccessibility.h"
#include "WebCanvas.h"
#include "WebColumns.h"
#include "WebSurroundings.h"
#include "WebWindow.h"

namespace gx::web {

/// One custom element of the page: a picker in a window, with surroundings of its own.
///
/// A caller enters its surroundings first (`Visit`).
class WebElement final {
public:
    WebElement(std::int32_t number, elements::PickerKind kind, WebSurroundings surroundings);
    ~WebElement();
    WebElement(const WebElement&) = delete;
    WebElement& operator=(const WebElement&) = delete;

    /// The element's surroundings for as long as this lives. At the end, what was queued meanwhile
    /// runs.
    class Visit {
    public:
        explicit Visit(WebElement& element);
        ~Visit();
        Visit(const Visit&) = delete;
        Visit& operator=(const Visit&) = delete;
    };

    UIWindow& window() const { return *window_.window(); }
    WebWindow& host() { return window_; }
    bool exists() const { return picker_ != nullptr; }
    WebSurroundings& surroundings() { return surroundings_; }
    elements::PropertyPicker& picker() const { return *picker_; }
    /// Nothing unless the columns are the page's own.
    const Ref<WebColumns>& columns() const { return columns_; }

    WebAccessibility& accessibility() { return accessibility_; }

    /// Rows are as high as the fonts need from their making on; so other sizes make a new picker
    /// with the same properties. What moves arrives first, and is reported.
    void setFonts(const WebFonts& fonts);
    void setSize(CGSize size);
    /// Texts, fonts and language are read again.
    void reload();
    /// What the page calls the whole; columns name their part after it.
    void setLabel(std::optional<std::string> label);
    void setIcons(Ref<const GXIconPickerView::Images> icons);
    /// Of the rows that are in the selection indicator while the user turns, else as selected.
    double liveValue(elements::PickerProperty property) const;

    bool tick(NSTimeInterval time) const { return window().tick(time); }
    void draw();

private:
    void makePicker();

    elements::PickerKind kind_;
    WebWindow window_;
    WebSurroundings surroundings_;
    Ref<elements::PropertyPicker> picker_;
    Ref<WebColumns> columns_;
    WebCanvas canvas_;
    WebAccessibility accessibility_;
    std::optional<std::string> label_;
};

} // namespace gx::web

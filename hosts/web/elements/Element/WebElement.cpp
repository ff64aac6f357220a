#include "WebElement.h"

#include <algorithm>

#include <GXUIPickers/NSRunLoop.h>

#include "PropertyPickerFactory.h"
#include "WebPage.h"

namespace gx::web {

WebElement::WebElement(std::int32_t number, elements::PickerKind kind, WebSurroundings surroundings)
    : kind_(kind), window_(number), surroundings_(std::move(surroundings)) {
    surroundings_.enter();
    makePicker();
    if (!picker_) return;
    window_.setRootView(picker_->view());
}

WebElement::~WebElement() {
    if (picker_) picker_->didChange = nullptr;
}

WebElement::Visit::Visit(WebElement& element) { element.surroundings_.enter(); }
WebElement::Visit::~Visit() { NSRunLoop::mainRunLoop()->runPass(); }

void WebElement::makePicker() {
    if (elements::isBuilt(elements::PickerKind::Columns) && kind_ == elements::PickerKind::Columns) {
        columns_ = create<WebColumns>();
        columns_->setNumber(window_.number());
        columns_->becomeDelegate();
        picker_ = columns_;
    } else {
        picker_ = elements::pickerOfKind(kind_);
    }
    if (!picker_) return;
    picker_->didChange = [this] {
        window_.forgetPassedRow();
        gx_page_did_change(window_.number());
    };
}

void WebElement::setFonts(const WebFonts& fonts) {
    WebStyleSheet& styleSheet = *surroundings_.styleSheet();
    const double scale = styleSheet.textScale();
    styleSheet.setFonts(fonts);
    surroundings_.enter();
    if (styleSheet.textScale() != scale && !columns_) {
        window().finishAnimations();
        const Ref<elements::PropertyPicker> before = picker_;
        makePicker();
        before->copyTo(*picker_);
        before->didChange = nullptr;
        picker_->setAccessibilityLabel(label_);
        window_.setRootView(picker_->view());
    }
    reload();
}

void WebElement::setSize(CGSize size) {
    window_.setSize(size);
    reload();
}

void WebElement::reload() { picker_->reload(); }

void WebElement::setLabel(std::optional<std::string> label) {
    label_ = std::move(label);
    picker_->setAccessibilityLabel(label_);
}

void WebElement::setIcons(Ref<const GXIconPickerView::Images> icons) { picker_->setIcons(std::move(icons)); }

double WebElement::liveValue(elements::PickerProperty property) const {
    const std::vector<Ref<UIPickerView>> wheels = picker_->wheels();
    const bool isTurning = std::any_of(wheels.begin(), wheels.end(), [](const Ref<UIPickerView>& wheel) { return wheel->isTurning(); });
    if (window_.hasPassedRow() && isTurning) return elements::valueInIndicator(*picker_, kind_, property);
    return picker_->get(property).value_or(0);
}

void WebElement::draw() {
    canvas_.setSystemFont(surroundings_.styleSheet()->fonts().rows);
    window().draw(canvas_);
}

} // namespace gx::web

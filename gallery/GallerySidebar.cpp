#include "GallerySidebar.h"

#include <algorithm>

#include "GalleryTheme.h"
#include "UIGraphicsContext.h"

using namespace gx;

namespace gallery {

namespace {

constexpr CGFloat inset = 12;
constexpr CGFloat controlGap = 8;
constexpr double largeText = 1.3;

/// Rows from the top and controls from the bottom up, or below the rows where there is no room for both.
class SidebarList : public UIView {
public:
    void addRow(const Ref<UIView>& row) { add(rows_, row); }
    void addControl(const Ref<UIView>& control) { add(controls_, control); }

    CGSize sizeThatFits(CGSize available) const override { return {available.width, rowsHeight() + controlsHeight()}; }
    void layoutSubviews() override {
        UIView::layoutSubviews();
        const CGFloat width = std::max(0.0, bounds().size.width - 2 * inset);
        CGFloat y = 0;
        for (const Ref<UIView>& row : rows_) {
            row->setFrame(CGRectMake(inset, y, width, GalleryTheme::controlHeight));
            y += GalleryTheme::controlHeight;
        }
        y = std::max(y, bounds().size.height - controlsHeight()) + inset;
        for (const Ref<UIView>& control : controls_) {
            control->setFrame(CGRectMake(inset, y, width, GalleryTheme::controlHeight));
            y += GalleryTheme::controlHeight + controlGap;
        }
    }

private:
    void add(std::vector<Ref<UIView>>& list, const Ref<UIView>& view) {
        list.push_back(view);
        addSubview(view);
    }
    CGFloat rowsHeight() const { return static_cast<CGFloat>(rows_.size()) * GalleryTheme::controlHeight; }
    CGFloat controlsHeight() const {
        return 2 * inset + static_cast<CGFloat>(controls_.size()) * (GalleryTheme::controlHeight + controlGap) - controlGap;
    }

    std::vector<Ref<UIView>> rows_;
    std::vector<Ref<UIView>> controls_;
};

} // namespace

Ref<GallerySidebar> GallerySidebar::sidebarWithPages_actions(const std::vector<std::string>& names, const Actions& actions) {
    auto sidebar = create<GallerySidebar>(CGRectZero);
    const auto list = create<SidebarList>(CGRectZero);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto row = GalleryButton::buttonWithTitle_style(names[i], GalleryButton::Style::Row);
        row->setAction([showPage = actions.showPage, i] { showPage(i); });
        sidebar->rows_.push_back(row);
        list->addRow(row);
    }
    list->addControl(sidebar->styleControl_);
    list->addControl(sidebar->textControl_);
    sidebar->list_->setContent(list);
    sidebar->styleControl_->setAction([setStyle = actions.setStyle](std::size_t choice) {
        setStyle(choice == 0 ? UIUserInterfaceStyle::Light : UIUserInterfaceStyle::Dark);
    });
    sidebar->textControl_->setAction(
        [setTextScale = actions.setTextScale](std::size_t choice) { setTextScale(choice == 0 ? 1 : largeText); });
    return sidebar;
}

bool GallerySidebar::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    setBackgroundColor(GalleryTheme::sidebar());
    title_ = create<UILabel>(CGRectZero);
    title_->setText("GXUIPickers");
    title_->setFont(GalleryTheme::headingFont());
    list_ = create<GalleryScroll>(CGRectZero);
    styleControl_ = GallerySegments::segmentsWithChoices({"Light", "Dark"}, 0);
    textControl_ = GallerySegments::segmentsWithChoices({"Normal text", "Large text"}, 0);
    for (const Ref<UIView>& view : std::initializer_list<Ref<UIView>>{title_, list_}) addSubview(view);
    return true;
}

void GallerySidebar::setShowsTitle(bool shows) {
    if (shows == !title_->isHidden()) return;
    title_->setHidden(!shows);
    setNeedsLayout();
}

void GallerySidebar::setChosenPage(std::size_t page) {
    for (std::size_t i = 0; i < rows_.size(); ++i) rows_[i]->setChosen(i == page);
    chosen_ = page;
    setNeedsLayout();
}

void GallerySidebar::setStyle(UIUserInterfaceStyle style) { styleControl_->setChosen(style == UIUserInterfaceStyle::Dark ? 1 : 0); }

void GallerySidebar::layoutSubviews() {
    UIView::layoutSubviews();
    const CGSize size = bounds().size;
    title_->setFrame(CGRectMake(2 * inset, 0, std::max(0.0, size.width - 4 * inset), GalleryTheme::barHeight));
    const CGFloat listY = title_->isHidden() ? inset : GalleryTheme::barHeight;
    list_->setFrame(CGRectMake(0, listY, size.width, std::max(0.0, size.height - listY)));
    list_->layoutIfNeeded();
    // The chosen row stays in sight.
    if (chosen_ >= rows_.size()) return;
    const CGFloat top = static_cast<CGFloat>(chosen_) * GalleryTheme::controlHeight;
    const CGFloat lowest = top + GalleryTheme::controlHeight - list_->bounds().size.height;
    if (list_->offset() < lowest) list_->setOffset(lowest);
    if (list_->offset() > top) list_->setOffset(top);
}

void GallerySidebar::drawRect(UIGraphicsContext& context, CGRect rect) {
    context.fillRect(CGRectMake(CGRectGetMaxX(rect) - 1, 0, 1, rect.size.height), GalleryTheme::hairline());
}

} // namespace gallery

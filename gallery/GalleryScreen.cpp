#include "GalleryScreen.h"

#include <algorithm>
#include <cmath>

#include "GXStyleSheet.h"
#include "GalleryPages.h"
#include "GalleryTheme.h"
#include "UIWindow.h"

using namespace gx;

namespace gallery {

bool GalleryScreen::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    setBackgroundColor(GalleryTheme::background());
    const WeakRef<GalleryScreen> weak = refTo(this);

    descriptions_ = galleryPages();
    names_.emplace_back("All pickers");
    for (const GalleryPageDescription& description : descriptions_) names_.push_back(description.name);
    pages_.resize(descriptions_.size());

    scroll_ = create<GalleryScroll>(CGRectZero);
    sidebar_ = GallerySidebar::sidebarWithPages_actions(names_, {[weak](std::size_t page) {
                                                                     if (const auto screen = weak.lock()) screen->showPage(page);
                                                                 },
                                                                 [weak](UIUserInterfaceStyle style) {
                                                                     if (const auto screen = weak.lock()) screen->setStyle(style);
                                                                 },
                                                                 [weak](double scale) {
                                                                     if (const auto screen = weak.lock()) screen->setTextScale(scale);
                                                                 }});
    bar_ = create<UIView>(CGRectZero);
    bar_->setBackgroundColor(GalleryTheme::sidebar());
    barTitle_ = create<UILabel>(CGRectZero);
    barTitle_->setFont(GalleryTheme::headingFont());
    barTitle_->setTextAlignment(NSTextAlignmentCenter);
    menuButton_ = GalleryButton::buttonWithTitle_sign("All pages", GalleryButton::Sign::Menu);
    menuButton_->setAction([weak] {
        if (const auto screen = weak.lock()) screen->setMenuShown(!screen->isMenuShown());
    });
    styleButton_ = GalleryButton::buttonWithTitle_sign("Light or dark", GalleryButton::Sign::Look);
    styleButton_->setAction([weak] {
        const auto screen = weak.lock();
        if (!screen) return;
        screen->setStyle(screen->style() == UIUserInterfaceStyle::Light ? UIUserInterfaceStyle::Dark : UIUserInterfaceStyle::Light);
    });
    for (const Ref<UIView>& view : std::initializer_list<Ref<UIView>>{barTitle_, menuButton_, styleButton_}) bar_->addSubview(view);
    for (const Ref<UIView>& view : std::initializer_list<Ref<UIView>>{scroll_, sidebar_, bar_}) addSubview(view);
    showPage(0);
    return true;
}

// Pages

void GalleryScreen::showPage(std::size_t index) {
    if (index >= names_.size()) return;
    const bool isShown = index == index_ && scroll_->content();
    index_ = index;
    isMenuShown_ = false;
    sidebar_->setChosenPage(index);
    if (!isShown && index == 0) {
        if (!overview_) {
            overview_ =
                GalleryOverview::overviewOfPages_open(descriptions_, [weak = WeakRef<GalleryScreen>(refTo(this))](std::size_t page) {
                    if (const auto screen = weak.lock()) screen->showPage(page + 1);
                });
        }
        scroll_->setContent(overview_);
    } else if (!isShown) {
        if (!pages_[index - 1]) pages_[index - 1] = GalleryPage::pageWithDescription(descriptions_[index - 1]);
        scroll_->setContent(pages_[index - 1]);
    }
    showTitles();
    setNeedsLayout();
}

std::optional<std::size_t> GalleryScreen::indexOfPage(const std::string& name) const {
    // The names are ASCII.
    const auto lower = [](char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; };
    const auto isSame = [&](const std::string& other) {
        return std::equal(name.begin(), name.end(), other.begin(), other.end(), [&](char a, char b) { return lower(a) == lower(b); });
    };
    const auto found = std::find_if(names_.begin(), names_.end(), isSame);
    if (found == names_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - names_.begin());
}

Ref<GalleryPage> GalleryScreen::page() const { return index_ == 0 ? nullptr : pages_[index_ - 1]; }

void GalleryScreen::showTitles() {
    barTitle_->setText(isMenuShown_ ? "GXUIPickers" : names_[index_]);
    sidebar_->setShowsTitle(hasSidebar());
    if (const Ref<GalleryPage> shown = page()) shown->setShowsTitle(hasSidebar());
}

// Looks

void GalleryScreen::setStyle(UIUserInterfaceStyle style) {
    style_ = style;
    isStyleChosen_ = true;
    sidebar_->setStyle(style);
    if (const Ref<UIWindow> shownIn = window()) shownIn->setUserInterfaceStyle(style);
    if (styleAction_) styleAction_(style);
}

void GalleryScreen::didMoveToWindow() {
    UIView::didMoveToWindow();
    const Ref<UIWindow> shownIn = window();
    if (!shownIn) return;
    // Until the user has chosen, the look is the one that the system gave to the window.
    if (isStyleChosen_) {
        shownIn->setUserInterfaceStyle(style_);
    } else {
        style_ = shownIn->userInterfaceStyle();
        sidebar_->setStyle(style_);
    }
}

void GalleryScreen::setTextScale(double scale) {
    GXStyleSheet::globalStyleSheet()->setTextScale(scale);
    for (const Ref<GalleryPage>& page : pages_) {
        if (page) page->renewPicker();
    }
    if (overview_) overview_->renewPickers();
}

// Layout

bool GalleryScreen::hasSidebar() const { return bounds().size.width >= GalleryTheme::sidebarBreakpoint; }

void GalleryScreen::setMenuShown(bool shown) {
    isMenuShown_ = shown;
    setNeedsLayout();
}

CGSize GalleryScreen::sizeThatFits(CGSize available) const {
    const bool isWide = available.width >= GalleryTheme::sidebarBreakpoint;
    const CGFloat width = isWide ? available.width - GalleryTheme::sidebarWidth : available.width;
    const CGFloat height = std::ceil(scroll_->content()->sizeThatFits({width, 0}).height);
    return {available.width, isWide ? height : height + GalleryTheme::barHeight};
}

void GalleryScreen::layoutSubviews() {
    UIView::layoutSubviews();
    const CGSize size = bounds().size;
    const bool isWide = hasSidebar();
    const bool isMenu = !isWide && isMenuShown_;
    const CGFloat x = isWide ? GalleryTheme::sidebarWidth : 0;
    const CGFloat y = isWide ? 0 : GalleryTheme::barHeight;
    const CGRect body = CGRectMake(x, y, size.width - x, std::max(0.0, size.height - y));

    showTitles();
    scroll_->setFrame(body);
    scroll_->setHidden(isMenu);
    sidebar_->setHidden(!isWide && !isMenu);
    sidebar_->setFrame(isWide ? CGRectMake(0, 0, x, size.height) : body);

    bar_->setHidden(isWide);
    bar_->setFrame(CGRectMake(0, 0, size.width, GalleryTheme::barHeight));
    constexpr CGFloat inset = 8;
    const CGFloat side = GalleryTheme::controlHeight;
    const CGFloat top = 0.5 * (GalleryTheme::barHeight - side);
    menuButton_->setFrame(CGRectMake(inset, top, side, side));
    styleButton_->setFrame(CGRectMake(size.width - inset - side, top, side, side));
    const CGFloat titleInset = inset + side + inset;
    barTitle_->setFrame(CGRectMake(titleInset, 0, std::max(0.0, size.width - 2 * titleInset), GalleryTheme::barHeight));
}

} // namespace gallery

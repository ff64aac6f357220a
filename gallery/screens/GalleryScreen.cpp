#include "GalleryScreen.h"

#include <algorithm>
#include <cmath>

#include "GalleryPages.h"
#include "GalleryTheme.h"
#include "Translations.h"
#include <GXUIPickers/UIKey.h>
#include <GXUIPickers/UIWindow.h>

using namespace gx;

namespace gallery {

bool GalleryScreen::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    setBackgroundColor(GalleryTheme::background());
    setTintColor(GalleryTheme::accent()); // Of every mark of the focus.
    const WeakRef<GalleryScreen> weak = refTo(this);

    settings_ = GallerySettings::current();
    descriptions_ = galleryPages();
    names_ = {"Add workout", "Settings", "All pickers"};
    for (const GalleryPageDescription& description : descriptions_) names_.push_back(description.name);
    pages_.resize(descriptions_.size());

    entry_ = create<GalleryEntry>(CGRectZero);
    scroll_ = create<GalleryScroll>(CGRectZero);
    sidebar_ = GallerySidebar::sidebarWithPages_show(names_, [weak](std::size_t page) {
        if (const auto screen = weak.lock()) screen->showPage(page);
    });
    bar_ = create<UIView>(CGRectZero);
    bar_->setBackgroundColor(GalleryTheme::sidebar());
    barTitle_ = create<UILabel>(CGRectZero);
    barTitle_->setFont(GalleryTheme::headingFont());
    barTitle_->setTextAlignment(NSTextAlignmentCenter);
    menuButton_ = GalleryButton::buttonWithTitle_sign(Translations::text("All pages"), GalleryButton::Sign::Menu);
    menuButton_->setAction([weak] {
        if (const auto screen = weak.lock()) screen->setMenuShown(!screen->isMenuShown());
    });
    styleButton_ = GalleryButton::buttonWithTitle_sign(Translations::text("Light or dark"), GalleryButton::Sign::Look);
    styleButton_->setAction([weak] {
        const auto screen = weak.lock();
        if (!screen) return;
        GallerySettings changed = screen->settings();
        changed.style = screen->style() == UIUserInterfaceStyle::Light ? UIUserInterfaceStyle::Dark : UIUserInterfaceStyle::Light;
        screen->setSettings(changed);
    });
    for (const Ref<UIView>& view : std::initializer_list<Ref<UIView>>{barTitle_, menuButton_, styleButton_}) bar_->addSubview(view);
    // In the order of Tab: the bar is above the page; what leads away from it comes after it.
    for (const Ref<UIView>& view : std::initializer_list<Ref<UIView>>{bar_, entry_, scroll_, sidebar_}) addSubview(view);
    showPage(entryPage);
    return true;
}

// Pages

void GalleryScreen::showPage(std::size_t index) {
    if (index >= names_.size()) return;
    index_ = index;
    isMenuShown_ = false;
    sidebar_->setChosenPage(index);
    if (index != entryPage) {
        const Ref<UIView> content = contentOfPage(index);
        if (content != scroll_->content()) scroll_->setContent(content);
    }
    showTitles();
    setNeedsLayout();
}

Ref<UIView> GalleryScreen::contentOfPage(std::size_t index) {
    const WeakRef<GalleryScreen> weak = refTo(this);
    if (index == settingsPage) {
        if (!settingsPage_) {
            settingsPage_ = GallerySettingsPage::pageWithSettings_changed(settings_, [weak](const GallerySettings& settings) {
                if (const auto screen = weak.lock()) screen->setSettings(settings);
            });
        }
        return settingsPage_;
    }
    if (index == overviewPage) {
        if (!overview_) {
            overview_ = GalleryOverview::overviewOfPages_open(descriptions_, [weak](std::size_t page) {
                if (const auto screen = weak.lock()) screen->showPage(firstPickerPage + page);
            });
        }
        return overview_;
    }
    Ref<GalleryPage>& page = pages_[index - firstPickerPage];
    if (!page) page = GalleryPage::pageWithDescription(descriptions_[index - firstPickerPage]);
    return page;
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

Ref<GalleryPage> GalleryScreen::page() const { return index_ < firstPickerPage ? nullptr : pages_[index_ - firstPickerPage]; }

void GalleryScreen::showTitles() {
    barTitle_->setText(isMenuShown_ ? "GXUIPickers" : Translations::text(names_[index_]));
    sidebar_->setShowsTitle(hasSidebar());
    entry_->setShowsTitle(hasSidebar());
    if (settingsPage_) settingsPage_->setShowsTitle(hasSidebar());
    if (const Ref<GalleryPage> shown = page()) shown->setShowsTitle(hasSidebar());
}

// Settings

void GalleryScreen::setSettings(const GallerySettings& settings) {
    if (settings == settings_) return;
    const Ref<GalleryScreen> keep = refTo(this);
    const GallerySettings before = settings_;
    settings_ = settings;
    // A wheel that still spins lands first, and in the old units.
    entry_->settleWheels();
    settings.apply();
    entry_->setSettings(settings);
    if (settingsPage_) settingsPage_->setSettings(settings);
    if (settings.style != before.style) showStyle();
    showEase();
    if (settings.textScale != before.textScale || settings.language != before.language ||
        settings.decimalSeparator != before.decimalSeparator) {
        for (const Ref<GalleryPage>& page : pages_) {
            if (page) page->renewPicker();
        }
        if (overview_) overview_->renewPickers();
    }
    sidebar_->showNames();
    menuButton_->setTitle(Translations::text("All pages"));
    styleButton_->setTitle(Translations::text("Light or dark"));
    showTitles();
    setNeedsLayout();
}

UIUserInterfaceStyle GalleryScreen::style() const {
    const Ref<UIWindow> shownIn = window();
    return settings_.style.value_or(shownIn ? shownIn->userInterfaceStyle() : UIUserInterfaceStyle::Light);
}

void GalleryScreen::showStyle() {
    if (const Ref<UIWindow> shownIn = window(); shownIn && settings_.style) shownIn->setUserInterfaceStyle(*settings_.style);
    if (styleAction_) styleAction_(settings_.style);
}

void GalleryScreen::showEase() {
    const Ref<UIWindow> shownIn = window();
    if (!shownIn) return;
    shownIn->setAccessibilityContrast(settings_.contrast);
    shownIn->setReducesMotion(settings_.reducesMotion);
}

void GalleryScreen::didMoveToWindow() {
    UIView::didMoveToWindow();
    if (!window()) return;
    showStyle();
    showEase();
}

// Layout

bool GalleryScreen::hasSidebar() const { return bounds().size.width >= GalleryTheme::sidebarBreakpoint; }

void GalleryScreen::setMenuShown(bool shown) {
    isMenuShown_ = shown;
    setNeedsLayout();
}

void GalleryScreen::takeFocusFromMenu() {
    const Ref<UIWindow> shownIn = window();
    const Ref<UIView> first = shownIn ? shownIn->firstResponder() : nullptr;
    if (first && first->isDescendantOfView(sidebar_)) menuButton_->becomeFirstResponder();
}

bool GalleryScreen::keyPressed(const UIKey& key) {
    if (key.code != UIKey::Code::Escape || key.isCommand() || hasSidebar() || !isMenuShown_) return UIView::keyPressed(key);
    setMenuShown(false);
    return true;
}

CGSize GalleryScreen::sizeThatFits(CGSize available) const {
    const bool isWide = available.width >= GalleryTheme::sidebarBreakpoint;
    const CGFloat width = isWide ? available.width - GalleryTheme::sidebarWidth : available.width;
    if (index_ == entryPage) return available;
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
    scroll_->setHidden(isMenu || index_ == entryPage);
    entry_->setFrame(body);
    entry_->setHidden(isMenu || index_ != entryPage);
    bar_->setHidden(isWide);
    const bool hidesSidebar = !isWide && !isMenu;
    if (hidesSidebar) takeFocusFromMenu();
    sidebar_->setHidden(hidesSidebar);
    sidebar_->setFrame(isWide ? CGRectMake(0, 0, x, size.height) : body);

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

#include "MainScreen.h"

#include <algorithm>
#include <cmath>

#include "AllPickerPages.h"
#include "ReadingDirection.h"
#include "Theme.h"
#include "Translations.h"
#include <GXUIPickers/NSRunLoop.h>
#include <GXUIPickers/UIKey.h>
#include <GXUIPickers/UIWindow.h>

using namespace gx;

namespace gallery {

bool MainScreen::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    setBackgroundColor(Theme::background());
    setTintColor(Theme::accent()); // The colour of every focus outline.
    const WeakRef<MainScreen> weak = refTo(this);

    settings_ = Settings::current();
    descriptions_ = allPickerPages();
    names_ = {"Add workout", "Settings", "All pickers"};
    for (const PickerPageDescription& description : descriptions_) names_.push_back(description.name);
    pages_.resize(descriptions_.size());

    entry_ = create<EntryScreen>(CGRectZero);
    scroll_ = create<ContentScrollView>(CGRectZero);
    sidebar_ = Sidebar::sidebarWithPages_show(names_, [weak](std::size_t page) {
        if (const auto screen = weak.lock()) screen->showPage(page);
    });
    makeBar();
    // In the order of Tab: the bar above the page, the page, and then the list of the other pages.
    for (const Ref<UIView>& view : std::initializer_list<Ref<UIView>>{bar_, entry_, scroll_, sidebar_}) addSubview(view);
    showPage(entryPage);
    return true;
}

void MainScreen::makeBar() {
    const WeakRef<MainScreen> weak = refTo(this);
    bar_ = create<UIView>(CGRectZero);
    bar_->setBackgroundColor(Theme::sidebar());
    barTitle_ = Paragraph::paragraphWithStyle_color(Theme::TextStyle::Heading, Theme::text());
    barTitle_->setTextAlignment(NSTextAlignmentCenter);
    barTitle_->setAccessibilityRole(UIAccessibilityRole::Heading);
    menuButton_ = Button::buttonWithTitle_sign(Translations::text("All pages"), Button::Sign::Menu);
    menuButton_->setAction([weak] {
        if (const auto screen = weak.lock()) screen->setMenuShown(!screen->isMenuShown());
    });
    styleButton_ = Button::buttonWithTitle_sign(Translations::text("Light or dark"), Button::Sign::Look);
    styleButton_->setAction([weak] {
        const auto screen = weak.lock();
        if (!screen) return;
        Settings changed = screen->settings();
        changed.style = screen->style() == UIUserInterfaceStyle::Light ? UIUserInterfaceStyle::Dark : UIUserInterfaceStyle::Light;
        screen->setSettings(changed);
    });
    styleButton_->setAccessibilityDetail([weak] {
        const auto screen = weak.lock();
        return Translations::text(screen && screen->style() == UIUserInterfaceStyle::Dark ? "Dark" : "Light");
    });
    for (const Ref<UIView>& view : std::initializer_list<Ref<UIView>>{barTitle_, menuButton_, styleButton_}) bar_->addSubview(view);
}

// Pages

void MainScreen::showPage(std::size_t index) {
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
    flashIndicatorLater();
}

void MainScreen::flashIndicatorLater() {
    NSRunLoop::mainRunLoop()->performBlock([weak = WeakRef<MainScreen>(refTo(this))] {
        const auto screen = weak.lock();
        if (!screen || !screen->window()) return;
        screen->layoutIfNeeded(); // How long the page is.
        const Ref<UIScrollView> shown = screen->pageIndex() == entryPage ? Ref<UIScrollView>(screen->entry()->table()) : screen->scroll();
        shown->flashScrollIndicators();
    });
}

Ref<UIView> MainScreen::contentOfPage(std::size_t index) {
    const WeakRef<MainScreen> weak = refTo(this);
    if (index == settingsPage) {
        if (!settingsPage_) {
            settingsPage_ = SettingsScreen::pageWithSettings_changed(settings_, [weak](const Settings& settings) {
                if (const auto screen = weak.lock()) screen->setSettings(settings);
            });
        }
        return settingsPage_;
    }
    if (index == overviewPage) {
        if (!overview_) {
            overview_ = OverviewScreen::overviewOfPages_open(descriptions_, [weak](std::size_t page) {
                if (const auto screen = weak.lock()) screen->showPage(firstPickerPage + page);
            });
        }
        return overview_;
    }
    Ref<PickerPage>& page = pages_[index - firstPickerPage];
    if (!page) page = PickerPage::pageWithDescription(descriptions_[index - firstPickerPage]);
    return page;
}

std::optional<std::size_t> MainScreen::indexOfPage(const std::string& name) const {
    // The names are ASCII.
    const auto lower = [](char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; };
    const auto isSame = [&](const std::string& other) {
        return std::equal(name.begin(), name.end(), other.begin(), other.end(), [&](char a, char b) { return lower(a) == lower(b); });
    };
    const auto found = std::find_if(names_.begin(), names_.end(), isSame);
    if (found == names_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - names_.begin());
}

Ref<PickerPage> MainScreen::page() const { return index_ < firstPickerPage ? nullptr : pages_[index_ - firstPickerPage]; }

void MainScreen::showTitles() {
    barTitle_->setText(isMenuShown_ ? "GXUIPickers" : Translations::text(names_[index_]));
    menuButton_->setAccessibilityExpanded(isMenuShown_);
    sidebar_->setShowsTitle(hasSidebar());
    entry_->setShowsTitle(hasSidebar());
    if (settingsPage_) settingsPage_->setShowsTitle(hasSidebar());
    if (const Ref<PickerPage> shown = page()) {
        shown->setShowsTitle(hasSidebar());
        shown->setShowsPickerBeside(showsPickerBeside());
    }
}

// Settings

void MainScreen::setSettings(const Settings& settings) {
    if (settings == settings_) return;
    const Ref<MainScreen> keep = refTo(this);
    const Settings before = settings_;
    settings_ = settings;
    // A spin ends first, in the old units.
    entry_->finishSpins();
    settings.apply();
    entry_->setSettings(settings);
    if (settingsPage_) settingsPage_->setSettings(settings);
    if (settings.style != before.style) showStyle();
    applyToWindow();
    if (settings.textScale != before.textScale || settings.language != before.language ||
        settings.decimalSeparator != before.decimalSeparator) {
        for (const Ref<PickerPage>& page : pages_) {
            if (page) page->renewPicker();
        }
        if (overview_) overview_->renewPickers();
        Theme::layOutAgain(keep);
    }
    sidebar_->showNames();
    menuButton_->setTitle(Translations::text("All pages"));
    styleButton_->setTitle(Translations::text("Light or dark"));
    showTitles();
    setNeedsLayout();
}

UIUserInterfaceStyle MainScreen::style() const {
    const Ref<UIWindow> shownIn = window();
    return settings_.style.value_or(shownIn ? shownIn->userInterfaceStyle() : UIUserInterfaceStyle::Light);
}

void MainScreen::showStyle() {
    if (const Ref<UIWindow> shownIn = window(); shownIn && settings_.style) shownIn->setUserInterfaceStyle(*settings_.style);
    if (styleAction_) styleAction_(settings_.style);
}

void MainScreen::applyToWindow() {
    const Ref<UIWindow> shownIn = window();
    if (!shownIn) return;
    shownIn->setAccessibilityContrast(settings_.contrast);
    shownIn->setReducesMotion(settings_.reducesMotion);
    if (settings_.clicks) shownIn->setFeedbackEnabled(*settings_.clicks);
}

void MainScreen::didMoveToWindow() {
    UIView::didMoveToWindow();
    if (!window()) return;
    showStyle();
    applyToWindow();
    flashIndicatorLater();
}

// Layout

bool MainScreen::hasSidebar() const { return bounds().size.width >= Theme::sidebarBreakpoint(); }

bool MainScreen::showsPickerBeside() const {
    const CGFloat width = bounds().size.width;
    // A window that becomes wide enough for the sidebar keeps the picker beside its list.
    const CGFloat narrowestPage = Theme::sidebarBreakpoint() - Theme::sidebarWidth();
    return width >= Theme::sideBySideBreakpoint && width - sidebarWidthInWidth(width) >= narrowestPage;
}

void MainScreen::setMenuShown(bool shown) {
    isMenuShown_ = shown;
    setNeedsLayout();
}

void MainScreen::takeFocusFromMenu() {
    const Ref<UIWindow> shownIn = window();
    const Ref<UIView> first = shownIn ? shownIn->firstResponder() : nullptr;
    if (first && first->isDescendantOfView(sidebar_)) menuButton_->becomeFirstResponder();
}

bool MainScreen::keyPressed(const UIKey& key) {
    if (key.code != UIKey::Code::Escape || key.isCommand() || hasSidebar() || !isMenuShown_) return UIView::keyPressed(key);
    setMenuShown(false);
    return true;
}

CGFloat MainScreen::sidebarWidthInWidth(CGFloat width) { return width >= Theme::sidebarBreakpoint() ? Theme::sidebarWidth() : 0; }

/// The parts of the bar, from the leading edge.
struct MainScreen::BarFrames {
    CGRect menu;
    CGRect style;
    CGRect title;
    CGFloat height = 0;
};

CGSize MainScreen::sizeThatFits(CGSize available) const {
    const CGFloat sidebar = sidebarWidthInWidth(available.width);
    if (index_ == entryPage) return available;
    const CGFloat height = std::ceil(scroll_->content()->sizeThatFits({available.width - sidebar, 0}).height);
    return {available.width, sidebar > 0 ? height : height + barFramesForWidth(available.width).height};
}

MainScreen::BarFrames MainScreen::barFramesForWidth(CGFloat width) const {
    constexpr CGFloat inset = 8;
    const CGSize button = menuButton_->sizeThatFits({});
    const CGFloat bar = std::max(Theme::barHeight(), button.height + 2 * inset);
    const CGFloat top = 0.5 * (bar - button.height);
    const CGFloat between = inset + button.width + inset;
    BarFrames frames;
    frames.menu = CGRectMake(inset, top, button.width, button.height);
    frames.style = CGRectMake(width - inset - button.width, top, button.width, button.height);
    frames.title = CGRectMake(between, 0, std::max(0.0, width - 2 * between), bar);
    frames.height = bar;
    if (barTitle_->widthInOneLine() <= frames.title.size.width) return frames;
    // Large titles have their lines below the buttons.
    const CGFloat room = std::max(0.0, width - 2 * Theme::cardPadding);
    frames.title = CGRectMake(Theme::cardPadding, bar, room, std::ceil(barTitle_->sizeThatFits({room, 0}).height));
    frames.height = CGRectGetMaxY(frames.title) + inset;
    return frames;
}

void MainScreen::layoutSubviews() {
    UIView::layoutSubviews();
    const CGSize size = bounds().size;
    const bool isWide = hasSidebar();
    const bool isMenu = !isWide && isMenuShown_;
    showTitles();
    const BarFrames bar = barFramesForWidth(size.width);
    const CGFloat x = sidebarWidthInWidth(size.width);
    const CGFloat y = isWide ? 0 : bar.height;
    const CGRect body = ReadingDirection::frame(CGRectMake(x, y, size.width - x, std::max(0.0, size.height - y)), size.width);

    scroll_->setFrame(body);
    scroll_->setHidden(isMenu || index_ == entryPage);
    entry_->setShowsPickerBeside(showsPickerBeside());
    entry_->setFrame(body);
    entry_->setHidden(isMenu || index_ != entryPage);
    bar_->setHidden(isWide);
    const bool hidesSidebar = !isWide && !isMenu;
    if (hidesSidebar) takeFocusFromMenu();
    sidebar_->setHidden(hidesSidebar);
    sidebar_->setFrame(isWide ? ReadingDirection::frame(CGRectMake(0, 0, x, size.height), size.width) : body);

    bar_->setFrame(CGRectMake(0, 0, size.width, bar.height));
    menuButton_->setFrame(ReadingDirection::frame(bar.menu, size.width));
    styleButton_->setFrame(ReadingDirection::frame(bar.style, size.width));
    barTitle_->setFrame(ReadingDirection::frame(bar.title, size.width));
}

} // namespace gallery

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ContentScrollView.h"
#include "EntryScreen.h"
#include "OverviewScreen.h"
#include "PickerPage.h"
#include "SettingsScreen.h"
#include "Sidebar.h"

namespace gallery {

/// The whole window of the gallery.
///
/// - In a wide window the list of pages is beside the page. Else a bar above the page has its
///   title, and a button that shows the list instead of the page.
/// - From `Theme::sideBySideBreakpoint` on, a page shows a picker beside what belongs to it, unless
///   the texts are so large that the page is narrower than where the list of pages first appears.
/// - The first pages are the application: "Add workout" and "Settings". Then come the overview of
///   all pickers and those of `allPickerPages()`, in order.
/// - Each page is made when it is first shown, and keeps its state.
class MainScreen : public gx::UIView {
public:
    static constexpr std::size_t entryPage = 0;
    static constexpr std::size_t settingsPage = 1;
    static constexpr std::size_t overviewPage = 2;
    static constexpr std::size_t firstPickerPage = 3;

    bool initWithFrame(gx::CGRect frame) override;

    /// The English names of all pages.
    const std::vector<std::string>& pageNames() const { return names_; }
    std::size_t pageIndex() const { return index_; }
    /// Ignored for a page that does not exist. Closes the list if that is shown instead of the
    /// page.
    void showPage(std::size_t index);
    /// The page of that name, in any case; nothing if there is none.
    std::optional<std::size_t> indexOfPage(const std::string& name) const;
    /// The page of a picker; empty while another page is shown.
    gx::Ref<PickerPage> page() const;
    const gx::Ref<OverviewScreen>& overview() const { return overview_; }

    const gx::Ref<EntryScreen>& entry() const { return entry_; }
    const gx::Ref<SettingsScreen>& settingsControls() const { return settingsPage_; }

    const Settings& settings() const { return settings_; }
    /// Applies the settings at once to all pages. Pickers are made again, with their values, for
    /// settings that they read only when they are made.
    void setSettings(const Settings& settings);
    /// The look in force, which is the window's until the user has chosen one.
    gx::UIUserInterfaceStyle style() const;
    /// Called after each choice of a look, for a host that sets the look of its window itself.
    /// Without a value the look follows the system.
    void setStyleAction(std::function<void(std::optional<gx::UIUserInterfaceStyle> style)> action) { styleAction_ = std::move(action); }

    bool hasSidebar() const;
    bool isMenuShown() const { return isMenuShown_; }
    void setMenuShown(bool shown);
    const gx::Ref<Sidebar>& sidebar() const { return sidebar_; }
    const gx::Ref<ContentScrollView>& scroll() const { return scroll_; }
    const gx::Ref<Button>& menuButton() const { return menuButton_; }
    const gx::Ref<Button>& styleButton() const { return styleButton_; }

    /// As wide as offered, and as high as the whole page.
    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;
    void didMoveToWindow() override;
    /// Escape closes the list if that is shown instead of the page.
    bool keyPressed(const gx::UIKey& key) override;

private:
    struct BarFrames;
    BarFrames barFramesForWidth(gx::CGFloat width) const;
    static gx::CGFloat sidebarWidthInWidth(gx::CGFloat width);
    bool showsPickerBeside() const;
    gx::Ref<gx::UIView> contentOfPage(std::size_t index);
    void makeBar();
    void showTitles();
    void takeFocusFromMenu();
    /// Shows for a moment that a page that has come into sight is longer than the window.
    void flashIndicatorLater();
    void showStyle();
    /// Contrast, motion and clicks.
    void applyToWindow();

    std::vector<PickerPageDescription> descriptions_;
    std::vector<std::string> names_;
    std::size_t index_ = 0;
    std::vector<gx::Ref<PickerPage>> pages_; // Empty for pages that were not shown yet.
    gx::Ref<EntryScreen> entry_;
    gx::Ref<SettingsScreen> settingsPage_;
    gx::Ref<OverviewScreen> overview_;
    bool isMenuShown_ = false;
    Settings settings_;
    std::function<void(std::optional<gx::UIUserInterfaceStyle>)> styleAction_;

    gx::Ref<ContentScrollView> scroll_;
    gx::Ref<Sidebar> sidebar_;
    gx::Ref<gx::UIView> bar_;
    gx::Ref<Paragraph> barTitle_;
    gx::Ref<Button> menuButton_;
    gx::Ref<Button> styleButton_;
};

} // namespace gallery

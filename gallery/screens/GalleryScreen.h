#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "GalleryEntry.h"
#include "GalleryOverview.h"
#include "GalleryPage.h"
#include "GalleryScroll.h"
#include "GallerySettingsPage.h"
#include "GallerySidebar.h"

namespace gallery {

/// The whole window of the gallery. Where it is wide enough, the list of pages stands beside the page; else a bar above the page tells its
/// name and has a button that shows the list in the page's place.
///
/// The first pages are the application: "Add workout" and "Settings". Then come the overview of all pickers, and those of `galleryPages()`,
/// in order. Each is made when it is first shown and keeps its state.
class GalleryScreen : public gx::UIView {
public:
    static constexpr std::size_t entryPage = 0;
    static constexpr std::size_t settingsPage = 1;
    static constexpr std::size_t overviewPage = 2;
    static constexpr std::size_t firstPickerPage = 3;

    bool initWithFrame(gx::CGRect frame) override;

    /// The English names of all pages.
    const std::vector<std::string>& pageNames() const { return names_; }
    std::size_t pageIndex() const { return index_; }
    /// Ignored for a page that does not exist. Closes the list if that stands in the page's place.
    void showPage(std::size_t index);
    /// The page of that name, in any case; nothing if there is none.
    std::optional<std::size_t> indexOfPage(const std::string& name) const;
    /// The page of a picker; nothing on the overview.
    gx::Ref<GalleryPage> page() const;
    const gx::Ref<GalleryOverview>& overview() const { return overview_; }

    const gx::Ref<GalleryEntry>& entry() const { return entry_; }
    const gx::Ref<GallerySettingsPage>& settingsControls() const { return settingsPage_; }

    const GallerySettings& settings() const { return settings_; }
    /// Applies them at once, to all that is open: what a picker fixes when it is made is renewed by making it again, with its value.
    void setSettings(const GallerySettings& settings);
    /// The look in force, which is the system's until the user has chosen.
    gx::UIUserInterfaceStyle style() const;
    /// Called after each change of the look, for a host that keeps the look of its window itself; nothing for the system's.
    void setStyleAction(std::function<void(std::optional<gx::UIUserInterfaceStyle> style)> action) { styleAction_ = std::move(action); }

    bool hasSidebar() const;
    bool isMenuShown() const { return isMenuShown_; }
    void setMenuShown(bool shown);
    const gx::Ref<GallerySidebar>& sidebar() const { return sidebar_; }
    const gx::Ref<GalleryScroll>& scroll() const { return scroll_; }
    const gx::Ref<GalleryButton>& menuButton() const { return menuButton_; }
    const gx::Ref<GalleryButton>& styleButton() const { return styleButton_; }

    /// As wide as offered, and high enough to show all of the page.
    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;
    void didMoveToWindow() override;
    /// Escape closes the list where that stands in the page's place.
    bool keyPressed(const gx::UIKey& key) override;

private:
    gx::Ref<gx::UIView> contentOfPage(std::size_t index);
    void showTitles();
    void takeFocusFromMenu();
    void showStyle();
    void showEase();

    std::vector<GalleryPageDescription> descriptions_;
    std::vector<std::string> names_;
    std::size_t index_ = 0;
    std::vector<gx::Ref<GalleryPage>> pages_; // Empty where a page was not shown yet.
    gx::Ref<GalleryEntry> entry_;
    gx::Ref<GallerySettingsPage> settingsPage_;
    gx::Ref<GalleryOverview> overview_;
    bool isMenuShown_ = false;
    GallerySettings settings_;
    std::function<void(std::optional<gx::UIUserInterfaceStyle>)> styleAction_;

    gx::Ref<GalleryScroll> scroll_;
    gx::Ref<GallerySidebar> sidebar_;
    gx::Ref<gx::UIView> bar_;
    gx::Ref<gx::UILabel> barTitle_;
    gx::Ref<GalleryButton> menuButton_;
    gx::Ref<GalleryButton> styleButton_;
};

} // namespace gallery

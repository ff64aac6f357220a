#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "GalleryOverview.h"
#include "GalleryPage.h"
#include "GalleryScroll.h"
#include "GallerySidebar.h"

namespace gallery {

/// The whole window of the gallery. Where it is wide enough, the list of pages stands beside the page; else a bar above the page tells its
/// name and has a button that shows the list in the page's place.
///
/// Page 0 is the overview; the others are those of `galleryPages()`, in order. Each is made when it is first shown and keeps its state.
class GalleryScreen : public gx::UIView {
public:
    bool initWithFrame(gx::CGRect frame) override;

    /// The names of all pages.
    const std::vector<std::string>& pageNames() const { return names_; }
    std::size_t pageIndex() const { return index_; }
    /// Ignored for a page that does not exist. Closes the list if that stands in the page's place.
    void showPage(std::size_t index);
    /// The page of that name, in any case; nothing if there is none.
    std::optional<std::size_t> indexOfPage(const std::string& name) const;
    /// The page of a picker; nothing on the overview.
    gx::Ref<GalleryPage> page() const;
    const gx::Ref<GalleryOverview>& overview() const { return overview_; }

    gx::UIUserInterfaceStyle style() const { return style_; }
    /// Changes the look of the window, also of one that the screen comes into later.
    void setStyle(gx::UIUserInterfaceStyle style);
    /// Called after each `setStyle`, for a host that keeps the look of its window itself.
    void setStyleAction(std::function<void(gx::UIUserInterfaceStyle style)> action) { styleAction_ = std::move(action); }
    /// Of all pickers. Since a picker reads its row height when it is made, all are made anew.
    void setTextScale(double scale);

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

private:
    void showTitles();

    std::vector<GalleryPageDescription> descriptions_;
    std::vector<std::string> names_;
    std::size_t index_ = 0;
    std::vector<gx::Ref<GalleryPage>> pages_; // Empty where a page was not shown yet.
    gx::Ref<GalleryOverview> overview_;
    bool isMenuShown_ = false;
    gx::UIUserInterfaceStyle style_ = gx::UIUserInterfaceStyle::Light;
    bool isStyleChosen_ = false;
    std::function<void(gx::UIUserInterfaceStyle)> styleAction_;

    gx::Ref<GalleryScroll> scroll_;
    gx::Ref<GallerySidebar> sidebar_;
    gx::Ref<gx::UIView> bar_;
    gx::Ref<gx::UILabel> barTitle_;
    gx::Ref<GalleryButton> menuButton_;
    gx::Ref<GalleryButton> styleButton_;
};

} // namespace gallery

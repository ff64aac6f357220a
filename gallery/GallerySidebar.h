#pragma once

#include <functional>
#include <string>
#include <vector>

#include "GalleryButton.h"
#include "GalleryScroll.h"
#include "GallerySegments.h"
#include "UIColor.h"

namespace gallery {

/// The list of pages with the switches for look and text size below it: beside the page where there is room, else in its place.
class GallerySidebar : public gx::UIView {
public:
    /// What the sidebar asks of the window that it is part of.
    struct Actions {
        std::function<void(std::size_t page)> showPage;
        std::function<void(gx::UIUserInterfaceStyle style)> setStyle;
        std::function<void(double scale)> setTextScale;
    };
    static gx::Ref<GallerySidebar> sidebarWithPages_actions(const std::vector<std::string>& names, const Actions& actions);

    bool initWithFrame(gx::CGRect frame) override;

    const std::vector<gx::Ref<GalleryButton>>& rows() const { return rows_; }
    const gx::Ref<GallerySegments>& styleControl() const { return styleControl_; }
    const gx::Ref<GallerySegments>& textControl() const { return textControl_; }
    /// Without it where a bar above tells the name of the application.
    void setShowsTitle(bool shows);
    void setChosenPage(std::size_t page);
    void setStyle(gx::UIUserInterfaceStyle style);

    void layoutSubviews() override;
    void drawRect(gx::UIGraphicsContext& context, gx::CGRect rect) override;

private:
    gx::Ref<gx::UILabel> title_;
    gx::Ref<GalleryScroll> list_;
    std::vector<gx::Ref<GalleryButton>> rows_;
    std::size_t chosen_ = 0;
    gx::Ref<GallerySegments> styleControl_;
    gx::Ref<GallerySegments> textControl_;
};

} // namespace gallery

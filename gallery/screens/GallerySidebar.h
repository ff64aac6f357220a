#pragma once

#include <functional>
#include <string>
#include <vector>

#include "GalleryButton.h"
#include "GalleryScroll.h"

namespace gallery {

/// The list of pages: beside the page where there is room, else in its place.
class GallerySidebar : public gx::UIView {
public:
    /// By their English names. `show` is called with the number of the page whose row was tapped.
    static gx::Ref<GallerySidebar> sidebarWithPages_show(const std::vector<std::string>& names,
                                                         const std::function<void(std::size_t page)>& show);

    bool initWithFrame(gx::CGRect frame) override;

    const std::vector<gx::Ref<GalleryButton>>& rows() const { return rows_; }
    /// Without it where a bar above tells the name of the application.
    void setShowsTitle(bool shows);
    void setChosenPage(std::size_t page);
    /// Once more, in the language of now.
    void showNames();

    void layoutSubviews() override;
    void drawRect(gx::UIGraphicsContext& context, gx::CGRect rect) override;

private:
    gx::Ref<gx::UILabel> title_;
    gx::Ref<GalleryScroll> list_;
    std::vector<gx::Ref<GalleryButton>> rows_;
    std::vector<std::string> names_;
    std::size_t chosen_ = 0;
};

} // namespace gallery

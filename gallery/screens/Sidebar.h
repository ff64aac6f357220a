#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Button.h"
#include "ContentScrollView.h"

namespace gallery {

/// The list of pages, beside the page in a wide window and else instead of it.
class Sidebar : public gx::UIView {
public:
    /// Pages have their English names. `show` is called with the index of the page whose row was
    /// tapped.
    static gx::Ref<Sidebar> sidebarWithPages_show(const std::vector<std::string>& names, const std::function<void(std::size_t page)>& show);

    bool initWithFrame(gx::CGRect frame) override;

    const std::vector<gx::Ref<Button>>& rows() const { return rows_; }
    /// False where a bar above has the name of the application.
    void setShowsTitle(bool shows);
    void setChosenPage(std::size_t page);
    /// Shows the names again, in the current language.
    void showNames();

    void layoutSubviews() override;
    void drawRect(gx::UIGraphicsContext& context, gx::CGRect rect) override;

private:
    gx::CGFloat titleHeight() const;

    gx::Ref<Paragraph> title_;
    gx::Ref<ContentScrollView> list_;
    std::vector<gx::Ref<Button>> rows_;
    std::vector<std::string> names_;
    std::size_t chosen_ = 0;
};

} // namespace gallery

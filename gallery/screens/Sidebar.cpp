#include "Sidebar.h"

#include <algorithm>
#include <cmath>

#include "ReadingDirection.h"
#include "Theme.h"
#include "Translations.h"
#include <GXUIPickers/UIGraphicsContext.h>
#include <GXUIPickers/UIKey.h>

using namespace gx;

namespace gallery {

namespace {

constexpr CGFloat sidebarInset = 12;

/// Rows one below the other, each as high as its text needs.
class SidebarList : public UIView {
public:
    CGSize sizeThatFits(CGSize available) const override {
        CGFloat height = sidebarInset;
        for (const Ref<UIView>& row : subviews()) height += row->sizeThatFits({widthOfRows(available.width), 0}).height;
        return {available.width, height};
    }
    void layoutSubviews() override {
        UIView::layoutSubviews();
        const CGFloat width = widthOfRows(bounds().size.width);
        CGFloat y = 0;
        for (const Ref<UIView>& row : subviews()) {
            const CGFloat height = row->sizeThatFits({width, 0}).height;
            row->setFrame(CGRectMake(sidebarInset, y, width, height));
            y += height;
        }
    }
    /// Up and down go from row to row, home and end to the first and the last.
    bool keyPressed(const UIKey& key) override {
        const auto focused =
            std::find_if(subviews().begin(), subviews().end(), [](const Ref<UIView>& row) { return row->isFirstResponder(); });
        if (focused == subviews().end() || key.isCommand()) return UIView::keyPressed(key);
        Ref<UIView> next = *focused;
        switch (key.code) {
        case UIKey::Code::Up:
            if (focused != subviews().begin()) next = *(focused - 1);
            break;
        case UIKey::Code::Down:
            if (focused + 1 != subviews().end()) next = *(focused + 1);
            break;
        case UIKey::Code::Home:
            next = subviews().front();
            break;
        case UIKey::Code::End:
            next = subviews().back();
            break;
        default:
            return UIView::keyPressed(key);
        }
        next->becomeFirstResponder();
        next->revealDescendant(next->bounds());
        return true;
    }

private:
    static CGFloat widthOfRows(CGFloat width) { return std::max(0.0, width - 2 * sidebarInset); }
};

} // namespace

Ref<Sidebar> Sidebar::sidebarWithPages_show(const std::vector<std::string>& names, const std::function<void(std::size_t page)>& show) {
    auto sidebar = create<Sidebar>(CGRectZero);
    sidebar->names_ = names;
    const auto list = create<SidebarList>(CGRectZero);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto row = Button::buttonWithTitle_style(Translations::text(names[i]), Button::Style::Row);
        row->setAction([show, i] { show(i); });
        sidebar->rows_.push_back(row);
        list->addSubview(row);
    }
    list->setAccessibilityRole(UIAccessibilityRole::RadioGroup);
    sidebar->list_->setContent(list);
    sidebar->showNames();
    return sidebar;
}

bool Sidebar::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    setBackgroundColor(Theme::sidebar());
    title_ = Paragraph::paragraphWithStyle_color(Theme::TextStyle::Heading, Theme::text());
    title_->setText("GXUIPickers");
    list_ = create<ContentScrollView>(CGRectZero);
    for (const Ref<UIView>& view : std::initializer_list<Ref<UIView>>{title_, list_}) addSubview(view);
    return true;
}

void Sidebar::setShowsTitle(bool shows) {
    if (shows == !title_->isHidden()) return;
    title_->setHidden(!shows);
    setNeedsLayout();
}

void Sidebar::setChosenPage(std::size_t page) {
    for (std::size_t i = 0; i < rows_.size(); ++i) rows_[i]->setChosen(i == page);
    chosen_ = page;
    setNeedsLayout();
    Theme::layOutAgain(list_); // The strong text of the chosen row may need another line.
}

void Sidebar::showNames() {
    list_->content()->setAccessibilityLabel(Translations::text("All pages"));
    for (std::size_t i = 0; i < rows_.size(); ++i) rows_[i]->setTitle(Translations::text(names_[i]));
}

CGFloat Sidebar::titleHeight() const {
    const CGFloat width = std::max(0.0, bounds().size.width - 4 * sidebarInset);
    return std::max(Theme::barHeight(), std::ceil(title_->sizeThatFits({width, 0}).height));
}

void Sidebar::layoutSubviews() {
    UIView::layoutSubviews();
    const CGSize size = bounds().size;
    title_->setFrame(CGRectMake(2 * sidebarInset, 0, std::max(0.0, size.width - 4 * sidebarInset), titleHeight()));
    const CGFloat listY = title_->isHidden() ? sidebarInset : titleHeight();
    list_->setFrame(CGRectMake(0, listY, size.width, std::max(0.0, size.height - listY)));
    list_->layoutIfNeeded();
    // The chosen row stays visible.
    if (chosen_ >= rows_.size()) return;
    list_->content()->layoutIfNeeded();
    const CGRect row = rows_[chosen_]->frame();
    const CGFloat top = CGRectGetMinY(row);
    const CGFloat lowest = CGRectGetMaxY(row) - list_->bounds().size.height;
    if (list_->offset() < lowest) list_->setOffset(lowest);
    if (list_->offset() > top) list_->setOffset(top);
}

void Sidebar::drawRect(UIGraphicsContext& context, CGRect rect) {
    // At the edge beside the page.
    const CGRect line = CGRectMake(rect.size.width - 1, 0, 1, rect.size.height);
    context.fillRect(ReadingDirection::frame(line, rect.size.width), Theme::hairline());
}

} // namespace gallery

#pragma once

#include <functional>
#include <vector>

#include "Button.h"
#include "PickerPage.h"

namespace gallery {

/// All pickers at a glance: a card each, as many side by side as there is room for.
class OverviewScreen : public gx::UIView {
public:
    /// `open` is called with the index of the page whose heading was tapped.
    static gx::Ref<OverviewScreen> overviewOfPages_open(std::vector<PickerPageDescription> pages,
                                                        const std::function<void(std::size_t)>& open);

    std::size_t count() const { return cards_.size(); }
    const gx::Ref<gx::UIView>& card(std::size_t index) const { return cards_[index].card; }
    const gx::Ref<Button>& heading(std::size_t index) const { return cards_[index].heading; }
    const PickerDemo& demo(std::size_t index) const { return cards_[index].demo; }

    /// Makes all pickers again, with their values.
    void renewPickers();

    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;

private:
    struct Card {
        PickerPageDescription page;
        PickerDemo demo;
        gx::Ref<gx::UIView> card;
        gx::Ref<Button> heading;
    };
    struct Grid;
    static void nameHeading(const Card& card);
    static PickerDemo makeDemo(const PickerPageDescription& page);

    std::vector<Card> cards_;
};

} // namespace gallery

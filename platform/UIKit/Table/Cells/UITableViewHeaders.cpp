#include "UITableViewHeaders.h"

#include <algorithm>

#include "UITableViewCell.h"

namespace gx {

namespace {

// Chosen: smaller than the rows' text, which is what a user looks for.
constexpr CGFloat usualFontSize = 13;

Ref<UILabel> makeHeader() {
    auto label = create<UILabel>();
    label->setTextAlignment(NSTextAlignmentNatural);
    label->setTextColor(UIColor::secondaryLabelColor());
    return label;
}

} // namespace

std::optional<NSInteger> UITableViewHeaders::sectionOf(const Ref<UIView>& view) const {
    const auto header = std::find_if(shown_.begin(), shown_.end(), [&view](const Header& entry) { return entry.view == view; });
    return header != shown_.end() ? std::optional(header->section) : std::nullopt;
}

void UITableViewHeaders::hide(std::size_t index) {
    Header hidden = std::move(shown_[index]);
    shown_.erase(shown_.begin() + static_cast<std::ptrdiff_t>(index));
    if (!hidden.label) return hidden.view->removeFromSuperview();
    hidden.label->setHidden(true);
    spare_.push_back(std::move(hidden.label));
}

void UITableViewHeaders::hideAll() {
    while (!shown_.empty()) hide(shown_.size() - 1);
}

UITableViewHeaders::Header& UITableViewHeaders::headerOfSection(UIView& table, NSInteger section, Client& client) {
    const auto header = std::find_if(shown_.begin(), shown_.end(), [section](const Header& entry) { return entry.section == section; });
    if (header != shown_.end()) return *header;
    if (Ref<UIView> view = client.headerView(section)) {
        table.insertSubview_atIndex(view, 0);
        shown_.push_back({section, std::move(view), nullptr});
        return shown_.back();
    }
    Ref<UILabel> label = spare_.empty() ? makeHeader() : std::move(spare_.back());
    if (!spare_.empty()) spare_.pop_back();
    if (!label->superview()) table.insertSubview_atIndex(label, 0);
    label->setHidden(false);
    shown_.push_back({section, label, label});
    return shown_.back();
}

void UITableViewHeaders::show(UIView& table, const UITableViewRows& rows, UITableViewRows::Range range, Client& client) {
    for (std::size_t i = shown_.size(); i-- > 0;) {
        const UITableViewRows::Span span = rows.spanOfHeader(shown_[i].section);
        if (span.height <= 0 || !range.meets(span)) hide(i);
    }
    static const Ref<UIFont> usualFont = UIFont::systemFontOfSize_weight(usualFontSize, UIFontWeight::Medium);
    const Ref<UIFont> font = client.headerFont();
    const Ref<UIFont>& shownFont = font ? font : usualFont;
    const CGFloat width = table.bounds().size.width;
    const CGFloat inset = std::min(UITableViewCell::labelInset, 0.5 * width);
    for (NSInteger section = rows.firstSectionBelow(range.top); section < rows.sectionCount(); ++section) {
        const UITableViewRows::Span span = rows.spanOfHeader(section);
        if (span.top >= range.bottom) break;
        if (span.height <= 0 || span.bottom() <= range.top) continue;
        const Header& header = headerOfSection(table, section, client);
        if (const Ref<UILabel>& label = header.label) {
            if (label->font() != shownFont) label->setFont(shownFont);
            if (label->text() != rows.title(section)) label->setText(rows.title(section));
        }
        header.view->setFrame(CGRectInset(CGRectMake(0, span.top, width, span.height), inset, 0));
    }
}

} // namespace gx

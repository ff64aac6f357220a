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
    const auto header = std::find_if(shown_.begin(), shown_.end(), [&view](const Header& entry) { return entry.label == view; });
    return header != shown_.end() ? std::optional(header->section) : std::nullopt;
}

void UITableViewHeaders::hide(std::size_t index) {
    shown_[index].label->setHidden(true);
    spare_.push_back(std::move(shown_[index].label));
    shown_.erase(shown_.begin() + static_cast<std::ptrdiff_t>(index));
}

void UITableViewHeaders::hideAll() {
    while (!shown_.empty()) hide(shown_.size() - 1);
}

UITableViewHeaders::Header& UITableViewHeaders::headerOfSection(UIView& table, NSInteger section) {
    const auto header = std::find_if(shown_.begin(), shown_.end(), [section](const Header& entry) { return entry.section == section; });
    if (header != shown_.end()) return *header;
    Ref<UILabel> label = spare_.empty() ? makeHeader() : std::move(spare_.back());
    if (!spare_.empty()) spare_.pop_back();
    if (!label->superview()) table.insertSubview_atIndex(label, 0);
    label->setHidden(false);
    shown_.push_back({section, std::move(label)});
    return shown_.back();
}

void UITableViewHeaders::show(UIView& table, const UITableViewRows& rows, UITableViewRows::Range range, const Ref<UIFont>& font) {
    for (std::size_t i = shown_.size(); i-- > 0;) {
        const UITableViewRows::Span span = rows.spanOfHeader(shown_[i].section);
        if (span.height <= 0 || !range.meets(span)) hide(i);
    }
    static const Ref<UIFont> usualFont = UIFont::systemFontOfSize_weight(usualFontSize, UIFontWeight::Medium);
    const Ref<UIFont>& shownFont = font ? font : usualFont;
    const CGFloat width = table.bounds().size.width;
    const CGFloat inset = std::min(UITableViewCell::labelInset, 0.5 * width);
    for (NSInteger section = rows.firstSectionBelow(range.top); section < rows.sectionCount(); ++section) {
        const UITableViewRows::Span span = rows.spanOfHeader(section);
        if (span.top >= range.bottom) break;
        if (span.height <= 0 || span.bottom() <= range.top) continue;
        const Ref<UILabel> label = headerOfSection(table, section).label;
        if (label->font() != shownFont) label->setFont(shownFont);
        if (label->text() != rows.title(section)) label->setText(rows.title(section));
        label->setFrame(CGRectInset(CGRectMake(0, span.top, width, span.height), inset, 0));
    }
}

} // namespace gx

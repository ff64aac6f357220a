#include "UITableViewChange.h"

#include <algorithm>
#include <cmath>

namespace gx {

std::optional<UITableViewChange> UITableViewChange::change(Kind kind, std::vector<NSIndexPath> paths, const UITableViewRows& before,
                                                           const UITableViewRows& after) {
    std::sort(paths.begin(), paths.end());
    const bool isInsertion = kind == Kind::Insertion;
    const UITableViewRows& more = isInsertion ? after : before;
    const UITableViewRows& less = isInsertion ? before : after;
    const bool isTwice = std::adjacent_find(paths.begin(), paths.end()) != paths.end();
    if (isTwice || more.sectionCount() != less.sectionCount()) return std::nullopt;

    UITableViewChange change;
    change.kind_ = kind;
    change.steps_.reserve(paths.size());
    auto path = paths.begin();
    CGFloat height = 0;
    for (NSInteger section = 0; section < more.sectionCount(); ++section) {
        NSInteger count = 0;
        for (; path != paths.end() && path->section <= section; ++path, ++count) {
            if (!more.exists(*path)) return std::nullopt;
            const UITableViewRows::Span span = more.spanOfRow(*path);
            change.steps_.push_back({*path, isInsertion ? span.middle() : span.top - height, span.height, height});
            height += span.height;
        }
        if (more.rowCount(section) - less.rowCount(section) != count) return std::nullopt;
    }
    if (path != paths.end()) return std::nullopt;
    return change;
}

std::vector<UITableViewChange::Step>::const_iterator UITableViewChange::firstStepFrom(NSIndexPath path) const {
    return std::lower_bound(steps_.begin(), steps_.end(), path, [](const Step& step, NSIndexPath p) { return step.path < p; });
}

std::optional<NSIndexPath> UITableViewChange::pathAfter(NSIndexPath before) const {
    if (kind_ == Kind::Removal) {
        const auto own = firstStepFrom(before);
        if (own != steps_.end() && own->path == before) return std::nullopt;
    }
    return placeAfter(before);
}

NSIndexPath UITableViewChange::placeAfter(NSIndexPath before) const {
    auto step = firstStepFrom({before.section, 0});
    if (kind_ == Kind::Removal) return {before.section, before.row - (firstStepFrom(before) - step)};
    NSIndexPath path = before;
    for (; step != steps_.end() && step->path.section == path.section && step->path.row <= path.row; ++step) ++path.row;
    return path;
}

CGFloat UITableViewChange::reach() const {
    const CGFloat whole = steps_.empty() ? 0 : steps_.back().heightBefore + steps_.back().height;
    return whole + std::fabs(offsetChange_);
}

bool UITableViewChange::advanceToTime(NSTimeInterval time) {
    motion_.beginAt(time);
    left_ = motion_.positionAt(time);
    return !motion_.isOverAt(time);
}

CGFloat UITableViewChange::shiftOf(const UITableViewRows::Span& span) const {
    const auto above =
        std::lower_bound(steps_.begin(), steps_.end(), span.middle(), [](const Step& step, CGFloat place) { return step.place < place; });
    CGFloat moved = 0;
    if (above != steps_.begin()) moved = std::prev(above)->heightBefore + std::prev(above)->height;
    return left_ * (offsetChange_ + (kind_ == Kind::Insertion ? -moved : moved));
}

double UITableViewChange::shownShare(NSIndexPath path) const {
    if (kind_ == Kind::Removal) return 1;
    const auto step = firstStepFrom(path);
    return step != steps_.end() && step->path == path ? 1 - left_ : 1;
}

UITableViewRows::Span UITableViewChange::spanOfRemovedRow(NSIndexPath before) const {
    const auto step = firstStepFrom(before);
    if (step == steps_.end() || !(step->path == before)) return {};
    return {step->place + left_ * (offsetChange_ + step->heightBefore), left_ * step->height};
}

} // namespace gx

#pragma once

#include <algorithm>
#include <cmath>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "Paragraph.h"
#include "UILabel.h"
#include "UIPickerView.h"
#include "UIScrollView.h"
#include "UITextEngine.h"

/// Walks all visible views below one and lists what a user would not see as it is meant: texts that
/// are cut, texts that leave the view they are in, and views that cover their neighbours.
///
/// Rows of a wheel may leave it above and below. What is scrolled may leave its view there too.
class TextWalk {
public:
    /// "cut: …", "outside: …", "covered: …", each once.
    static std::set<std::string> problemsIn(const gx::Ref<gx::UIView>& view) {
        TextWalk walk;
        walk.look(*view);
        return walk.problems_;
    }
    /// Each text that can be seen.
    static std::set<std::string> textsIn(const gx::Ref<gx::UIView>& view) {
        TextWalk walk;
        walk.look(*view);
        return walk.texts_;
    }

private:
    // So little comes from adding up fractions and from rounding to whole points.
    static constexpr gx::CGFloat tolerance = 0.51;

    static bool isSeen(const gx::UIView& view) {
        return !view.isHidden() && view.alpha() > 0 && !CGRectIsEmpty(view.frame()) && view.showsSomething();
    }
    static std::string textOf(const gx::UIView& view) {
        if (const auto* label = dynamic_cast<const gx::UILabel*>(&view)) return label->text().value_or("");
        if (const auto* text = dynamic_cast<const gallery::Paragraph*>(&view)) return text->text();
        for (const auto& below : view.subviews()) {
            if (isSeen(*below) && !textOf(*below).empty()) return textOf(*below);
        }
        return "";
    }
    static bool hasWheel(const gx::UIView& view) {
        const auto& views = view.subviews();
        return dynamic_cast<const gx::UIPickerView*>(&view) != nullptr ||
               std::any_of(views.begin(), views.end(), [](const auto& below) { return hasWheel(*below); });
    }
    /// The texts of a view that has a height of 0 are cut too, so they count.
    static bool isText(const gx::UIView& view) {
        return !view.isHidden() && view.alpha() > 0 && view.showsSomething() && view.subviews().empty() && !textOf(view).empty();
    }
    static bool isCut(const gx::UIView& view) {
        const gx::CGSize size = view.bounds().size;
        if (const auto* text = dynamic_cast<const gallery::Paragraph*>(&view)) {
            return isTorn(text->text(), text->linesForWidth(size.width)) || text->sizeThatFits(size).height > size.height + tolerance;
        }
        const gx::CGSize needed = view.sizeThatFits({});
        return needed.width > size.width + tolerance || needed.height > size.height + tolerance;
    }
    /// Whether a line ends within a word without a hyphen, though the language has spaces.
    static bool isTorn(const std::string& text, const std::vector<std::string>& lines) {
        const auto isLetter = [](char letter) { return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z'); };
        std::size_t end = 0;
        for (const std::string& line : lines) {
            while (end < text.size() && text[end] == ' ') ++end;
            // A hyphen that is not in the text.
            const bool isDivided = text.compare(end, line.size(), line) != 0;
            end += line.size() - (isDivided ? 1 : 0);
            if (!isDivided && end < text.size() && isLetter(text[end - 1]) && isLetter(text[end])) return true;
        }
        return false;
    }

    void look(const gx::UIView& view, bool isInWheel = false) {
        const bool scrolls = dynamic_cast<const gx::UIScrollView*>(&view) != nullptr;
        isInWheel = isInWheel || dynamic_cast<const gx::UIPickerView*>(&view) != nullptr;
        std::vector<const gx::UIView*> seen;
        for (const auto& below : view.subviews()) {
            if (isText(*below)) {
                texts_.insert(textOf(*below));
                if (isCut(*below)) problems_.insert("cut: " + textOf(*below));
            }
            if (!isSeen(*below)) continue;
            const gx::CGRect frame = below->frame();
            const gx::CGRect room = view.bounds();
            const bool isWide =
                CGRectGetMinX(frame) < CGRectGetMinX(room) - tolerance || CGRectGetMaxX(frame) > CGRectGetMaxX(room) + tolerance;
            const bool isHigh =
                CGRectGetMinY(frame) < CGRectGetMinY(room) - tolerance || CGRectGetMaxY(frame) > CGRectGetMaxY(room) + tolerance;
            if (!textOf(*below).empty() && (isWide || (isHigh && !scrolls && !isInWheel))) problems_.insert("outside: " + textOf(*below));
            // In a wheel labels lie beside the texts of columns that are wider than these.
            for (const gx::UIView* other : seen) {
                if (!isInWheel) noteOverlap(*other, *below);
            }
            seen.push_back(below.get());
            look(*below, isInWheel);
        }
    }
    void noteOverlap(const gx::UIView& one, const gx::UIView& other) {
        // Where two wheels lie side by side, their rules say how far one reaches into the other.
        if (hasWheel(one) && hasWheel(other)) return;
        const gx::CGRect frame = CGRectInset(one.frame(), tolerance, tolerance);
        if (textOf(one).empty() || textOf(other).empty() || !CGRectIntersectsRect(frame, other.frame())) return;
        problems_.insert("covered: " + textOf(one) + " and " + textOf(other));
    }

    std::set<std::string> problems_;
    std::set<std::string> texts_;
};

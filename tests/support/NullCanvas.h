#pragma once

#include "UIGraphicsContext.h"

/// A canvas that draws nothing, and counts what it is told to draw.
class NullCanvas : public gx::UIGraphicsContext {
public:
    int fills = 0;
    int texts = 0;
    int images = 0;

    void saveState() override {}
    void restoreState() override {}
    void translate(gx::CGFloat, gx::CGFloat) override {}
    void scale(gx::CGFloat, gx::CGFloat) override {}
    void clipToRect(gx::CGRect) override {}
    void multiplyAlpha(double) override {}

protected:
    void fillRectWithComponents(gx::CGRect, const gx::UIColorComponents&, gx::CGFloat) override { ++fills; }
    void drawTextWithComponents(std::string_view, const gx::UIFont&, const gx::UIColorComponents&, gx::CGPoint) override { ++texts; }
    void drawImageInRect(const gx::UIImage&, gx::CGRect) override { ++images; }
};

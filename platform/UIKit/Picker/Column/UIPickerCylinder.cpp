#include "UIPickerCylinder.h"

#include <algorithm>
#include <cmath>

namespace gx {

namespace {

// The look of the cylinder, chosen by eye on a wheel of 216 points with rows of 40.

// How far the rows at the edge are tilted away: in radians, 65 degrees.
constexpr double edgeAngle = 1.1344640137963142;
// How much fainter a row is that has just left the selection indicator.
constexpr double fadeOutside = 0.42;
// The same at high contrast: just enough to tell the selected row from the others.
constexpr double slightFadeOutside = 0.2;
// How far the eye is from the cylinder, in its radii. Rows that tilt away also move away, and so
// narrow toward the wheel's middle.
constexpr double eyeDistance = 3;

// How close to the edge of the wheel a row begins to fade: its outer side, in row heights. At high
// contrast half as close, since a faint row is hard to read.
constexpr double fadeZone = 0.5;
constexpr double fadeZoneAtHighContrast = 0.25;
// Rows closer to the middle than half a row are in the selection indicator.
constexpr double nearestRow = 0.5;
// In rows: no fade is shorter, so that in a low wheel rows do not vanish within a frame.
constexpr double shortestFade = 0.25;

} // namespace

void UIPickerCylinder::setHeight_rowHeight(CGFloat height, CGFloat rowHeight) {
    if (height == height_ && rowHeight == rowHeight_) return;
    height_ = height;
    rowHeight_ = rowHeight;
    radius_ = 0.5 * height / std::sin(edgeAngle);
    reach_ = radius_ * edgeAngle / rowHeight;
    fadeEnd_ = std::max(distanceOfEdge(0.5 * height), nearestRow + shortestFade);
    fadeStart_ = std::max(distanceOfEdge(0.5 * height - fadeZone * rowHeight), nearestRow);
    fadeStartAtHighContrast_ = std::max(distanceOfEdge(0.5 * height - fadeZoneAtHighContrast * rowHeight), nearestRow);
}

/// The distance of the row whose outer side is drawn at a place below the middle.
///
/// The outer side of a row that is turned by an angle lies at radius · sin(angle) + half a row ·
/// cos(angle), which is a sine too.
double UIPickerCylinder::distanceOfEdge(CGFloat y) const {
    const double amplitude = std::hypot(radius_, 0.5 * rowHeight_);
    const double angle = std::asin(std::clamp(y / amplitude, -1.0, 1.0)) - std::atan2(0.5 * rowHeight_, radius_);
    return angle * radius_ / rowHeight_;
}

std::optional<double> UIPickerCylinder::rowsDrawnAt(CGFloat y) const {
    const double sine = y / radius_;
    if (!(std::fabs(sine) < 1)) return std::nullopt;
    return std::asin(sine) * radius_ / rowHeight_;
}

UIPickerCylinder::Look UIPickerCylinder::lookOfRow(double rows, UIAccessibilityContrast contrast) const {
    const double distance = std::fabs(rows);
    if (!(distance < fadeEnd_)) return {.alpha = 0};
    const double angle = rows * rowHeight_ / radius_;
    const double shortening = std::cos(angle);
    if (shortening <= 0) return {.alpha = 0};
    return {.y = radius_ * std::sin(angle),
            .shortening = shortening,
            .narrowing = eyeDistance / (eyeDistance + 1 - shortening),
            .alpha = alphaOfRow(distance, shortening, contrast)};
}

double UIPickerCylinder::alphaOfRow(double distance, double shortening, UIAccessibilityContrast contrast) const {
    const bool isHigh = contrast == UIAccessibilityContrast::High;
    const double left = std::min(distance, 1.0);
    const double alpha = isHigh ? 1 - slightFadeOutside * left : (1 - fadeOutside * left) * shortening;
    const double start = isHigh ? fadeStartAtHighContrast_ : fadeStart_;
    if (distance <= start) return alpha;
    const double faded = (distance - start) / (fadeEnd_ - start);
    return alpha * (1 - faded * faded); // Begins gently, where a row is clearly seen.
}

} // namespace gx

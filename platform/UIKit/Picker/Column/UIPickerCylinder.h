#pragma once

#include <optional>

#include "CGGeometry.h"
#include "UIColor.h"

namespace gx {

/// How a column's rows look on the screen: as lying on a cylinder that turns behind the wheel.
///
/// Rows tilt away from the middle, are foreshortened and get fainter. Toward the top and bottom of
/// the wheel they fade out:
/// - A row is invisible before its drawn rectangle touches an edge, so that none is seen cut.
/// - The row nearest to the selection indicator never fades. In a wheel lower than two rows and a
///   quarter, it leaves across the edge, and fades right after the next row has become the nearest.
///
/// Distances are in rows from the middle of the wheel, places in points. It is drawing only, and
/// knows no views.
class UIPickerCylinder {
public:
    /// In points, until there is another one: that of a wheel whose delegate gives none.
    static constexpr CGFloat initialRowHeight = 32;

    /// Of a wheel and of its rows, both finite and the latter above 0.
    void setHeight_rowHeight(CGFloat height, CGFloat rowHeight);

    /// How far from the middle a row can lie and still be on the visible side.
    double reach() const { return reach_; }
    /// The distance of what is drawn at a place below the middle. Nothing beside the cylinder.
    std::optional<double> rowsDrawnAt(CGFloat y) const;

    /// Where and how a row is drawn.
    struct Look {
        CGFloat y = 0;         ///< of its middle, below the middle of the wheel
        double shortening = 1; ///< of its height
        double narrowing = 1;  ///< of its width: what tilts away is further away
        double alpha = 1;      ///< 0 for a row that cannot be seen
    };
    Look lookOfRow(double rows, UIAccessibilityContrast contrast) const;

private:
    double alphaOfRow(double distance, double shortening, UIAccessibilityContrast contrast) const;
    double distanceOfEdge(CGFloat y) const;

    CGFloat height_ = 0;
    CGFloat rowHeight_ = initialRowHeight;
    CGFloat radius_ = 0;
    double reach_ = 0;
    // Where rows begin to fade toward the edge, and where they are gone.
    double fadeStart_ = 0;
    double fadeStartAtHighContrast_ = 0;
    double fadeEnd_ = 0;
};

} // namespace gx

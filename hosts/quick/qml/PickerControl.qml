import QtQuick
import QtQuick.Templates as T

/// A picker is a `Control` of Qt Quick: it has `font`, `palette`, `locale`, `mirrored`,
/// `focusPolicy`, `wheelEnabled`, `hovered` and implicit sizes, with those of the controls around
/// it.
///
/// - Each property has a signal for its changes, such as `onValueChanged`.
/// - A value that is set is shown at once, and never calls `moved`.
/// - Rows are as high as the font's pixel size needs, from 18 to 66 pixels. It is 22 until it is
///   set on the picker itself.
/// - `value` keeps what is set beyond the range, unless it says that it is clamped, while `text` is
///   the row that is selected then.
/// - A disabled picker is dimmed.
T.Control {
    id: control

    /// What shows the columns; a type sets it once.
    required property Item wheel
    /// Nothing moves by itself, for users who get dizzy by motion. Default: false.
    property bool reducedMotion: false
    /// Stronger colours, and an outline of the selection indicator. Default: false.
    property bool highContrast: false

    /// The user has selected something, and the wheel is at rest. Never emitted for a change by a
    /// binding or by the program.
    signal moved

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    contentItem: wheel
    focusPolicy: Qt.StrongFocus
    // A wheel is turned by a wheel, unlike other controls, unless an application says otherwise.
    wheelEnabled: true
    font.pixelSize: 22
    Accessible.role: Accessible.Grouping
}

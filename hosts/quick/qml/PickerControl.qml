import QtQuick
import QtQuick.Templates as T

/// What all pickers of this module have in common.
///
/// It has the font, locale, palette and direction of the controls around it. Rows are as high as
/// the font's pixel size needs, from 18 to 66 pixels.
T.Control {
    id: control

    /// What shows the columns; a type sets it once.
    required property Item wheel
    /// Nothing moves by itself, for users who get dizzy by motion.
    property bool reducedMotion: false
    /// Stronger colours, and an outline of the selection indicator.
    property bool highContrast: false

    /// The user has selected something. Never emitted for a change by a binding or by the program.
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

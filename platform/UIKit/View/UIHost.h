#pragma once

/// What a host and this library ask of each other, in both directions.
///
/// A host puts views on a real screen. It gives the library, once at its start:
/// - `UITextEngine::setShared`: how wide and high a text is;
/// - `UIImageLoader::setShared`: how picture files are read;
/// - `NSLocale::setCurrentLocale`: the user's decimal separator and writing direction;
/// - `NSRunLoop::mainRunLoop()->setWakeHandler`: when to call `runPass`;
/// and to each window that it shows:
/// - its size (`setFrame`), and itself with `setHost`;
/// - how the user wants to see it: light or dark (`setUserInterfaceStyle`), at which contrast (`setAccessibilityContrast`), and whether
///   things may move by themselves (`setReducesMotion`); all of it at any time, also while a wheel turns;
/// - fingers, the mouse with its button held, and scrolling (`touchBegan_at_time` … `scroll`);
/// - keys (`keyDown`), each with what it types, and held ones again and again; Tab too, which goes on to what lies around the window where
///   the answer is false; and whether the keys come to this window at all (`setReceivesKeys`);
/// - that the window closes or is hidden, with `finishAnimations`, so that no turn is lost;
/// - the time, with `tick`, before each frame that was asked for; and a canvas, with `draw`, when tick says so.
///
/// The library asks of a host, through the window: frames and, unless the window's `setFeedbackEnabled` turns it off,
/// feedback (`UIWindowHost`). Touches, scrolling and keys that no view made use of are the host's own, as their answers tell. All of it
/// happens on one thread. Nothing else is needed: without a host everything works headless.

#include "NSLocale.h"
#include "NSRunLoop.h"
#include "UIGraphicsContext.h"
#include "UIImage.h"
#include "UIKey.h"
#include "UITextEngine.h"
#include "UIWindow.h"

namespace gx {

/// What a user shall feel or hear.
enum class UIFeedback {
    SelectionChanged ///< the selection goes on by one: a click or a slight vibration
};

/// What a window asks of its host.
class UIWindowHost {
public:
    virtual ~UIWindowHost() = default;

    /// Something on screen has changed: call `tick` soon, and again after each frame until it answers false.
    /// May be called at any time, also within `tick` and `draw`.
    virtual void windowNeedsFrame() = 0;
    /// The moment for a click or a vibration. Here ignored.
    ///
    /// A wheel asks for `SelectionChanged` with each row that passes its selection indicator in a spin by the user: for a hundred rows
    /// at most in a frame, and for several rows that it skips at once a single time.
    virtual void giveFeedback(UIFeedback /*feedback*/) {}
};

} // namespace gx

#pragma once

/// The protocol between a host and this library, in both directions.
///
/// A host puts views on a real screen. It gives the library, once at its start:
/// - `UITextEngine::setShared`: how wide and high a text is;
/// - `UIImageLoader::setShared`: how picture files are read;
/// - `NSLocale::setCurrentLocale`: the user's decimal separator and writing direction;
/// - `NSRunLoop::mainRunLoop()->setWakeHandler`: when to call `runPass`.
///
/// It gives each window that it shows, through `UIWindowInput`:
/// - its size (`setFrame`), and itself with `setHost`;
/// - what the user wants to see, at any time, also while a wheel spins: light or dark
///   (`setUserInterfaceStyle`), the contrast (`setAccessibilityContrast`), and whether things may
///   move by themselves (`setReducesMotion`);
/// - fingers, the mouse with its button held, and scrolling (`touchBegan_at_time` … `scroll`);
/// - where the pointer of a mouse, a trackpad or a hovering pen is (`pointerMoved`), and that it
///   has left (`pointerLeft`). With its button held it is the touch `UITouch::pointerIdentifier`
///   too: `pointerMoved` is sent before `touchMoved_at_time`. Hosts of fingers alone send neither;
/// - keys (`keyDown`), each with the text it types, and held ones repeatedly; Tab too, which goes
///   on to what lies around the window where that returns false;
/// - whether the keys come to this window at all (`setReceivesKeys`);
/// - what a screen reader does to an element (`performAction_onElement`);
/// - that the window closes or is hidden, with `finishAnimations`, so that no spin is lost;
/// - the time, with `tick`, before each frame that was asked for; and a canvas, with `draw`, when
///   `tick` returns true.
///
/// A host that has a screen reader gives it `UIWindow::accessibilityElements` as a tree (see
/// `UIAccessibilityElement`), the `focusedAccessibilityElement` and, after each frame, what
/// `UIAccessibilityChanges` finds: another focus, other values, announcements.
///
/// The window asks of a host (`UIWindowHost`): frames, how the pointer looks, and feedback for
/// the user unless the window's `setFeedbackEnabled` turns it off. Touches, scrolling and keys that
/// no view used are the host's own, as the results of the calls say.
///
/// All of it happens on one thread. Nothing else is needed: without a host everything works
/// headless.

#include "NSLocale.h"
#include "NSRunLoop.h"
#include "UIGraphicsContext.h"
#include "UIImage.h"
#include "UIKey.h"
#include "UIPointer.h"
#include "UITextEngine.h"
#include "UIWindow.h"
#include "UIWindowHost.h"
#include "UIWindowInput.h"

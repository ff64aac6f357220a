#pragma once

#include "FuzzBytes.h"
#include "UIWindow.h"

/// Gives one property of the view, if there is one, any value. It is not held meanwhile.
void setSomething(FuzzBytes& bytes, gx::UIView* view);
/// Makes one query with any row and component.
void askSomething(FuzzBytes& bytes, const gx::Ref<gx::UIView>& view);
/// Has the host of the window want something else: another look, size or contrast, less motion, an
/// end of every movement.
void setWindowProperty(FuzzBytes& bytes, const gx::Ref<gx::UIWindow>& window);
/// Changes what pickers look up in their surroundings: language, locale and style sheet.
void setSurroundings(FuzzBytes& bytes);
/// As they are at the start of a program.
void restoreSurroundings();

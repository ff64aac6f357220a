#pragma once

#include "FuzzWorld.h"
#include "GXBasePickerView.h"

/// Puts services of the application in place of the shared ones: a style sheet or a localiser that
/// does anything, replacing itself included, whenever a picker asks it.
void setReactingService(FuzzWorld& world);
/// The same for the formatter of a picker that has one.
void setReactingFormatter(FuzzWorld& world, const gx::Ref<gx::GXBasePickerView>& picker);
/// Services that outlive the world no longer react.
void endReactions();

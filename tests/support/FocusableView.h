#pragma once

#include "UIView.h"

/// A view that takes the keys and makes no use of them.
class FocusableView : public gx::UIView {
public:
    bool canBecomeFirstResponder() override { return true; }
};

#pragma once

#include "FuzzBytes.h"
#include "GXBasePickerView.h"

/// Makes one of all pickers, bare wheels and picker cells, in one of the ways that it can be made.
/// Never empty.
gx::Ref<gx::UIView> makeView(FuzzBytes& bytes);
/// Restores a view of any class, plain ones too, from the coder. Never empty.
gx::Ref<gx::UIView> makeViewWithCoder(FuzzBytes& bytes, const gx::Ref<gx::NSCoder>& coder);
/// The picker that the view is, or that it shows as a cell; nothing for others.
gx::Ref<gx::GXBasePickerView> pickerOf(const gx::Ref<gx::UIView>& view);
/// The wheel that the view is, or that its picker has.
gx::Ref<gx::UIPickerView> wheelOf(const gx::Ref<gx::UIView>& view);

#include <GXUIPickers/GXUIPickers.h>

// A class of the application's own, which the example links beside its listener.
class Wheel : public gx::GXMultiValuePickerView {};

gx::Ref<gx::UIView> wheelOfApplication() { return gx::create<Wheel>(gx::CGRectMake(0, 0, 100, 216)); }

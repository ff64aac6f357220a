#include "NSNumber.h"

#include <cmath>

#include "NSArithmetic.h"

namespace gx {

NSNumber NSNumber::boxInteger(Type type, std::int64_t value) {
    auto box = std::make_shared<Box>();
    box->type = type;
    box->integer = value;
    NSNumber number;
    number.box_ = std::move(box);
    return number;
}

NSNumber NSNumber::boxFloating(Type type, double value) {
    auto box = std::make_shared<Box>();
    box->type = type;
    box->floating = value;
    NSNumber number;
    number.box_ = std::move(box);
    return number;
}

NSNumber NSNumber::numberWithBool(bool value) { return boxInteger(Type::Bool, value ? 1 : 0); }
NSNumber NSNumber::numberWithInt(std::int32_t value) { return boxInteger(Type::Int, value); }
NSNumber NSNumber::numberWithInteger(NSInteger value) { return boxInteger(Type::Integer, value); }
// Every float is a double, so keeping it as one loses nothing.
NSNumber NSNumber::numberWithFloat(float value) { return boxFloating(Type::Float, value); }
NSNumber NSNumber::numberWithDouble(double value) { return boxFloating(Type::Double, value); }

NSNumber::Type NSNumber::type() const { return box_ ? box_->type : Type::None; }

bool NSNumber::isFloating() const { return box_->type == Type::Float || box_->type == Type::Double; }

bool NSNumber::boolValue() const {
    if (!box_) return false;
    if (isFloating()) return box_->floating != 0 && !std::isnan(box_->floating);
    return box_->integer != 0;
}

std::int32_t NSNumber::intValue() const {
    if (!box_) return 0;
    return isFloating() ? truncateTo<std::int32_t>(box_->floating) : narrowTo32Bits(box_->integer);
}

NSInteger NSNumber::integerValue() const {
    if (!box_) return 0;
    return isFloating() ? truncateTo<NSInteger>(box_->floating) : box_->integer;
}

float NSNumber::floatValue() const {
    if (!box_) return 0;
    return isFloating() ? static_cast<float>(box_->floating) : static_cast<float>(box_->integer);
}

double NSNumber::doubleValue() const {
    if (!box_) return 0;
    return isFloating() ? box_->floating : static_cast<double>(box_->integer);
}

} // namespace gx

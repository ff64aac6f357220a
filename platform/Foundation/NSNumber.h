#pragma once

#include <cstdint>
#include <memory>

#include "GXExport.h"
#include "NSObject.h"

namespace gx {

/// A handle to an immutable boxed number. Copying copies the handle, so two handles may share one
/// box.
///
/// The box remembers the type that it was made with and converts on reading, in one rounding:
/// - fractions truncate toward zero;
/// - an integer box narrows modulo the width of the target;
/// - a floating-point box outside the range of an integer saturates, and NaN reads as integer 0; a
///   double beyond the range of a float reads as infinity.
///
/// An empty handle (`NSNumber()`) returns 0 from every getter, and is false as `bool`. Use one for
/// "not set".
class GX_EXPORT NSNumber {
public:
    /// What a box was made of; `None` for an empty handle.
    enum class Type { None, Bool, Int, Integer, Float, Double };

    NSNumber() = default;

    /// Boxes a flag, which reads as 1 or 0.
    static NSNumber numberWithBool(bool value);
    /// Boxes 32 bits.
    static NSNumber numberWithInt(std::int32_t value);
    /// Boxes 64 bits.
    static NSNumber numberWithInteger(NSInteger value);
    /// Boxes a float, NaN and infinities too.
    static NSNumber numberWithFloat(float value);
    /// Boxes a double, NaN and infinities too.
    static NSNumber numberWithDouble(double value);

    /// True for any number but 0 and NaN.
    bool boolValue() const;
    /// 32 bits: an integer box narrows modulo 2³², a floating-point box saturates.
    std::int32_t intValue() const;
    /// 64 bits: fractions truncate toward zero, a floating-point box saturates.
    NSInteger integerValue() const;
    /// The nearest float; infinite beyond its range.
    float floatValue() const;
    /// The nearest double; exact but for integers beyond 2⁵³.
    double doubleValue() const;

    /// The type that the box was made with; `None` for an empty handle.
    Type type() const;
    /// Whether both handles hold the same box. Equal numbers in two boxes are not identical, two
    /// empty handles are.
    bool isIdenticalTo(const NSNumber& other) const { return box_ == other.box_; }
    /// Whether the handle holds a box, whatever its value.
    explicit operator bool() const { return box_ != nullptr; }

private:
    struct Box {
        Type type;
        union {
            std::int64_t integer;
            double floating;
        };
    };

    static NSNumber boxInteger(Type type, std::int64_t value);
    static NSNumber boxFloating(Type type, double value);
    bool isFloating() const;

    std::shared_ptr<const Box> box_;
};

} // namespace gx

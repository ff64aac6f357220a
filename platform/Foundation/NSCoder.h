#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "CGGeometry.h"
#include "GXExport.h"
#include "NSObject.h"

namespace gx {

/// A set of values under keys, from which a view restores its frame and properties
/// (`initWithCoder`).
///
/// An application fills one from its interface file with the `encode…` operations and hands it to
/// `create<T>(coder)`.
///
/// Invariant: reading never fails. A key that is missing, or whose value is of another kind, reads
/// as 0, false or nothing; numbers convert among each other as `NSNumber` does.
class GX_EXPORT NSCoder : public NSObject {
public:
    /// Stores a flag, in place of any value under the key. The other four do so for their types.
    void encodeBool_forKey(bool value, std::string key);
    /// Stores an integer.
    void encodeInteger_forKey(NSInteger value, std::string key);
    /// Stores a floating-point number, NaN too.
    void encodeDouble_forKey(double value, std::string key);
    /// Stores a text.
    void encodeString_forKey(std::string value, std::string key);
    /// Stores a rectangle as it is.
    void encodeCGRect_forKey(CGRect value, std::string key);

    /// Virtual, so that an application can read its own format on demand.
    virtual bool containsValueForKey(std::string_view key) const;
    /// True for any number but 0 and NaN; false if there is none.
    virtual bool decodeBoolForKey(std::string_view key) const;
    /// A fraction is cut off, NaN reads as 0; 0 if there is no number.
    virtual NSInteger decodeIntegerForKey(std::string_view key) const;
    /// 0 if there is no number.
    virtual double decodeDoubleForKey(std::string_view key) const;
    /// Nothing if there is no text.
    virtual std::optional<std::string> decodeStringForKey(std::string_view key) const;
    /// The zero rectangle if there is none.
    virtual CGRect decodeCGRectForKey(std::string_view key) const;

private:
    using Value = std::variant<bool, NSInteger, double, std::string, CGRect>;
    const Value* find(std::string_view key) const;

    std::map<std::string, Value, std::less<>> values_;
};

} // namespace gx

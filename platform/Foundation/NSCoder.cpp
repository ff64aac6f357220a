#include "NSCoder.h"

#include "NSNumber.h"

namespace gx {

namespace {

template <class Value>
NSNumber numberIn(const Value* value) {
    if (!value) return {};
    if (const auto* flag = std::get_if<bool>(value)) return NSNumber::numberWithBool(*flag);
    if (const auto* integer = std::get_if<NSInteger>(value)) return NSNumber::numberWithInteger(*integer);
    if (const auto* real = std::get_if<double>(value)) return NSNumber::numberWithDouble(*real);
    return {};
}

} // namespace

void NSCoder::encodeBool_forKey(bool value, std::string key) { values_.insert_or_assign(std::move(key), value); }
void NSCoder::encodeInteger_forKey(NSInteger value, std::string key) { values_.insert_or_assign(std::move(key), value); }
void NSCoder::encodeDouble_forKey(double value, std::string key) { values_.insert_or_assign(std::move(key), value); }
void NSCoder::encodeString_forKey(std::string value, std::string key) { values_.insert_or_assign(std::move(key), std::move(value)); }
void NSCoder::encodeCGRect_forKey(CGRect value, std::string key) { values_.insert_or_assign(std::move(key), value); }

const NSCoder::Value* NSCoder::find(std::string_view key) const {
    const auto entry = values_.find(key);
    return entry == values_.end() ? nullptr : &entry->second;
}

bool NSCoder::containsValueForKey(std::string_view key) const { return find(key) != nullptr; }
bool NSCoder::decodeBoolForKey(std::string_view key) const { return numberIn(find(key)).boolValue(); }
NSInteger NSCoder::decodeIntegerForKey(std::string_view key) const { return numberIn(find(key)).integerValue(); }
double NSCoder::decodeDoubleForKey(std::string_view key) const { return numberIn(find(key)).doubleValue(); }

std::optional<std::string> NSCoder::decodeStringForKey(std::string_view key) const {
    const Value* value = find(key);
    const auto* text = value ? std::get_if<std::string>(value) : nullptr;
    return text ? std::optional<std::string>(*text) : std::nullopt;
}

CGRect NSCoder::decodeCGRectForKey(std::string_view key) const {
    const Value* value = find(key);
    const auto* rect = value ? std::get_if<CGRect>(value) : nullptr;
    return rect ? *rect : CGRectZero;
}

} // namespace gx

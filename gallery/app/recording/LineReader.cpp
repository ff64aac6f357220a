#include "LineReader.h"

namespace gallery {

using Json = nlohmann::ordered_json;

LineReader::LineReader(const std::string& line) {
    if (line.size() > longestLine) {
        refuse("the line is too long");
        return;
    }
    line_ = Json::parse(line, nullptr, /*allow_exceptions=*/false);
    if (line_.is_discarded()) {
        refuse("this is no JSON; the line may be cut off");
    } else if (!line_.is_object()) {
        refuse("this is no object");
    }
}

void LineReader::refuse(const std::string& reason) {
    if (error_.empty()) error_ = reason;
}

const Json* LineReader::member(const char* name) {
    if (!isGood()) return nullptr;
    const auto found = line_.find(name);
    if (found != line_.end()) return &*found;
    refuse(std::string("\"") + name + "\" is missing");
    return nullptr;
}

double LineReader::number(const char* name, double lowest, double highest) {
    const Json* const value = member(name);
    if (!value) return 0;
    const double number = value->is_number() ? value->get<double>() : highest + 1;
    if (number >= lowest && number <= highest) return number;
    refuse(std::string("\"") + name + "\" is no number in its range");
    return 0;
}

gx::CGSize LineReader::size(double smallestSide) {
    const double width = number("width", smallestSide, largestSide);
    const double height = number("height", smallestSide, largestSide);
    if (width * height > largestArea) refuse(R"("width" times "height" is too large)");
    return {width, height};
}

std::optional<std::int64_t> LineReader::integerOf(const Json& value) {
    // Larger ones are kept as unsigned numbers.
    const bool isWhole = value.is_number_integer() && !(value.is_number_unsigned() && value.get<std::uint64_t>() > INT64_MAX);
    return isWhole ? std::optional(value.get<std::int64_t>()) : std::nullopt;
}

std::int64_t LineReader::integer(const char* name) {
    const Json* const value = member(name);
    if (const auto number = value ? integerOf(*value) : std::nullopt) return *number;
    refuse(std::string("\"") + name + "\" is no whole number");
    return 0;
}

std::vector<std::int64_t> LineReader::integers(const char* name) {
    std::vector<std::int64_t> numbers;
    const Json* const value = member(name);
    bool isGood = value != nullptr && value->is_array() && value->size() <= longestList;
    for (std::size_t i = 0; isGood && i < value->size(); ++i) {
        const auto number = integerOf((*value)[i]);
        isGood = number.has_value();
        numbers.push_back(number.value_or(0));
    }
    if (!isGood) refuse(std::string("\"") + name + "\" is no list of whole numbers");
    return numbers;
}

bool LineReader::flag(const char* name) {
    const Json* const value = member(name);
    if (value && value->is_boolean()) return value->get<bool>();
    refuse(std::string("\"") + name + "\" is neither true nor false");
    return false;
}

std::string LineReader::text(const char* name) {
    const Json* const value = member(name);
    if (value && value->is_string()) return value->get<std::string>();
    refuse(std::string("\"") + name + "\" is no text");
    return {};
}

} // namespace gallery

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace tarnwell::storage {

// Days since 30 December 1899, the day's part behind the point.
struct SerialDate {
  double days = 0;
  friend bool operator==(const SerialDate&, const SerialDate&) = default;
};

// A value that carries its type into the file. std::monostate is the empty value.
using TaggedValue = std::variant<std::monostate, std::int16_t, std::int32_t, float, double,
                                 SerialDate, std::string>;

// The stored bytes: a 2-byte tag, then the payload. A text is cut at 65,535 characters.
std::string PackTagged(const TaggedValue& value);
// Reads a value from the front of `bytes`; an unknown tag, a payload that isn't whole and a number
// that isn't finite are empty.
TaggedValue UnpackTagged(std::string_view bytes);

// The number in a value: a number as it is, a text by its leading number, empty as 0.
double NumberOf(const TaggedValue& value);
// The text in a value, empty for anything but text.
std::string TextOf(const TaggedValue& value);
bool IsEmpty(const TaggedValue& value);

}  // namespace tarnwell::storage

#include "storage/tagged_value.h"

#include <cmath>
#include <type_traits>

#include "storage/little_endian.h"
#include "text/leading_number.h"

namespace tarnwell::storage {
namespace {

enum Tag : std::uint16_t {
  kEmpty = 0,
  kInt16 = 2,
  kInt32 = 3,
  kFloat = 4,
  kDouble = 5,
  kDate = 7,
  kText = 8,
};

struct Packer {
  std::string bytes;

  template <typename Number>
  void Add(Tag tag, Number value) {
    AppendNumber(bytes, static_cast<std::uint16_t>(tag));
    AppendNumber(bytes, value);
  }
  void operator()(std::monostate) { AppendNumber(bytes, static_cast<std::uint16_t>(kEmpty)); }
  void operator()(std::int16_t value) { Add(kInt16, value); }
  void operator()(std::int32_t value) { Add(kInt32, value); }
  void operator()(float value) { Add(kFloat, value); }
  void operator()(double value) { Add(kDouble, value); }
  void operator()(SerialDate value) { Add(kDate, value.days); }
  void operator()(const std::string& value) {
    AppendNumber(bytes, static_cast<std::uint16_t>(kText));
    AppendText(bytes, value);
  }
};

template <typename Number>
std::optional<Number> TakeFinite(std::string_view& rest) {
  const auto value = TakeNumber<Number>(rest);
  return value && std::isfinite(*value) ? value : std::nullopt;
}

template <typename Value>
TaggedValue OrEmpty(std::optional<Value> value) {
  if (!value) return {};
  return std::move(*value);
}

}  // namespace

std::string PackTagged(const TaggedValue& value) {
  Packer packer;
  std::visit(packer, value);
  return std::move(packer.bytes);
}

TaggedValue UnpackTagged(std::string_view bytes) {
  switch (TakeNumber<std::uint16_t>(bytes).value_or(kEmpty)) {
    case kInt16:
      return OrEmpty(TakeNumber<std::int16_t>(bytes));
    case kInt32:
      return OrEmpty(TakeNumber<std::int32_t>(bytes));
    case kFloat:
      return OrEmpty(TakeFinite<float>(bytes));
    case kDouble:
      return OrEmpty(TakeFinite<double>(bytes));
    case kDate:
      if (const auto days = TakeFinite<double>(bytes)) return SerialDate{*days};
      return {};
    case kText:
      return OrEmpty(TakeText(bytes));
    default:
      return {};
  }
}

double NumberOf(const TaggedValue& value) {
  return std::visit(
      [](const auto& held) -> double {
        using Held = std::decay_t<decltype(held)>;
        if constexpr (std::is_arithmetic_v<Held>) {
          return static_cast<double>(held);
        } else if constexpr (std::is_same_v<Held, SerialDate>) {
          return held.days;
        } else if constexpr (std::is_same_v<Held, std::string>) {
          return text::LeadingNumber(held);
        } else {
          return 0;
        }
      },
      value);
}

std::string TextOf(const TaggedValue& value) {
  const auto* text = std::get_if<std::string>(&value);
  return text ? *text : std::string();
}

bool IsEmpty(const TaggedValue& value) { return std::holds_alternative<std::monostate>(value); }

}  // namespace tarnwell::storage

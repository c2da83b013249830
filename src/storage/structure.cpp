#include "storage/structure.h"

#include <cmath>

#include "storage/little_endian.h"

namespace tarnwell::storage {
namespace {

template <typename Number>
Number TakeField(std::string_view& rest) {
  const auto value = TakeNumber<Number>(rest);
  if (!value) rest = {};
  return value.value_or(Number{});
}

template <typename Number>
Number FiniteOrZero(Number value) {
  return std::isfinite(value) ? value : Number{};
}

}  // namespace

StructureWriter& StructureWriter::FixedText(std::string_view text, std::size_t width) {
  text = text.substr(0, width);
  bytes_ += text;
  bytes_.append(width - text.size(), ' ');
  return *this;
}

StructureWriter& StructureWriter::Int16(std::int16_t value) {
  AppendNumber(bytes_, value);
  return *this;
}

StructureWriter& StructureWriter::Int32(std::int32_t value) {
  AppendNumber(bytes_, value);
  return *this;
}

StructureWriter& StructureWriter::Float(float value) {
  AppendNumber(bytes_, value);
  return *this;
}

StructureWriter& StructureWriter::Double(double value) {
  AppendNumber(bytes_, value);
  return *this;
}

StructureWriter& StructureWriter::Text(std::string_view text) {
  AppendText(bytes_, text);
  return *this;
}

std::string_view StructureReader::FixedText(std::size_t width) {
  if (width > rest_.size()) {
    rest_ = {};
    return {};
  }
  const std::string_view text = rest_.substr(0, width);
  rest_.remove_prefix(width);
  return text;
}

std::int16_t StructureReader::Int16() { return TakeField<std::int16_t>(rest_); }
std::int32_t StructureReader::Int32() { return TakeField<std::int32_t>(rest_); }
float StructureReader::Float() { return FiniteOrZero(TakeField<float>(rest_)); }
double StructureReader::Double() { return FiniteOrZero(TakeField<double>(rest_)); }

std::string StructureReader::Text() {
  auto text = TakeText(rest_);
  if (!text) rest_ = {};
  return std::move(text).value_or(std::string());
}

}  // namespace tarnwell::storage

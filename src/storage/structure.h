// Fields packed one behind the other without padding, little-endian.

#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwell::storage {

class StructureWriter {
 public:
  StructureWriter() = default;
  // For a structure of so many bytes, or about as many.
  explicit StructureWriter(std::size_t size) { bytes_.reserve(size); }

  // Cut or padded on the right with blanks to `width` bytes.
  StructureWriter& FixedText(std::string_view text, std::size_t width);
  StructureWriter& Int16(std::int16_t value);
  StructureWriter& Int32(std::int32_t value);
  StructureWriter& Float(float value);
  StructureWriter& Double(double value);
  // A 2-byte length and the bytes; cut at 65,535.
  StructureWriter& Text(std::string_view text);

  const std::string& bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

// Reads what a StructureWriter wrote, from bytes that must outlive it. A field that isn't whole is
// empty, and so is all behind it; a number that isn't finite is 0.
class StructureReader {
 public:
  explicit StructureReader(std::string_view bytes) : rest_(bytes) {}
  template <std::same_as<std::string> Temporary>
  explicit StructureReader(Temporary&&) = delete;

  // All `width` bytes as they stand, blanks and zero bytes included: a piece of the bytes read.
  std::string_view FixedText(std::size_t width);
  std::int16_t Int16();
  std::int32_t Int32();
  float Float();
  double Double();
  std::string Text();

 private:
  std::string_view rest_;
};

}  // namespace tarnwell::storage

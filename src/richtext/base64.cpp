#include "richtext/base64.h"

#include <cstddef>
#include <cstdint>

namespace tarnwell::richtext {

std::string Base64(std::string_view bytes) {
  constexpr char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string out;
  out.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    std::uint32_t group = 0;
    const std::size_t size = bytes.size() - i < 3 ? bytes.size() - i : 3;
    for (std::size_t j = 0; j < 3; ++j) {
      group = (group << 8) | (j < size ? static_cast<unsigned char>(bytes[i + j]) : 0u);
    }
    for (std::size_t j = 0; j < 4; ++j) {
      out += j <= size ? kDigits[(group >> (18 - 6 * j)) & 0x3F] : '=';
    }
  }
  return out;
}

}  // namespace tarnwell::richtext

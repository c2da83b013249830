#include "proofing/capitals.h"

#include <cstddef>

#include "text/letters.h"

namespace tarnwell::proofing {
namespace {

bool IsCapital(std::string_view word, std::size_t place) {
  return place < word.size() && text::LowerCase(word[place]) != word[place];
}

}  // namespace

std::string WithCapitalsOf(std::string_view word, std::string_view correction) {
  if (IsCapital(word, 1)) return text::UpperCase(correction);
  std::string written(correction);
  if (IsCapital(word, 0) && !written.empty()) written[0] = text::UpperCase(written[0]);
  return written;
}

std::string WithoutCapitalsOf(std::string_view word, std::string_view correction) {
  const std::string small = text::LowerCase(correction);
  return WithCapitalsOf(word, small) == correction ? small : std::string(correction);
}

}  // namespace tarnwell::proofing

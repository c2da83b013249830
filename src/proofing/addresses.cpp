#include "proofing/addresses.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "text/letters.h"

namespace tarnwell::proofing {
namespace {

// What a page's address ends with when nothing else tells it from two words and a missing blank.
constexpr std::string_view kDomains[] = {".com", ".net", ".org",  ".edu",
                                         ".gov", ".biz", ".info", ".us"};

bool IsLetterOrDigit(char character) {
  const char small = text::LowerCase(character);
  return (small >= 'a' && small <= 'z') || (character >= '0' && character <= '9');
}

bool IsMailbox(std::string_view run) {
  const std::size_t at = run.find('@');
  return at != std::string_view::npos && at > 0 && at + 1 < run.size() &&
         IsLetterOrDigit(run[at - 1]) && IsLetterOrDigit(run[at + 1]);
}

}  // namespace

bool IsAddress(std::string_view run) {
  if (IsMailbox(run) || run.find("://") != std::string_view::npos) return true;
  while (!run.empty() && !IsLetterOrDigit(run.front())) run.remove_prefix(1);
  run = run.substr(0, run.find('/'));
  while (!run.empty() && !IsLetterOrDigit(run.back())) run.remove_suffix(1);
  // Long enough for any name of a site; a longer run isn't copied.
  constexpr std::size_t kLongestSite = 253;
  if (run.size() > kLongestSite || run.find('.') == std::string_view::npos) return false;
  const std::string site = text::LowerCase(run);
  return site.starts_with("www.") ||
         std::ranges::any_of(kDomains, [&](std::string_view end) { return site.ends_with(end); });
}

}  // namespace tarnwell::proofing

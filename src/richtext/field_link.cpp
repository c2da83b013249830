#include "richtext/field_link.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

#include "richtext/code_pages.h"
#include "richtext/rtf_tokenizer.h"

namespace tarnwell::richtext {

// Addresses hold no Unicode escapes.
std::string InstructionText(std::string_view rtf) {
  std::string text;
  ByteDecoder decoder;
  Tokenizer tokenizer(rtf);
  for (Token token = tokenizer.Next(); token.kind != TokenKind::kEnd; token = tokenizer.Next()) {
    const bool is_character = token.kind == TokenKind::kSymbol && token.text != "*";
    if (token.kind == TokenKind::kText || is_character) decoder.Take(token.text, 1252, text);
  }
  return text;
}
namespace {

bool IsSafe(std::string_view address) {
  const std::initializer_list<std::string_view> schemes = {"http://", "https://", "mailto:"};
  return std::any_of(schemes.begin(), schemes.end(),
                     [address](std::string_view scheme) { return address.starts_with(scheme); });
}

std::string AddressOf(std::string_view instruction_rtf) {
  const std::string text = InstructionText(instruction_rtf);
  const std::size_t word = text.find("HYPERLINK");
  if (word == std::string::npos) return {};
  const std::size_t begin = text.find('"', word);
  if (begin == std::string::npos) return {};
  const std::string address = text.substr(begin + 1, text.find('"', begin + 1) - begin - 1);
  return IsSafe(address) ? address : std::string();
}

}  // namespace

bool IsLinkAddress(std::string_view address) {
  const bool is_bare = address.ends_with("://") || address.ends_with(':');
  return IsSafe(address) && !is_bare && std::ranges::all_of(address, [](char c) {
           return c > ' ' && c < 0x7F &&
                  std::string_view("\"\\{}").find(c) == std::string_view::npos;
         });
}

std::string LinkOf(const RichDocument& document, int field) {
  while (field >= 0 && static_cast<std::size_t>(field) < document.fields.size()) {
    const Field& candidate = document.fields[static_cast<std::size_t>(field)];
    std::string address = AddressOf(candidate.instruction);
    if (!address.empty() || candidate.parent >= field) return address;
    field = candidate.parent;
  }
  return {};
}

}  // namespace tarnwell::richtext

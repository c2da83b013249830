#include "richtext/rtf_capture.h"

namespace tarnwell::richtext {

std::string Captured::Rtf(int unicode_skip) const {
  std::string rtf;
  const bool wrapped = unicode_skip != 1;
  if (wrapped) rtf = "{\\uc" + std::to_string(unicode_skip);
  rtf += '{';
  rtf += body;
  rtf.append(static_cast<std::size_t>(missing_ends) + 1, '}');
  if (wrapped) rtf += '}';
  return rtf;
}

std::optional<Captured> CaptureGroup(Tokenizer& tokenizer, std::size_t begin) {
  int depth = 0;
  while (true) {
    const Token token = tokenizer.Next();
    if (token.cut) return std::nullopt;
    if (token.kind == TokenKind::kGroupStart) ++depth;
    const bool ends_here = token.kind == TokenKind::kGroupEnd && depth-- == 0;
    if (!ends_here && token.kind != TokenKind::kEnd) continue;
    tokenizer.Seek(token.begin);
    return Captured{tokenizer.source().substr(begin, token.begin - begin), ends_here ? 0 : depth};
  }
}

std::string_view WordSource(const Tokenizer& tokenizer, const Token& token) {
  std::string_view source = tokenizer.Source(token);
  if (source.ends_with(' ')) source.remove_suffix(1);
  return source;
}

}  // namespace tarnwell::richtext

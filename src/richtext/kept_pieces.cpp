#include "richtext/kept_pieces.h"

#include "richtext/rtf_capture.h"
#include "richtext/rtf_tokenizer.h"

namespace tarnwell::richtext {
namespace {

// A group around another one says how it writes Unicode, and nothing else.
KeptPiece GroupOf(std::string_view source, int unicode_skip, bool may_be_wrapped) {
  KeptPiece piece{.source = source, .is_group = true, .unicode_skip = unicode_skip};
  Tokenizer tokenizer(source, 1);
  Token token = tokenizer.Next();
  if (may_be_wrapped && token.IsWord("uc")) {
    const Token start = tokenizer.Next();
    if (start.kind == TokenKind::kGroupStart) {
      return GroupOf(source.substr(start.begin, source.size() - start.begin - 1), token.number,
                     false);
    }
  }
  if (token.kind == TokenKind::kSymbol && token.text == "*") token = tokenizer.Next();
  if (token.kind != TokenKind::kWord) return piece;
  piece.name = token.text;
  piece.body = source.substr(token.end);
  if (piece.body.ends_with('}')) piece.body.remove_suffix(1);
  return piece;
}

}  // namespace

std::vector<KeptPiece> KeptPieces(std::string_view rtf) {
  std::vector<KeptPiece> pieces;
  Tokenizer tokenizer(rtf);
  while (true) {
    const Token token = tokenizer.Next();
    if (token.kind == TokenKind::kEnd) return pieces;
    if (token.kind == TokenKind::kWord) {
      pieces.push_back({.name = token.text,
                        .source = tokenizer.Source(token),
                        .has_number = token.has_number,
                        .number = token.number});
    }
    if (token.kind != TokenKind::kGroupStart) continue;
    if (!CaptureGroup(tokenizer, token.end)) return pieces;
    tokenizer.Next();
    pieces.push_back(GroupOf(rtf.substr(token.begin, tokenizer.place() - token.begin), 1, true));
  }
}

}  // namespace tarnwell::richtext

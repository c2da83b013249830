#include "richtext/nested_table.h"

#include <optional>

#include "richtext/rtf_capture.h"
#include "richtext/rtf_tokenizer.h"

namespace tarnwell::richtext {

std::size_t FindNestedTableEnd(std::string_view source, std::size_t begin) {
  Tokenizer tokenizer(source, begin);
  std::optional<std::size_t> candidate;  // the last \pard, until it says how deep it is nested
  int depth = 0;
  while (true) {
    const Token token = tokenizer.Next();
    if (token.kind == TokenKind::kEnd || token.cut) return begin;
    if (token.kind == TokenKind::kGroupEnd && depth-- == 0) return candidate.value_or(token.begin);
    if (token.kind == TokenKind::kGroupStart) ++depth;
    if (depth > 0) continue;
    if (token.IsWord("cell") || token.IsWord("row")) return candidate.value_or(token.begin);
    if (token.IsWord("itap")) {
      if (candidate && token.NumberOr(1) < 2) return *candidate;
      candidate.reset();
    }
    const bool is_text = token.kind == TokenKind::kText || token.kind == TokenKind::kByte;
    if (is_text && candidate) return *candidate;
    if (token.IsWord("pard")) {
      if (candidate) return *candidate;
      candidate = token.begin;
    }
  }
}

std::string Unnested(std::string_view rtf) {
  std::string out;
  Tokenizer tokenizer(rtf);
  int level = 2;
  for (Token token = tokenizer.Next(); token.kind != TokenKind::kEnd; token = tokenizer.Next()) {
    if (token.kind == TokenKind::kGroupStart) {
      Tokenizer inside = tokenizer;
      Token first = inside.Next();
      if (first.kind == TokenKind::kSymbol && first.text == "*") first = inside.Next();
      if (first.IsWord("nonesttables")) {
        if (!CaptureGroup(tokenizer, token.end)) return out;
        tokenizer.Next();
        continue;
      }
      out += '{';
      if (level == 2 && first.IsWord("nesttableprops")) tokenizer.Seek(first.end);
    } else if (token.IsWord("itap")) {
      level = token.NumberOr(1);
      out += "\\itap" + std::to_string(level - 1) + ' ';
    } else if (level == 2 && (token.IsWord("nestcell") || token.IsWord("nestrow"))) {
      out += token.text == "nestcell" ? "\\cell " : "\\row ";
    } else {
      out += tokenizer.Source(token);
      if (token.kind == TokenKind::kWord && !out.ends_with(' ')) out += ' ';
    }
  }
  return out;
}

}  // namespace tarnwell::richtext

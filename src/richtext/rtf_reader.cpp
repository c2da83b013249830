#include "richtext/rtf_reader.h"

#include <algorithm>
#include <utility>

#include "richtext/head_tables.h"
#include "richtext/limits.h"
#include "richtext/runs.h"
#include "richtext/sections.h"
#include "richtext/text_escape.h"

namespace tarnwell::richtext {
namespace {

constexpr std::size_t kMostStates = 256;

// The second half of a character may stand behind a backslash.
bool MayBeBytes(const Token& token) {
  return token.kind == TokenKind::kByte || token.kind == TokenKind::kText ||
         token.kind == TokenKind::kSymbol;
}

}  // namespace

RtfReader::RtfReader(std::string_view rtf)
    : tokenizer_(rtf), states_(1), builder_(rtf.size(), document_.blocks) {}

RichDocument RtfReader::Read() && {
  std::size_t left = kMostTokens;
  for (; !ended_ && left > 0 && !builder_.is_full(); --left) {
    const Token token = tokenizer_.Next();
    if (token.kind == TokenKind::kEnd) break;
    Take(token);
  }
  document_.is_part = left == 0 || builder_.is_full();
  EndBytes();
  LeaveFields();
  EndParagraph(&DocumentBuilder::Finish);
  document_.epilogue = builder_.TakeEpilogue();
  document_.page = PageOfFirstSection(document_);
  document_.code_page = tables_.code_page;
  document_.default_font = tables_.default_font;
  document_.fonts = std::move(tables_.fonts);
  document_.colors = std::move(tables_.colors);
  SettleFields(document_);
  return std::move(document_);
}

void RtfReader::Take(const Token& token) {
  if (skip_ > 0 && SkipFallback(token)) return;
  if (!MayBeBytes(token)) EndBytes();
  switch (token.kind) {
    case TokenKind::kGroupStart:
      return PushGroup();
    case TokenKind::kGroupEnd:
      return PopGroup();
    case TokenKind::kWord:
      return TakeWord(token);
    case TokenKind::kSymbol:
      return TakeSymbol(token);
    case TokenKind::kByte: {
      const char byte = static_cast<char>(token.number);
      return TakeBytes(std::string_view(&byte, 1));
    }
    case TokenKind::kText:
      return TakeBytes(token.text);
    default:
      return;
  }
}

// A byte, however it is written, and a control word count as one; a group's bounds end the
// fallback.
bool RtfReader::SkipFallback(const Token& token) {
  if (token.kind == TokenKind::kGroupStart || token.kind == TokenKind::kGroupEnd) {
    skip_ = 0;
    return false;
  }
  if (token.kind != TokenKind::kText) {
    --skip_;
    return true;
  }
  const std::size_t skipped = std::min(static_cast<std::size_t>(skip_), token.text.size());
  skip_ -= static_cast<int>(skipped);
  if (skipped < token.text.size()) TakeBytes(token.text.substr(skipped));
  return true;
}

void RtfReader::TakeBytes(std::string_view bytes) {
  text_.clear();
  joiner_.Flush(text_);
  decoder_.Take(bytes, state().text_code_page, text_);
  AddText(text_);
}

// Half of a character whose other half doesn't come.
void RtfReader::EndBytes() {
  text_.clear();
  decoder_.Flush(text_);
  AddText(text_);
}

void RtfReader::TakeUnicode(int number) {
  text_.clear();
  if (number > 0xFFFF) {
    joiner_.Flush(text_);
    text::AppendUtf8(static_cast<char32_t>(number), text_);
  } else {
    const auto unit = static_cast<char16_t>(number & 0xFFFF);
    if (unit >= ' ') joiner_.Take(unit, text_);
  }
  AddText(text_);
  skip_ = state().unicode_skip;
}

void RtfReader::AddText(std::string_view utf8) {
  if (utf8.empty()) return;
  BeginBody();
  if (!state().hidden) return builder_.AddText(utf8, settled());
  // The font that it will be written in may be another of the same name.
  const int code_page = CodePageOfFont(tables_.fonts, state().character.font, tables_.code_page);
  builder_.AddOpaque({EscapeText(utf8, code_page)}, settled());
}

void RtfReader::TakeSymbol(const Token& token) {
  switch (token.text.front()) {
    case '\\':
    case '{':
    case '}':
      return TakeBytes(token.text);
    default:
      EndBytes();
  }
  switch (token.text.front()) {
    case '~':
      return AddText("\u00A0");
    case '-':
      return AddText("\u00AD");
    case '_':
      return AddText("\u2011");
    case '\t':
      return AddText("\t");
    case '\r':
    case '\n':
      BeginBody();
      return EndParagraph(&DocumentBuilder::EndParagraph);
    case '*':
      return TakeStar(token);
    case '|':
    case ':':
      return KeepInPlace(std::string(tokenizer_.Source(token)));
    default:
      return;
  }
}

void RtfReader::EndParagraph(void (DocumentBuilder::*end)(const FormatState&)) {
  if (!ended_group_) return (builder_.*end)(settled());
  FormatState own = settled();
  own.paragraph = std::move(ended_group_->paragraph);
  own.in_table = ended_group_->in_table;
  ended_group_.reset();
  (builder_.*end)(own);
}

void RtfReader::PushGroup() {
  ++depth_;
  if (depth_ < kMostStates) states_.push_back(states_.back());
}

void RtfReader::PopGroup() {
  // The last brace also ends a paragraph that has no \par: its formats hold until then.
  if (depth_ > 1 && depth_ < kMostStates && states_.size() > 1) {
    const bool changes = state().paragraph_version != states_[states_.size() - 2].paragraph_version;
    if (changes && !ended_group_ && builder_.has_text()) ended_group_ = state();
    states_.pop_back();
  }
  if (!open_fields_.empty() && open_fields_.back().depth == depth_) EndField();
  in_character_border_ = false;
  if (depth_ > 0) --depth_;
  ended_ = depth_ == 0;
}

}  // namespace tarnwell::richtext

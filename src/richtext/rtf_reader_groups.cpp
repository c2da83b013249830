#include <utility>

#include "richtext/head_tables.h"
#include "richtext/list_words.h"
#include "richtext/picture_reader.h"
#include "richtext/rtf_capture.h"
#include "richtext/rtf_reader.h"

namespace tarnwell::richtext {
namespace {

constexpr std::size_t kLongestDescription = 2048;

// The group that stands first in `body`, without its braces; all of `body` if there is none.
std::string_view FirstGroup(std::string_view body) {
  const std::size_t start = body.find('{');
  if (start == std::string_view::npos) return body;
  Tokenizer tokenizer(body, start + 1);
  const auto group = CaptureGroup(tokenizer, start + 1);
  return group ? group->body : body;
}

// Where the group that shows a field's result begins, at the depth of `tokenizer`'s place; npos if
// the field has none.
std::size_t FindResult(Tokenizer tokenizer) {
  int depth = 0;
  while (true) {
    const Token token = tokenizer.Next();
    if (token.kind == TokenKind::kEnd || token.cut) return std::string_view::npos;
    if (token.kind == TokenKind::kGroupEnd && depth-- == 0) return std::string_view::npos;
    if (token.kind != TokenKind::kGroupStart) continue;
    if (depth++ == 0 && Tokenizer(tokenizer).Next().IsWord("fldrslt")) return token.begin;
  }
}

}  // namespace

// "\*" says that a reader may pass over the group if it doesn't know its first word.
void RtfReader::TakeStar(const Token& star) {
  const Token token = tokenizer_.Next();
  if (token.kind != TokenKind::kWord) return tokenizer_.Seek(token.begin);
  KnownWord word = FindWord(token.text);
  if (word.word_class != WordClass::kDestination) word = {token.text, WordClass::kDestination};
  TakeDestination(word, star.begin);
}

void RtfReader::TakeDestination(const KnownWord& word, std::size_t begin) {
  if (depth_ < 2) return;  // in no group of its own: passing over it would swallow the document
  switch (word.word) {
    case Word::kFonts:
      return TakeFonts(begin);
    case Word::kColors:
      return TakeColors(begin);
    case Word::kStyles:
      return TakeStyles(begin);
    case Word::kPicture:
      return TakePicture(begin, false);
    case Word::kShapePicture:
      return TakePicture(begin, true);
    case Word::kField:
      return TakeField(begin);
    case Word::kResult:
      return;
    case Word::kListText:
      return TakeMarker(begin);
    case Word::kListDescription:
      return TakeListDescription(begin);
    default:
      return KeepGroup(begin);
  }
}

void RtfReader::TakeFonts(std::size_t begin) {
  const auto group = CaptureGroup(tokenizer_, begin);
  if (!group || body_begun_ || !tables_.fonts.empty()) return;
  tables_.fonts = ReadFonts(group->body, tables_.code_page);
  ResetFonts();
}

void RtfReader::ResetFonts() {
  FormatState blank;
  ResetCharacter(tables_, blank);
  for (FormatState& open : states_) {
    open.character.font = blank.character.font;
    open.text_code_page = blank.text_code_page;
  }
  builder_.SetBlank(std::move(blank.character));
}

void RtfReader::TakeColors(std::size_t begin) {
  const auto group = CaptureGroup(tokenizer_, begin);
  if (group && !body_begun_ && tables_.colors.empty()) tables_.colors = ReadColors(group->body);
}

void RtfReader::TakeStyles(std::size_t begin) {
  const auto group = CaptureGroup(tokenizer_, begin);
  if (!group) return;
  if (!body_begun_ && styles_.empty()) styles_ = group->body;
  KeepInPlace(group->Rtf(state().unicode_skip));
}

void RtfReader::BeginBody() {
  if (std::exchange(body_begun_, true)) return;
  ReadStyles(styles_, tables_);
}

void RtfReader::TakePicture(std::size_t begin, bool in_shape_group) {
  BeginBody();
  const auto group = CaptureGroup(tokenizer_, begin);
  if (!group) return;
  std::optional<Picture> picture;
  if (!state().hidden)
    picture = ReadPicture(in_shape_group ? FirstGroup(group->body) : group->body);
  if (!picture) return KeepInPlace(group->Rtf(state().unicode_skip));
  picture->in_shape_group = in_shape_group;
  builder_.AddPicture(std::move(*picture), settled());
}

void RtfReader::TakeField(std::size_t begin) {
  const std::size_t result = FindResult(tokenizer_);
  if (result == std::string_view::npos) return KeepGroup(begin);
  BeginBody();
  std::string instruction(tokenizer_.source().substr(begin, result - begin));
  const int unicode_skip = state().unicode_skip;
  if (unicode_skip != 1) instruction.insert(0, "\\uc" + std::to_string(unicode_skip));
  tokenizer_.Seek(result + 1);
  tokenizer_.Next();
  PushGroup();
  const int id = static_cast<int>(document_.fields.size());
  document_.fields.push_back({std::move(instruction), state().field});
  open_fields_.push_back({depth_, id});
  state().field = id;
}

// A field that shows nothing has no runs to name it: it is kept where it stands.
void RtfReader::EndField() {
  const int id = open_fields_.back().id;
  open_fields_.pop_back();
  if (builder_.HasField(id)) return;
  std::string rtf = "{" + document_.fields.back().instruction + "{\\fldrslt}}";
  document_.fields.pop_back();
  KeepInPlace(std::move(rtf));
}

// A result goes over paragraphs, but not over cells, tables and sections.
void RtfReader::LeaveFields() {
  if (open_fields_.empty()) return;
  for (FormatState& open : states_) open.field = kNoField;
  while (!open_fields_.empty()) EndField();
}

void RtfReader::TakeMarker(std::size_t begin) {
  BeginBody();
  const auto group = CaptureGroup(tokenizer_, begin);
  if (group) builder_.SetMarker(ReadMarker(group->body, tables_, state()));
}

// The description concerns the paragraph in which its group stands.
void RtfReader::TakeListDescription(std::size_t begin) {
  BeginBody();
  const auto group = CaptureGroup(tokenizer_, begin);
  if (!group || states_.size() < 2 || depth_ >= states_.size()) return;
  std::string rtf = group->Rtf(1);  // a group around it would keep it from the paragraph
  if (rtf.size() > kLongestDescription) return;
  FormatState& described = states_[states_.size() - 2];
  TouchParagraph(described);
  state().paragraph_version = described.paragraph_version;
  std::optional<ListItem>& list = described.paragraph.list;
  if (!list) list.emplace();
  list->description = std::move(rtf);
}

void RtfReader::KeepGroup(std::size_t begin) {
  const auto group = CaptureGroup(tokenizer_, begin);
  if (group) KeepInPlace(group->Rtf(state().unicode_skip));
}

void RtfReader::KeepInPlace(std::string rtf) {
  if (body_begun_) {
    builder_.AddInPlace(std::move(rtf), settled());
  } else {
    document_.prologue += rtf;
  }
}

}  // namespace tarnwell::richtext

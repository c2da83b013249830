#include <algorithm>

#include "richtext/kept_words.h"
#include "richtext/nested_table.h"
#include "richtext/rtf_capture.h"
#include "richtext/rtf_reader.h"

namespace tarnwell::richtext {
namespace {

constexpr int kMostFallback = 32;

int& LengthOf(Word word, Page& page) {
  switch (word) {
    case Word::kPaperWidth:
      return page.width;
    case Word::kPaperHeight:
      return page.height;
    case Word::kMarginLeft:
      return page.left_margin;
    case Word::kMarginRight:
      return page.right_margin;
    case Word::kMarginTop:
      return page.top_margin;
    default:
      return page.bottom_margin;
  }
}

std::string InPlace(std::string_view source) { return std::string(source) + ' '; }

}  // namespace

void RtfReader::TakeWord(const Token& token) {
  const KnownWord word = FindWord(token.text);
  const std::string_view source = WordSource(tokenizer_, token);
  switch (word.word_class) {
    case WordClass::kCharacter:
    case WordClass::kKeptCharacter:
      in_character_border_ = token.text == "chbrdr";
      return ApplyCharacterWord(word, token, source, tables_, state());
    case WordClass::kParagraph:
    case WordClass::kKeptParagraph:
      return TakeParagraphWord(word, token, source);
    case WordClass::kBorder:
      return TakeBorderWord(token, source);
    case WordClass::kRow:
      in_character_border_ = false;
      return builder_.row_definition().Apply(token, source, tables_);
    case WordClass::kCharacterOf: {
      text_.clear();
      text::AppendUtf8(static_cast<char32_t>(word.value), text_);
      return AddText(text_);
    }
    case WordClass::kDestination:
      return TakeDestination(word, token.begin);
    case WordClass::kKeptInPlace:
      return KeepWordInPlace(source);
    case WordClass::kStructure:
      return TakeStructureWord(word, token);
    case WordClass::kDocument:
      return TakeDocumentWord(word, token);
    case WordClass::kIgnored:
      return;
    case WordClass::kUnknown:
      return TakeUnknownWord(word, token, source);
  }
}

void RtfReader::TakeStructureWord(const KnownWord& word, const Token& token) {
  if (word.word != Word::kUnicode && word.word != Word::kUnicodeSkip) {
    BeginBody();
    defaults_begin_ = 0;
  }
  switch (word.word) {
    case Word::kParagraphEnd:
      return EndParagraph(&DocumentBuilder::EndParagraph);
    case Word::kSectionEnd:
      LeaveFields();
      return EndParagraph(&DocumentBuilder::EndSection);
    case Word::kCellEnd:
      EndParagraph(&DocumentBuilder::EndCell);
      return LeaveFields();
    case Word::kRowStart:
      LeaveFields();
      return builder_.row_definition().Start();
    case Word::kRowEnd:
      return builder_.EndRow();
    case Word::kParagraphDefaults:
      state().paragraph = ParagraphFormat{};
      state().in_table = false;
      in_character_border_ = false;
      ended_group_.reset();
      TouchParagraph(state());
      builder_.row_definition().LeaveBorder();
      defaults_begin_ = token.begin;
      defaults_depth_ = depth_;
      defaults_runs_ = builder_.run_count();
      return;
    case Word::kUnicode:
      return TakeUnicode(token.number);
    case Word::kUnicodeSkip:
      state().unicode_skip = std::clamp(token.NumberOr(1), 0, kMostFallback);
      return;
    default:
      return;
  }
}

void RtfReader::TakeDocumentWord(const KnownWord& word, const Token& token) {
  if (body_begun_) return KeepWordInPlace(WordSource(tokenizer_, token));
  switch (word.word) {
    case Word::kNamedCodePage:
      tables_.code_page = word.value;
      return ResetFonts();
    case Word::kCodePage:
      tables_.code_page = token.NumberOr(1252);
      return ResetFonts();
    case Word::kDefaultFont:
      tables_.default_font = token.number;
      return ResetFonts();
    default:
      return TakePageWord(word.word, token);
  }
}

// Those that end in "sxn" are of the first section, which is written with the prologue.
void RtfReader::TakePageWord(Word word, const Token& token) {
  if (token.text.ends_with("sxn")) return KeepWordInPlace(WordSource(tokenizer_, token));
  LengthOf(word, document_.base_page) = std::clamp(token.number, 0, kLongestLength);
}

void RtfReader::TakeBorderWord(const Token& token, std::string_view source) {
  if (in_character_border_ && HoldsKept("chbrdr", state().character.other)) {
    state().is_settled = false;
    return KeepWord(source, state().character.other);
  }
  if (builder_.row_definition().InBorder())
    return builder_.row_definition().Apply(token, source, tables_);
  // The same word stands once for each side.
  KeepWord(source, state().paragraph.other);
}

void RtfReader::TakeParagraphWord(const KnownWord& word, const Token& token,
                                  std::string_view source) {
  // A document may name its first paragraph's style before anything else of its body.
  if (word.word == Word::kStyle && !styles_.empty()) BeginBody();
  builder_.row_definition().LeaveBorder();
  in_character_border_ = false;
  if (word.word == Word::kNesting) return TakeNestedTable(token.NumberOr(1));
  TouchParagraph(state());
  ApplyParagraphWord(word, token, source, tables_, state());
}

void RtfReader::TakeUnknownWord(const KnownWord& word, const Token& token,
                                std::string_view source) {
  if (!body_begun_) return KeepInPlace(std::string(source));
  ApplyCharacterWord(word, token, source, tables_, state());
}

void RtfReader::KeepWordInPlace(std::string_view source) {
  KeepInPlace(body_begun_ ? InPlace(source) : std::string(source));
}

// Tables inside a cell are kept whole, from the \pard that begins their first paragraph.
void RtfReader::TakeNestedTable(int level) {
  const bool stands_first =
      defaults_depth_ == depth_ && defaults_runs_ == builder_.run_count() && defaults_begin_ > 0;
  if (level < 2 || !stands_first || tables_broken_) return;
  const std::size_t end = FindNestedTableEnd(tokenizer_.source(), defaults_begin_);
  tables_broken_ = end < tokenizer_.place();  // never back: a walk goes over the source once
  if (tables_broken_) return;
  std::string rtf(tokenizer_.source().substr(defaults_begin_, end - defaults_begin_));
  if (state().unicode_skip != 1) {
    rtf.insert(0, "\\uc" + std::to_string(state().unicode_skip));
  }
  defaults_begin_ = 0;
  builder_.AddOpaque({std::move(rtf), true}, settled());
  tokenizer_.Seek(end);
}

}  // namespace tarnwell::richtext

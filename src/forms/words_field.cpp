#include "forms/words_field.h"

#include <utility>

#include "text/code_page_1252.h"

namespace tarnwell::forms {

void WordsField::SetWords(text::Utf8 words) {
  words_ = std::move(words);
  TextField::SetText(text::FromUtf8(words_));
}

bool WordsField::IsText() const { return text::ToUtf8(text()) == words_; }

void WordsField::TypeWords(const text::Utf8& words) {
  if (!Reachable() || locked()) return;
  words_ = text::Utf8(TypedText(words.bytes(), words.bytes().size()));
  TextField::Type(text::FromUtf8(words_));
}

void WordsField::SetText(std::string_view text) { SetWords(text::ToUtf8(text)); }

void WordsField::Type(std::string_view text) { TypeWords(text::ToUtf8(text)); }

}  // namespace tarnwell::forms

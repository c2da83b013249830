#pragma once

#include <string>
#include <string_view>

#include "forms/text_field.h"
#include "text/utf8.h"

namespace tarnwell::forms {

// One line of words in any script, for what is compared with formatted documents and goes into
// them. text() is the nearest form in the core's code page.
class WordsField : public TextField {
 public:
  using TextField::TextField;

  const text::Utf8& words() const { return words_; }
  void SetWords(text::Utf8 words);
  // Whether text() says the same.
  bool IsText() const;

  // A person made this the content; a blank for each control character. on_change follows text().
  void TypeWords(const text::Utf8& words);

  // The same of a text in the core's code page.
  void SetText(std::string_view text);
  void Type(std::string_view text);

 private:
  text::Utf8 words_{""};
};

}  // namespace tarnwell::forms

// Bytes of a document's text to Unicode.

#pragma once

#include <string>
#include <string_view>

namespace tarnwell::richtext {

// The code page of fonts that hold symbols: a byte but the blank stands for the private character
// F000 + byte.
inline constexpr int kSymbolCodePage = 42;
inline constexpr int kSymbolCharset = 2;

// Bytes, which come in pieces of any size, to UTF-8. A tab is kept; other control characters are
// left out. A character past 7F of a code page that isn't known, and a place that its code page
// leaves open, gives "?".
class ByteDecoder {
 public:
  // Adds the UTF-8 of `bytes`. A last one that is half of a character waits for its other half.
  void Take(std::string_view bytes, int code_page, std::string& utf8);
  // Adds "?" for a half that waits: no other half follows it.
  void Flush(std::string& utf8);

 private:
  void TakeUpper(char byte, int code_page, std::string& utf8);

  char first_half_ = 0;  // 0: none waits
};

// Whether characters of the code page may have two bytes.
bool HasDoubleBytes(int code_page);

// The code page of a font's character set; `document` for the set that says nothing.
int CodePageOfCharset(int charset, int document);

}  // namespace tarnwell::richtext

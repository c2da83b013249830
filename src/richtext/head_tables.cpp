#include "richtext/head_tables.h"

#include <algorithm>

#include "richtext/code_pages.h"
#include "richtext/kept_words.h"
#include "richtext/rtf_capture.h"
#include "richtext/rtf_tokenizer.h"
#include "text/utf8.h"

namespace tarnwell::richtext {
namespace {

constexpr std::size_t kMostFonts = 1024;
constexpr std::size_t kMostColors = 65536;
constexpr std::size_t kLongestName = 64;  // bytes; a font's name has 31 characters at the most

class FontReader {
 public:
  FontReader(std::string_view body, int code_page) : tokenizer_(body), code_page_(code_page) {}

  std::vector<Font> Read() {
    for (Token token = tokenizer_.Next(); token.kind != TokenKind::kEnd;
         token = tokenizer_.Next()) {
      Take(token);
    }
    Finish();
    return std::move(fonts_);
  }

 private:
  void Take(const Token& token) {
    switch (token.kind) {
      case TokenKind::kWord:
        return TakeWord(token);
      case TokenKind::kSymbol:
        return token.text == "*" ? KeepGroup(token.begin) : TakeName(token.text);
      case TokenKind::kByte: {
        const char byte = static_cast<char>(token.number);
        return TakeName(std::string_view(&byte, 1));
      }
      case TokenKind::kText:
        return TakeName(token.text);
      case TokenKind::kGroupEnd:
        return Finish();
      default:
        return;
    }
  }

  void TakeWord(const Token& token) {
    if (token.text == "f") {
      Finish();
      font_.emplace().number = token.number;
    } else if (token.text == "u") {
      TakeUnicode(token);
    } else if (!font_) {
      return;
    } else if (token.text == "fcharset") {
      font_->charset = token.number;
    } else if (token.text != "uc") {
      KeepWord(WordSource(tokenizer_, token), font_->other);
    }
  }

  void TakeUnicode(const Token& token) {
    if (!font_) return;
    const auto character = static_cast<char32_t>(token.number & 0xFFFF);
    if (character >= ' ') text::AppendUtf8(character, font_->name);
    const Token fallback = tokenizer_.Next();
    if (fallback.kind == TokenKind::kText) tokenizer_.Seek(fallback.begin + 1);
    if (fallback.kind == TokenKind::kGroupEnd) tokenizer_.Seek(fallback.begin);
  }

  void KeepGroup(std::size_t begin) {
    const auto group = CaptureGroup(tokenizer_, begin);
    if (group && font_) KeepWord(group->Rtf(1), font_->other);
    tokenizer_.Next();
  }

  // A name ends with a semicolon.
  void TakeName(std::string_view bytes) {
    if (!font_) return;
    const std::size_t end = bytes.find(';');
    decoder_.Take(bytes.substr(0, end), NameCodePage(), font_->name);
    if (end != std::string_view::npos) Finish();
  }

  // The name of a font of symbols is no symbols.
  int NameCodePage() const {
    const int code_page = CodePageOfCharset(font_->charset, code_page_);
    return code_page == kSymbolCodePage ? 1252 : code_page;
  }

  // An entry without a name, and a second one of a number, can't be used.
  void Finish() {
    if (!font_) return;
    Font font = std::move(*font_);
    font_.reset();
    decoder_.Flush(font.name);
    std::erase(font.name, '\t');
    font.name.erase(0, std::min(font.name.find_first_not_of(' '), font.name.size()));
    if (font.name.size() > kLongestName)
      font.name.resize(text::CharacterStart(font.name, kLongestName));
    const bool is_known = std::any_of(fonts_.begin(), fonts_.end(), [&font](const Font& other) {
      return other.number == font.number;
    });
    if (font.name.empty() || is_known || fonts_.size() >= kMostFonts) return;
    fonts_.push_back(std::move(font));
  }

  Tokenizer tokenizer_;
  int code_page_;
  std::vector<Font> fonts_;
  std::optional<Font> font_;  // the entry being read
  ByteDecoder decoder_;
};

}  // namespace

int CodePageOfFont(const std::vector<Font>& fonts, const std::string& name, int document) {
  const auto own = std::ranges::find(fonts, name, &Font::name);
  return own == fonts.end() ? document : CodePageOfCharset(own->charset, document);
}

std::vector<Font> ReadFonts(std::string_view body, int document_code_page) {
  return FontReader(body, document_code_page).Read();
}

std::vector<std::optional<Color>> ReadColors(std::string_view body) {
  std::vector<std::optional<Color>> colors;
  std::optional<Color> color;
  const auto part = [&color]() -> Color& { return color ? *color : color.emplace(); };
  Tokenizer tokenizer(body);
  for (Token token = tokenizer.Next(); token.kind != TokenKind::kEnd; token = tokenizer.Next()) {
    const auto value = static_cast<std::uint8_t>(std::clamp(token.number, 0, 255));
    if (token.IsWord("red")) part().red = value;
    if (token.IsWord("green")) part().green = value;
    if (token.IsWord("blue")) part().blue = value;
    if (token.kind != TokenKind::kText) continue;
    const auto ends = std::count(token.text.begin(), token.text.end(), ';');
    for (auto i = ends; i > 0 && colors.size() < kMostColors; --i) {
      colors.push_back(color);
      color.reset();
    }
  }
  return colors;
}

}  // namespace tarnwell::richtext

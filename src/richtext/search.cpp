#include "richtext/search.h"

#include <algorithm>
#include <utility>

#include "richtext/capitals.h"
#include "richtext/paragraphs.h"
#include "text/utf8.h"

namespace tarnwell::richtext {
namespace {

constexpr std::size_t kNone = std::string::npos;

bool IsOfWord(char32_t c) {
  if (c < 0x80) return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
  // Signs of Latin-1, and punctuation.
  return c >= 0xC0 && c != 0xD7 && c != 0xF7 && !(c >= 0x2000 && c <= 0x206F) && c != 0xFFFC;
}

bool EndsInWord(std::string_view text) {
  if (text.empty()) return false;
  std::string_view last = text.substr(text::CharacterStart(text, text.size() - 1));
  return IsOfWord(text::TakeUtf8(last));
}

bool BeginsWithWord(std::string_view text) {
  return !text.empty() && IsOfWord(text::TakeUtf8(text));
}

// Looks through one paragraph after another. Capitals are as long as their small letters.
class Searcher {
 public:
  explicit Searcher(const Search& search)
      : search_(search), words_(search.match_capitals ? search.utf8 : Capitals(search.utf8)) {}

  bool LooksForNothing() const { return words_.empty(); }
  std::size_t size() const { return words_.size(); }

  void Enter(const Paragraph& paragraph) {
    text_ = ShownText(paragraph);
    if (search_.match_capitals) return;
    std::string capitals = Capitals(text_);
    if (capitals.size() == text_.size()) text_ = std::move(capitals);
  }
  // At or behind `from`.
  std::size_t Next(std::size_t from) const {
    std::size_t at = text_.find(words_, from);
    while (at != kNone && !IsPlace(at)) at = text_.find(words_, at + 1);
    return at;
  }
  // Ends at or before `before`.
  std::size_t Previous(std::size_t before) const {
    if (before < size()) return kNone;
    std::size_t at = text_.rfind(words_, before - size());
    while (at != kNone && !IsPlace(at)) at = at == 0 ? kNone : text_.rfind(words_, at - 1);
    return at;
  }
  std::size_t length() const { return text_.size(); }

 private:
  bool IsPlace(std::size_t at) const {
    const std::string_view text = text_;
    return !search_.whole_words ||
           (!EndsInWord(text.substr(0, at)) && !BeginsWithWord(text.substr(at + size())));
  }

  const Search& search_;
  std::string words_;
  std::string text_;
};

Range RangeAt(std::size_t paragraph, std::size_t at, std::size_t size) {
  const int number = static_cast<int>(paragraph);
  return {{number, static_cast<int>(at)}, {number, static_cast<int>(at + size)}};
}

std::vector<const Paragraph*> ParagraphsOf(const RichDocument& document) {
  std::vector<const Paragraph*> paragraphs;
  ForEachParagraph(document, [&](const Paragraph& paragraph) { paragraphs.push_back(&paragraph); });
  return paragraphs;
}

}  // namespace

std::optional<Range> FindNext(const RichDocument& document, const Search& search, Position from) {
  Searcher searcher(search);
  if (searcher.LooksForNothing()) return std::nullopt;
  const auto paragraphs = ParagraphsOf(document);
  const auto first = static_cast<std::size_t>(from.paragraph);
  for (std::size_t i = first; i < paragraphs.size(); ++i) {
    searcher.Enter(*paragraphs[i]);
    const std::size_t begin = i == first ? static_cast<std::size_t>(from.offset) : 0;
    if (const std::size_t at = searcher.Next(begin); at != kNone) {
      return RangeAt(i, at, searcher.size());
    }
  }
  return std::nullopt;
}

std::optional<Range> FindPrevious(const RichDocument& document, const Search& search,
                                  Position before) {
  Searcher searcher(search);
  if (searcher.LooksForNothing()) return std::nullopt;
  const auto paragraphs = ParagraphsOf(document);
  const auto last = static_cast<std::size_t>(before.paragraph);
  for (std::size_t i = std::min(last + 1, paragraphs.size()); i-- > 0;) {
    searcher.Enter(*paragraphs[i]);
    const std::size_t end = i == last ? static_cast<std::size_t>(before.offset) : searcher.length();
    if (const std::size_t at = searcher.Previous(end); at != kNone) {
      return RangeAt(i, at, searcher.size());
    }
  }
  return std::nullopt;
}

std::vector<Range> FindAll(const RichDocument& document, const Search& search) {
  std::vector<Range> places;
  Searcher searcher(search);
  if (searcher.LooksForNothing()) return places;
  std::size_t number = 0;
  ForEachParagraph(document, [&](const Paragraph& paragraph) {
    searcher.Enter(paragraph);
    for (std::size_t at = searcher.Next(0); at != kNone; at = searcher.Next(at + searcher.size())) {
      places.push_back(RangeAt(number, at, searcher.size()));
    }
    ++number;
  });
  return places;
}

}  // namespace tarnwell::richtext

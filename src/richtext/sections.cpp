#include "richtext/sections.h"

#include <algorithm>
#include <utility>

#include "richtext/kept_pieces.h"
#include "richtext/rich_text_reader.h"
#include "richtext/rich_text_writer.h"

namespace tarnwell::richtext {
namespace {

constexpr int kMostTextColumns = 20;

std::shared_ptr<const std::string> BodyOf(const KeptPiece& piece) {
  return std::make_shared<const std::string>("\\uc" + std::to_string(piece.unicode_skip) +
                                             "\\pard\\plain " + std::string(piece.body));
}

class SectionReader {
 public:
  explicit SectionReader(const RichDocument& document) : document_(document) {
    section_.page = document.base_page;
  }

  void Take(std::string_view rtf) {
    for (const KeptPiece& piece : KeptPieces(rtf)) {
      piece.is_group ? TakeGroup(piece) : TakeWord(piece);
    }
  }

  void Begin(std::size_t block) { section_.first_block = block; }
  const Section& section() const { return section_; }

 private:
  void TakeGroup(const KeptPiece& piece) {
    std::string_view name = piece.name;
    const bool is_header = name.starts_with("header");
    if (!is_header && !name.starts_with("footer")) return;
    name.remove_prefix(6);
    Furniture& furniture = is_header ? section_.header : section_.footer;
    if (name.empty()) {
      furniture.all = BodyOf(piece);
      furniture.left = nullptr;
      furniture.right = nullptr;
    }
    if (name == "l") furniture.left = BodyOf(piece);
    if (name == "r") furniture.right = BodyOf(piece);
    if (name == "f") furniture.first = BodyOf(piece);
  }

  // What it says of headers and footers stays from section to section.
  void Reset() {
    Section next;
    next.first_block = section_.first_block;
    next.page = document_.base_page;
    next.header = std::move(section_.header);
    next.footer = std::move(section_.footer);
    section_ = std::move(next);
    restarts_ = false;
    start_ = 1;
  }

  void TakeWord(const KeptPiece& word) {
    const std::string_view name = word.name;
    const int length = std::clamp(word.number, 0, kLongestLength);
    Page& page = section_.page;
    if (name == "sectd") Reset();
    if (name == "pgwsxn") page.width = length;
    if (name == "pghsxn") page.height = length;
    if (name == "marglsxn") page.left_margin = length;
    if (name == "margrsxn") page.right_margin = length;
    if (name == "margtsxn") page.top_margin = length;
    if (name == "margbsxn") page.bottom_margin = length;
    if (name == "headery") section_.header_distance = length;
    if (name == "footery") section_.footer_distance = length;
    if (name == "cols") section_.columns = std::clamp(word.number, 1, kMostTextColumns);
    if (name == "colsx") section_.column_gap = length;
    if (name == "titlepg") section_.has_first_page = !word.has_number || word.number != 0;
    TakeBreak(name);
    TakeNumbers(word);
  }

  void TakeBreak(std::string_view name) {
    using Begin = Section::Begin;
    if (name == "sbknone") section_.begin = Begin::kHere;
    if (name == "sbkcol") section_.begin = Begin::kColumn;
    if (name == "sbkpage") section_.begin = Begin::kPage;
    if (name == "sbkeven") section_.begin = Begin::kEvenPage;
    if (name == "sbkodd") section_.begin = Begin::kOddPage;
  }

  void TakeNumbers(const KeptPiece& word) {
    const std::string_view name = word.name;
    if (name == "pgndec") section_.numbers = PageNumbers::kDecimal;
    if (name == "pgnucrm") section_.numbers = PageNumbers::kUpperRoman;
    if (name == "pgnlcrm") section_.numbers = PageNumbers::kLowerRoman;
    if (name == "pgnucltr") section_.numbers = PageNumbers::kUpperLetter;
    if (name == "pgnlcltr") section_.numbers = PageNumbers::kLowerLetter;
    if (name == "pgnstarts") start_ = std::clamp(word.number, 0, kLongestLength);
    if (name == "pgnrestart") restarts_ = true;
    if (name == "pgncont") restarts_ = false;
    section_.first_number = restarts_ ? std::optional<int>(start_) : std::nullopt;
  }

  const RichDocument& document_;
  Section section_;
  bool restarts_ = false;
  int start_ = 1;
};

// What is said of the section between its paragraphs.
void TakeFrom(const Paragraph& paragraph, SectionReader& reader) {
  for (const Run& run : paragraph.runs) {
    const auto* const opaque = std::get_if<Opaque>(&run.content);
    if (opaque != nullptr && !opaque->resets_paragraph) reader.Take(opaque->rtf);
  }
}

std::string Roman(int number) {
  constexpr std::pair<int, const char*> kDigits[] = {
      {1000, "M"}, {900, "CM"}, {500, "D"}, {400, "CD"}, {100, "C"}, {90, "XC"}, {50, "L"},
      {40, "XL"},  {10, "X"},   {9, "IX"},  {5, "V"},    {4, "IV"},  {1, "I"}};
  std::string text;
  for (const auto& [value, digit] : kDigits) {
    for (; number >= value; number -= value) text += digit;
  }
  return text;
}

std::string Letters(int number) {
  return std::string(static_cast<std::size_t>((number - 1) / 26 + 1),
                     static_cast<char>('A' + (number - 1) % 26));
}

}  // namespace

std::string PageNumberText(int number, PageNumbers style) {
  constexpr int kMost = 3999;
  const bool is_decimal = style == PageNumbers::kDecimal || number < 1 || number > kMost;
  if (is_decimal) return std::to_string(number);
  const bool is_roman = style == PageNumbers::kUpperRoman || style == PageNumbers::kLowerRoman;
  std::string text = is_roman ? Roman(number) : Letters(number);
  if (style == PageNumbers::kLowerRoman || style == PageNumbers::kLowerLetter) {
    for (char& letter : text) letter = static_cast<char>(letter | 0x20);
  }
  return text;
}

Page PageOfFirstSection(const RichDocument& document) {
  SectionReader reader(document);
  reader.Take(document.prologue);
  return reader.section().page;
}

std::vector<Section> SectionsOf(const RichDocument& document) {
  std::vector<Section> sections;
  SectionReader reader(document);
  reader.Take(document.prologue);
  for (std::size_t i = 0; i < document.blocks.size(); ++i) {
    const auto* const paragraph = std::get_if<Paragraph>(&document.blocks[i]);
    if (paragraph == nullptr) continue;
    TakeFrom(*paragraph, reader);
    if (paragraph->section_break.empty()) continue;
    sections.push_back(reader.section());
    reader.Begin(i + 1);
    reader.Take(paragraph->section_break);
  }
  const bool has_rest = sections.empty() || reader.section().first_block < document.blocks.size();
  if (has_rest) sections.push_back(reader.section());
  return sections;
}

bool HasFacingPages(const RichDocument& document) {
  const auto pieces = KeptPieces(document.prologue);
  return std::ranges::any_of(pieces, [](const KeptPiece& piece) {
    return !piece.is_group && piece.name == "facingp" && (!piece.has_number || piece.number != 0);
  });
}

std::shared_ptr<const std::string> FurnitureOf(const Furniture& furniture, const Section& section,
                                               bool is_first_of_section, int number,
                                               bool has_facing_pages) {
  if (section.has_first_page && is_first_of_section) return furniture.first;
  const bool is_left = has_facing_pages && number % 2 == 0;
  const auto& own = is_left ? furniture.left : furniture.right;
  return own ? own : furniture.all;
}

PartReader::PartReader(const RichDocument& document) {
  RichDocument head;
  head.code_page = document.code_page;
  head.default_font = document.default_font;
  head.fonts = document.fonts;
  head.colors = document.colors;
  for (const KeptPiece& piece : KeptPieces(document.prologue)) {
    if (piece.name == "stylesheet") head.prologue = piece.source;
  }
  head_ = WriteRichText(head);
  head_.resize(head_.rfind('}'));
}

RichDocument PartReader::Read(const std::string& rtf) {
  const std::size_t size = head_.size() + rtf.size();
  if (size > left_) return {};
  left_ -= size;
  return ReadRichText(head_ + rtf + "}");
}

}  // namespace tarnwell::richtext

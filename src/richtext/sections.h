// The sections of a document: their paper, and what stands above and below the text of each page.

#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

enum class PageNumbers { kDecimal, kUpperRoman, kLowerRoman, kUpperLetter, kLowerLetter };

// A number as it stands on a page; letters go on with AA behind Z.
std::string PageNumberText(int number, PageNumbers style);

// The RTF of a header or a footer by the pages that it is for; null: there is none. Sections share
// what they don't change.
struct Furniture {
  std::shared_ptr<const std::string> all, left, right, first;
};

struct Section {
  enum class Begin { kPage, kEvenPage, kOddPage, kColumn, kHere };

  std::size_t first_block = 0;
  Page page;
  Begin begin = Begin::kPage;
  int columns = 1;              // 1 to 20
  int column_gap = 720;         // twips
  bool has_first_page = false;  // with a header and footer of its own
  int header_distance = 720;    // twips from the paper's upper edge
  int footer_distance = 720;    // likewise from the lower
  PageNumbers numbers = PageNumbers::kDecimal;
  std::optional<int> first_number;  // none: the pages count on
  Furniture header;
  Furniture footer;
};

// By `document`'s base page and prologue, whatever of the two was said first.
Page PageOfFirstSection(const RichDocument& document);

// In their order; there is at least one.
std::vector<Section> SectionsOf(const RichDocument& document);

// Whether left and right pages have headers and footers of their own.
bool HasFacingPages(const RichDocument& document);

// What of `header` or `footer` is for the page, null for nothing; `number` is what the page is
// counted as.
std::shared_ptr<const std::string> FurnitureOf(const Furniture& furniture, const Section& section,
                                               bool is_first_of_section, int number,
                                               bool has_facing_pages);

// Kept RTF, such as a header's or a note's text, to documents with the fonts, colours and styles of
// the one that it stands in.
class PartReader {
 public:
  explicit PartReader(const RichDocument& document);
  // Nothing once so much was read that no sound document comes near.
  RichDocument Read(const std::string& rtf);

 private:
  std::string head_;
  std::size_t left_ = 256u << 20;  // bytes
};

}  // namespace tarnwell::richtext

// The pages of a formatted document: their paper, their numbers, and what stands above and below
// the text.

#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "print/rich_box.h"
#include "print/rich_text.h"

namespace tarnwell::print {

class RichPages {
 public:
  // The document stays as long.
  RichPages(RichPrinting& printing, const richtext::RichDocument& document, const RichPaper& paper);
  RichPages(const RichPages&) = delete;
  RichPages& operator=(const RichPages&) = delete;

  const std::vector<richtext::Section>& sections() const { return sections_; }
  // The pages that begin from now on are of that section. Its first one is in hand already if it
  // `goes_on` there.
  void Begin(std::size_t section, bool goes_on);
  // What the section's first page, which is the next one, is counted as.
  int NextNumber() const;
  // Of one of the section's columns, in twips.
  int ColumnWidth(std::size_t section) const;
  // Whether the section lies on the same paper as the one in hand.
  bool HasSamePaper(std::size_t section) const;

  // Once all pages are there: places what stands above and below their texts.
  void Finish();

 private:
  struct NumberedPage {
    int page = 0;
    std::size_t section = 0;
    bool is_first = false;  // of its section
    int number = 1;
  };

  forms::PageSetup PaperOf(const richtext::Section& section) const;
  forms::PageSetup TakePage();
  int Distance(int told, int margin) const;
  using Rtf = std::shared_ptr<const std::string>;
  Rtf RtfOf(const NumberedPage& page, bool is_header) const;
  RichBox BoxOf(const Rtf& rtf, const NumberedPage& page, const forms::PageSetup& paper);
  int HeightOf(const Rtf& rtf, const NumberedPage& page, const forms::PageSetup& paper);
  void Place(const NumberedPage& page);

  RichPrinting& printing_;
  PageEngine& engine_;
  RichPaper paper_;
  std::vector<richtext::Section> sections_;
  bool has_facing_pages_;
  std::size_t section_ = 0;  // of the next page
  bool begins_ = true;       // the next page is the section's first
  std::vector<NumberedPage> pages_;
  std::map<Rtf, richtext::RichDocument> parts_;
  std::map<std::pair<Rtf, int>, int> heights_;  // by the width too
};

}  // namespace tarnwell::print

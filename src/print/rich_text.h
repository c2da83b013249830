#pragma once

#include <optional>

#include "print/page_engine.h"
#include "richtext/rich_document.h"

namespace tarnwell::print {

// Lays the document out from the engine's position on, in its margins, over as many pages as it
// takes. Sizes and colours come from the document, black where it names none; so do the fonts, the
// engine's where it names none. The document needn't stay.
void AddRichText(PageEngine& engine, const richtext::RichDocument& document);

struct RichPaper {
  std::optional<forms::PageSetup> chosen;  // in place of the author's paper and margins
  int first_top = 0;                       // twips that stay free above the first page's text
};

// The same on pages of the document's own: the paper, margins and columns of each section, its
// headers and footers with the numbers of the pages. It begins with the page in hand if nothing
// stands on that.
void AddRichPages(PageEngine& engine, const richtext::RichDocument& document,
                  const RichPaper& paper = {});

}  // namespace tarnwell::print

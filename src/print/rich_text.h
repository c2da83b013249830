#pragma once

#include <optional>

#include "print/page_engine.h"
#include "richtext/rich_document.h"

namespace tarnwell::print {

// Lays the document out from the engine's position on, in its margins, over as many pages as it
// takes. Sizes and colours come from the document, black where it names none; so do the fonts, the
// engine's where it names none. The document needn't stay.
void AddRichText(PageEngine& engine, const richtext::RichDocument& document);

// The same on pages of the document's own: the paper, margins and columns of each section, its
// headers and footers with the numbers of the pages. It begins with the page in hand if nothing
// stands on that. `chosen` takes the place of the author's paper and margins.
void AddRichPages(PageEngine& engine, const richtext::RichDocument& document,
                  const std::optional<forms::PageSetup>& chosen = std::nullopt);

}  // namespace tarnwell::print

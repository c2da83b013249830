#pragma once

#include "print/page_engine.h"
#include "richtext/rich_document.h"

namespace tarnwell::print {

// Lays the document out from the engine's position on, in its margins, over as many pages as it
// takes. Sizes and colours come from the document, black where it names none; so do the fonts, the
// engine's where it names none. The document needn't stay.
void AddRichText(PageEngine& engine, const richtext::RichDocument& document);

}  // namespace tarnwell::print

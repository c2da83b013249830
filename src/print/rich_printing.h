// What all parts of a formatted document share while it is laid out.

#pragma once

#include "print/printed_text.h"
#include "print/rich_style.h"
#include "richtext/sections.h"

namespace tarnwell::print {

struct RichPrinting {
  RichPrinting(PageEngine& pages, const richtext::RichDocument& document)
      : engine(pages), styles(pages, document), parts(document) {}

  PageEngine& engine;
  RichStyles styles;
  PrintedText text;
  richtext::PartReader parts;  // headers, notes, tables inside cells
  int depth = 0;               // of tables inside cells
};

}  // namespace tarnwell::print

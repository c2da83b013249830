#pragma once

#include <vector>

#include "print/rich_printing.h"

namespace tarnwell::print {

// The text boxes and floating pictures that hang on a paragraph, in their order, as tables of one
// cell with their width and their place from the left. On paper they have a room of their own above
// it, so that nothing lies over a text; drawings without a text are left out.
std::vector<richtext::Table> TextBoxesOf(RichPrinting& printing,
                                         const richtext::Paragraph& paragraph);

}  // namespace tarnwell::print

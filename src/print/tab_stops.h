#pragma once

#include "richtext/rich_document.h"

namespace tarnwell::print {

// The stop that a tab at `x` goes to; positions are twips from the left edge of the column. Behind
// the stops that the paragraph names, and where it names none, stands one every half inch. In a
// hanging paragraph the left indent is a stop as well. Bars aren't stops.
richtext::TabStop NextTabStop(const richtext::ParagraphFormat& format, double x);

}  // namespace tarnwell::print

#pragma once

#include "forms/context.h"
#include "forms/page.h"

namespace tarnwell::print {

// Gives the pages to the printer of the system. A print that failed is told.
void PrintPages(forms::Context& context, const forms::Document& document);

}  // namespace tarnwell::print

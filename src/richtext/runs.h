#pragma once

#include <vector>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// Whether `next` goes on where `last` ends: both texts, or both opaque, of one format and field. If
// so, `last` takes it in.
bool TakeIn(const Run& next, Run& last);

// Gives up fields where they go on into another cell, table or section, because the stored form
// can't say so, and numbers those that are left anew.
void SettleFields(RichDocument& document);

}  // namespace tarnwell::richtext

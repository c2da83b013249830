// What an entry screen copies and prints: one record, or a worksheet to fill in by hand.

#pragma once

#include <string>
#include <vector>

#include "forms/pictures.h"
#include "print/page_engine.h"
#include "record_book/entry_style.h"

namespace tarnwell::record_book {

// The screen's labels in their order; a second line of an address has none.
std::vector<std::string> LabelsOf(const EntryStyle& style);

// The caption that stands before an entry in a copy and on the sheet. From entry 4 on it is that of
// the label one number lower. A contact has two second lines, so its entries from 16 on come with
// the caption of the next one; copies of other years have them so too.
std::string CaptionBefore(const EntryStyle& style, int entry);

// A line for each entry that isn't empty.
std::string CopiedText(const EntryStyle& style, const std::vector<std::string>& entries);

enum class SheetPicture { kNone, kSmall, kLarge };

// How large the picture is at most, in inches.
int InchesOf(SheetPicture size);

// The entries from 2 to 16 that aren't empty, below the heading and the picture.
void PrintInformationSheet(print::PageEngine& engine, const EntryStyle& style,
                           const std::vector<std::string>& entries,
                           const forms::LoadedPicture& picture, SheetPicture size);

void PrintWorksheet(print::PageEngine& engine, const EntryStyle& style);

}  // namespace tarnwell::record_book

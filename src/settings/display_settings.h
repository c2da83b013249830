// How the window comes up. The records are in docs/formats/gcolor3.md and docs/formats/hinv3.md.

#pragma once

#include "storage/fault.h"
#include "storage/program_folder.h"
#include "storage/tagged_value.h"

namespace tarnwell::settings {

// The window of the smaller-screen display. Sizes are in twips, 0 where nothing is stored.
struct Display {
  bool smaller_screen = false;
  double height = 0;
  double width = 0;
};

// Nobody has started the program on this folder before. To be asked before anything else is read:
// every start makes the file of the start screen's background.
bool IsFirstStart(storage::ProgramFolder& folder);

Display ReadDisplay(storage::ProgramFolder& folder);

storage::Outcome WriteSmallerScreen(storage::ProgramFolder& folder, bool smaller_screen);
// The present size of a window is stored in single precision.
storage::Outcome WriteWindowSize(storage::ProgramFolder& folder, float height, float width);
// The default size is stored as two whole numbers.
storage::Outcome WriteDefaultWindowSize(storage::ProgramFolder& folder);

inline constexpr int kDefaultHeight = 11200;  // twips
inline constexpr int kDefaultWidth = 15100;
// A stored height below this one, and only then, is replaced by the default.
inline constexpr int kLeastStoredHeight = 11100;

// Background of the start screen: a 32-bit colour, the text "Def" for the system's own, or empty.
storage::TaggedValue ReadStartBackground(storage::ProgramFolder& folder);
storage::Outcome WriteStartBackground(storage::ProgramFolder& folder,
                                      const storage::TaggedValue& color);

}  // namespace tarnwell::settings

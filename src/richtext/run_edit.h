// Editing within one paragraph. Offsets are bytes of its shown text, at the beginning of a
// character.

#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// The parts before and behind `offset`. What isn't shown goes with the characters it stands behind;
// at the very beginning, with those before which it stands.
struct SplitRuns {
  std::vector<Run> head;
  std::vector<Run> tail;
};
SplitRuns Split(const std::vector<Run>& runs, int offset);

// Adds `more` behind `runs`; runs that go on where the one before ends are taken in by it.
void AppendRuns(std::vector<Run> more, std::vector<Run>& runs);

// Takes out what is shown between the offsets and leaves what isn't.
void EraseShown(int from, int to, std::vector<Run>& runs);

void InsertRuns(std::vector<Run> inserted, int offset, std::vector<Run>& runs);

// Changes the formats of what is shown between the offsets.
void Reformat(int from, int to, const std::function<void(CharacterFormat&)>& change,
              std::vector<Run>& runs);

// The format and field of what is typed at `offset`: those to its left, at the beginning those to
// its right, in an empty paragraph the mark's. It goes on in a field only between two of its runs.
struct Typing {
  CharacterFormat format;
  int field = kNoField;
};
Typing TypingAt(const Paragraph& paragraph, int offset);

// The format of the first character behind `offset`, or at the paragraph's end of the last one.
CharacterFormat FormatBehind(const Paragraph& paragraph, int offset);

}  // namespace tarnwell::richtext

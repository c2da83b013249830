#include "print/rich_notes.h"

#include <algorithm>
#include <utility>

namespace tarnwell::print {
namespace {

constexpr int kLineLength = 2880;  // at the most

}  // namespace

std::vector<RichBox> RichNotes::LayOut(std::vector<FoundNote> notes) {
  std::vector<RichBox> boxes;
  for (FoundNote& note : notes) {
    if (note.is_endnote) {
      endnotes_.push_back(std::move(note));
      continue;
    }
    RichBox& box = boxes.emplace_back(printing_, engine_.ColumnWidth(),
                                      std::max(engine_.column_height() / 2, 1));
    printing_.text.BeginNote(note.number);
    box.Add(printing_.parts.Read(note.rtf).blocks);
    printing_.text.EndNote();
  }
  return boxes;
}

bool RichNotes::HasFoot() const {
  return !feet_.empty() && feet_.back().page == engine_.page_count() - 1 &&
         feet_.back().left == engine_.left();
}

int RichNotes::HeightOf(const std::vector<RichBox>& notes) const {
  if (notes.empty()) return 0;
  int height = HasFoot() ? 0 : kRoomAboveNotes;
  for (const RichBox& note : notes) height += note.HeightLeft();
  return height;
}

void RichNotes::Add(std::vector<RichBox> notes, bool has_room) {
  if (notes.empty()) return;
  if (!HasFoot()) {
    const int bottom = engine_.page_height() - engine_.paper().margins.bottom;
    feet_.push_back({engine_.page_count() - 1, engine_.left(), bottom, kRoomAboveNotes, {}});
    if (!has_room) engine_.Reserve(kRoomAboveNotes);
  }
  Foot& foot = feet_.back();
  for (RichBox& note : notes) {
    std::size_t count = note.count_left();
    int height = note.HeightLeft();
    if (!has_room) {
      count = rest_.empty() ? note.FittingLines(engine_.bottom() - engine_.y()) : 0;
      if (count < note.count_left()) height = note.HeightOf(count);
      engine_.Reserve(height);
    }
    foot.height += height;
    const bool goes_on = count < note.count_left();
    if (goes_on) {
      rest_.push_back(note);
      rest_.back().Drop(count);
    }
    foot.notes.emplace_back(std::move(note), count);
  }
}

void RichNotes::Finish() {
  for (Foot& foot : feet_) {
    engine_.OnPage(foot.page, [&] {
      int y = foot.bottom - foot.height;
      const int width = std::min(kLineLength, engine_.right() - foot.left);
      engine_.Add(forms::PlacedLine{foot.left, y + kRoomAboveNotes / 2,
                                    foot.left + std::max(width, 1), y + kRoomAboveNotes / 2});
      y += kRoomAboveNotes;
      for (auto& [note, count] : foot.notes) {
        const int height = note.count_left() == count ? note.HeightLeft() : note.HeightOf(count);
        note.PlaceNext(count, foot.left, y);
        y += height;
      }
    });
  }
}

}  // namespace tarnwell::print

// Undo and redo.

#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <vector>

#include "richtext/editor.h"

namespace tarnwell::richtext {

enum class StepKind { kTyping, kErasing, kOther };

// Keeps at most kMostSteps steps and kMostBytes of texts and pictures, whichever is less; of the
// latest step at least.
class History {
 public:
  static constexpr std::size_t kMostSteps = 500;
  static constexpr std::size_t kMostBytes = 64u << 20;

  struct Outcome {
    Range selection;
    std::vector<ChangedSpan> spans;
  };

  void Clear();
  // What an editor did to the document, with the selections before and behind it. Typing goes into
  // the step of the typing before it as long as nobody calls EndStep, and erasing likewise.
  void Record(const Editor& editor, const RichDocument& document, Range before, Range after,
              StepKind kind);
  void EndStep() { is_open_ = false; }

  bool CanUndo() const { return done_ > 0; }
  bool CanRedo() const { return done_ < steps_.size(); }
  // Empty where there is nothing to take back.
  std::optional<Outcome> Undo(RichDocument& document);
  std::optional<Outcome> Redo(RichDocument& document);

 private:
  struct Step {
    std::vector<Change> changes;
    Range before;
    Range after;
    StepKind kind = StepKind::kOther;
    std::size_t fields_before = 0;
    std::vector<Field> fields;  // that came with fragments
    std::size_t size = 0;
  };

  bool TakeIn(const Step& step);
  void Forget();

  std::deque<Step> steps_;
  std::size_t done_ = 0;  // steps from there on have been taken back
  std::size_t size_ = 0;
  bool is_open_ = false;
};

}  // namespace tarnwell::richtext

#include "richtext/history.h"

#include <utility>

namespace tarnwell::richtext {
namespace {

std::size_t SizeOf(const std::vector<Change>& changes) {
  std::size_t size = 0;
  for (const Change& change : changes) size += SizeOf(change);
  return size;
}

}  // namespace

void History::Clear() { *this = History(); }

void History::Record(const Editor& editor, const RichDocument& document, Range before, Range after,
                     StepKind kind) {
  if (editor.changes().empty()) return;
  while (CanRedo()) {
    size_ -= steps_.back().size;
    steps_.pop_back();
  }
  Step step{editor.changes(), before, after, kind, editor.fields_before(), {}, 0};
  step.fields.assign(document.fields.begin() + static_cast<std::ptrdiff_t>(step.fields_before),
                     document.fields.end());
  if (!TakeIn(step)) {
    step.size = SizeOf(step.changes);
    size_ += step.size;
    steps_.push_back(std::move(step));
  }
  done_ = steps_.size();
  is_open_ = kind != StepKind::kOther;
  Forget();
}

bool History::TakeIn(const Step& step) {
  if (!is_open_ || steps_.empty()) return false;
  Step& last = steps_.back();
  if (last.kind != step.kind || last.after != step.before || step.changes.size() != 1) {
    return false;
  }
  Change& change = last.changes.back();
  const Change& next = step.changes.front();
  if (change.where != next.where || change.after.size() != next.before.size()) return false;
  change.after = next.after;
  last.after = step.after;
  size_ -= std::exchange(last.size, SizeOf(last.changes));
  size_ += last.size;
  return true;
}

void History::Forget() {
  while (steps_.size() > 1 && (steps_.size() > kMostSteps || size_ > kMostBytes)) {
    size_ -= steps_.front().size;
    steps_.pop_front();
  }
  done_ = steps_.size();
}

std::optional<History::Outcome> History::Undo(RichDocument& document) {
  is_open_ = false;
  if (!CanUndo()) return std::nullopt;
  const Step& step = steps_[--done_];
  Outcome outcome{step.before, {}};
  for (auto change = step.changes.rbegin(); change != step.changes.rend(); ++change) {
    outcome.spans.push_back(TakeBack(*change, document));
  }
  document.fields.resize(step.fields_before);
  return outcome;
}

std::optional<History::Outcome> History::Redo(RichDocument& document) {
  is_open_ = false;
  if (!CanRedo()) return std::nullopt;
  const Step& step = steps_[done_++];
  Outcome outcome{step.after, {}};
  for (const Change& change : step.changes) outcome.spans.push_back(Apply(change, document));
  document.fields.insert(document.fields.end(), step.fields.begin(), step.fields.end());
  return outcome;
}

}  // namespace tarnwell::richtext

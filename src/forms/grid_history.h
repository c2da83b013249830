#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "forms/grid_parts.h"

namespace tarnwell::forms {

// What a person did to a cell.
struct GridEdit {
  GridPlace place;
  std::string before;
  std::string after;
};

// The way back through a person's edits and forward again, at most kMost of them.
class GridHistory {
 public:
  static constexpr std::size_t kMost = 500;

  // What was undone before can't be done again then.
  void Add(GridEdit edit);
  // The last one added, for its text to be mended; nullptr where the next step forward is another.
  GridEdit* last() { return done_ == 0 ? nullptr : &edits_[done_ - 1]; }
  // What would be undone or done again; nullptr for nothing.
  const GridEdit* Back() const { return done_ == 0 ? nullptr : &edits_[done_ - 1]; }
  const GridEdit* Forward() const { return done_ == edits_.size() ? nullptr : &edits_[done_]; }
  void GoBack() { --done_; }
  void GoForward() { ++done_; }

  void Forget();
  void Forget(GridPlace place);
  // The rows have moved: `to` tells where each one lies now, 0 for one that is gone.
  void MoveRows(const std::function<int(int)>& to);

 private:
  template <typename Predicate>
  void Drop(Predicate goes);

  std::vector<GridEdit> edits_;
  std::size_t done_ = 0;  // of edits_; those behind were undone
};

}  // namespace tarnwell::forms

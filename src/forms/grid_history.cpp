#include "forms/grid_history.h"

#include <utility>

namespace tarnwell::forms {

void GridHistory::Add(GridEdit edit) {
  edits_.resize(done_);
  if (edits_.size() == kMost) edits_.erase(edits_.begin());
  edits_.push_back(std::move(edit));
  done_ = edits_.size();
}

void GridHistory::Forget() {
  edits_.clear();
  done_ = 0;
}

template <typename Predicate>
void GridHistory::Drop(Predicate goes) {
  std::vector<GridEdit> kept;
  std::size_t done = 0;
  for (std::size_t i = 0; i < edits_.size(); ++i) {
    if (goes(edits_[i])) continue;
    kept.push_back(std::move(edits_[i]));
    if (i < done_) ++done;
  }
  edits_ = std::move(kept);
  done_ = done;
}

void GridHistory::Forget(GridPlace place) {
  if (edits_.empty()) return;
  Drop([place](const GridEdit& edit) { return edit.place == place; });
}

void GridHistory::MoveRows(const std::function<int(int)>& to) {
  for (GridEdit& edit : edits_) edit.place.row = to(edit.place.row);
  Drop([](const GridEdit& edit) { return edit.place.row == 0; });
}

}  // namespace tarnwell::forms

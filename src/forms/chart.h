#pragma once

#include <functional>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/chart_picture.h"
#include "forms/control.h"

namespace tarnwell::forms {

// A chart of amounts. A person clicks its points.
class Chart : public Control {
 public:
  Chart(Container& parent, std::string_view name, std::string_view spoken_name)
      : Control(parent, name) {
    SetSpokenName(spoken_name);
  }

  const ChartPicture& picture() const { return picture_; }
  // Other points; none stands out.
  void SetPoints(std::vector<ChartPoint> points) {
    Take(std::move(points), picture_.kind, picture_.horizontal, ChartPicture::kNone);
  }
  void SetKind(ChartKind kind) {
    Take(picture_.points, kind, picture_.horizontal, picture_.highlight);
  }
  void SetHorizontal(bool horizontal) {
    Take(picture_.points, picture_.kind, horizontal, picture_.highlight);
  }
  // A point counted from 0; ChartPicture::kNone or any other number for none.
  void SetHighlight(int point) {
    Take(picture_.points, picture_.kind, picture_.horizontal,
         HasPoint(point) ? point : ChartPicture::kNone);
  }

  void ClickPoint(int point) {
    if (Reachable() && HasPoint(point) && on_point) on_point(point);
  }
  std::function<void(int point)> on_point;

 private:
  bool HasPoint(int point) const {
    return point >= 0 && point < static_cast<int>(picture_.points.size());
  }
  void Take(std::vector<ChartPoint> points, ChartKind kind, bool horizontal, int highlight) {
    ChartPicture next{std::move(points), kind, horizontal, highlight};
    if (next == picture_) return;
    picture_ = std::move(next);
    Changed();
  }

  ChartPicture picture_;
};

}  // namespace tarnwell::forms

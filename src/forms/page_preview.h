#pragma once

#include <algorithm>
#include <string_view>

#include "forms/control.h"
#include "forms/page.h"

namespace tarnwell::forms {

enum class Zoom {
  kNormal,
  kEnlarged,   // the preview takes the whole screen
  kWholePage,  // the page takes the whole preview
};

// Shows the pages of a document one at a time.
class PagePreview : public Control {
 public:
  PagePreview(Container& parent, std::string_view name, std::string_view spoken_name)
      : Control(parent, name) {
    SetSpokenName(spoken_name);
  }

  // nullptr for none. The document stays its owner's and must not change while it is shown.
  const Document* document() const { return document_; }
  // On its first page.
  void SetDocument(const Document* document) {
    document_ = document;
    page_ = 0;
    Changed();
  }
  int page_count() const { return document_ ? static_cast<int>(document_->pages.size()) : 0; }
  int page() const { return page_; }  // from 0

  Zoom zoom() const { return zoom_; }
  void SetZoom(Zoom zoom) {
    zoom_ = zoom;
    Changed();
  }
  // Lines along the margins, never printed.
  bool guide_lines() const { return guide_lines_; }
  void SetGuideLines(bool shown) {
    guide_lines_ = shown;
    Changed();
  }

  // A person turns to a page; to the nearest where there is none of that number.
  void TurnTo(int page) {
    const int nearest = std::clamp(page, 0, std::max(page_count() - 1, 0));
    if (!Reachable() || nearest == page_) return;
    page_ = nearest;
    Changed();
  }

 private:
  const Document* document_ = nullptr;
  int page_ = 0;
  Zoom zoom_ = Zoom::kNormal;
  bool guide_lines_ = false;
};

}  // namespace tarnwell::forms

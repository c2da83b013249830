#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "workarea/named_pane.h"

namespace tarnwell::workarea {

// The archive: dated copies of documents, to be read, printed, copied and deleted, and never
// changed.
class ArchivePane : public NamedPane {
 public:
  using NamedPane::NamedPane;

  // Puts a copy of what the view shows into the archive, once the user agreed. The document in hand
  // and its unsaved changes stay as they are.
  void Create(std::string_view title);

  bool Has(Area area) const override { return area == kArchive; }
  bool Save() override { return true; }
  void InsertTemplate() override {}
  void Exit() override { on_exit(); }
  PaneMenu Menu() override;

  std::function<void()> on_exit;

 private:
  void Show(Area area) override;
  void ShowDocument(const std::string& name) override;
  std::string KindWord() const override { return "Archive Documents"; }
};

}  // namespace tarnwell::workarea

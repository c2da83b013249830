#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/command.h"
#include "forms/panel.h"
#include "workarea/document_pane.h"
#include "workarea/status_choice.h"

namespace tarnwell::workarea {

// The buttons of a document group. Those of one group are `panel`'s only children.
struct DocumentButtons {
  DocumentButtons(forms::Container& parent, const DocumentGroup& which);

  const DocumentGroup& group;
  forms::Panel panel;
  std::vector<std::unique_ptr<forms::Command>> buttons;  // in the order of group.documents
};

// The areas with numbered documents: agreements, employee documents, policies.
class DocumentsPane : public DocumentPane {
 public:
  DocumentsPane(forms::Container& parent, forms::Context& context, DocumentView& view);

  std::vector<std::unique_ptr<DocumentButtons>> groups;

  bool Has(Area area) const override;
  bool Save() override;
  void InsertTemplate() override;
  void PickView(int option) override;
  void PickStatus() override;
  void CloseDocument() override;
  PrintedDocument ToPrint() override;

 private:
  std::optional<forms::Draft> Place() override;
  bool GoTo(forms::DraftTexts& place) override;
  void Show(Area area) override;
  void Hide() override;
  void Choose(const DocumentGroup& group, std::size_t place);
  void Paint(const forms::Command* chosen);
  void ShowText();
  // Of one of the texts of the document in hand.
  std::string FileOf(int text) const;
  int number() const { return group_->base + document_->index; }

  forms::Context& context_;
  StatusChoice status_;
  const DocumentGroup* group_ = nullptr;
  const DocumentButton* document_ = nullptr;
  int text_ = kPolicyText;
  std::string title_;
};

}  // namespace tarnwell::workarea

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "workarea/document_pane.h"
#include "workarea/named_documents.h"
#include "workarea/names_panel.h"

namespace tarnwell::workarea {

// A pane whose documents are chosen from a list of names.
class NamedPane : public DocumentPane {
 public:
  NamedPane(forms::Context& context, DocumentView& view, NamesPanel& names)
      : DocumentPane(view), context_(context), names_(names) {}

  void CloseDocument() override;
  void Exit() override { OfferNames(); }
  PrintedDocument ToPrint() override;

 protected:
  // What the documents of a kind are called, in the plural.
  virtual std::string KindWord() const = 0;
  // Shows the document of a name that was picked.
  virtual void ShowDocument(const std::string& name) = 0;
  // What the document in hand is called; empty for none.
  virtual std::string Title() const { return shown_; }
  void Hide() override;

  // Takes the panel, for names of that kind.
  void TakePanel(const NamedDocumentKind& kind);
  // Names can be picked and deleted, or one is typed for something new.
  enum class State { kSelect, kName };
  void SetState(State state);
  // Without a document: one can be picked.
  void OfferNames();
  // The list as it is on the disk now; the heading says how many there are.
  void ReadNames();
  void OpenNamed(const std::string& name, DocumentView::Access access);

  // Reads the names of that kind, without the panel. False when they can't be: the user was told.
  bool ReadKind(const NamedDocumentKind& kind);
  NamedDocuments& documents() { return *documents_; }
  // Lets `write` make the document's file and lists the name. Where the disk refuses either, the
  // user was told, and a new name has neither.
  bool Keep(std::string_view name, const std::function<bool(const std::string& file)>& write);
  // Before the document in hand is left for that action. False when it has to stay.
  bool SettleBefore(std::string_view action);

  forms::Context& context_;
  NamesPanel& names_;
  std::string shown_;  // the listed name whose document is in hand

 private:
  void SelectExisting();
  void PickName();
  void DeletePicked();
  void MarkShown();

  std::optional<NamedDocuments> documents_;
  State state_ = State::kSelect;
};

}  // namespace tarnwell::workarea

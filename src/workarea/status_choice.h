#pragma once

#include <span>
#include <string_view>

#include "forms/context.h"
#include "workarea/document_status.h"
#include "workarea/document_view.h"

namespace tarnwell::workarea {

// The list in which the view shows a document's status, and what is stored of it. The panes of the
// areas share the list; each has a choice of its own.
class StatusChoice {
 public:
  StatusChoice(forms::Context& context, DocumentView& view) : context_(context), view_(view) {}

  // The area is entered: reads what is stored, and fills the list with its words.
  void Take(std::string_view label, std::span<const std::string_view> words);
  // Of the document in hand.
  void Show(int record);
  // Without a document.
  void Close();
  // A person picked a word for that record: stores it, or tells why not and takes it back.
  void Store(int record);
  // The document is gone, and its status with it. False when the disk refused: the user was told.
  bool Forget(int record);

 private:
  bool Put(int record, std::string_view word);

  forms::Context& context_;
  DocumentView& view_;
  DocumentStatus status_;
  std::span<const std::string_view> words_;
  bool is_readable_ = true;
};

}  // namespace tarnwell::workarea

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/context.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "forms/rich_text_box.h"
#include "parts/find_bar.h"
#include "parts/format_bar.h"
#include "parts/save_question.h"
#include "richtext/rich_text_writer.h"
#include "workarea/document_printing.h"
#include "workarea/text_tools.h"

namespace tarnwell::workarea {

// Whose documents the view shows: a pane.
class DocumentOwner {
 public:
  virtual ~DocumentOwner() = default;

  // Writes what is on show. False when the disk refused.
  virtual bool Save() = 0;
  virtual void InsertTemplate() = 0;
  // A choice among the texts of a document, or of its status; not every owner has them.
  virtual void PickView(int) {}
  virtual void PickStatus() {}
  // "E&xit": empties the view, which is settled.
  virtual void CloseDocument() = 0;
  virtual void Exit() { CloseDocument(); }
  virtual PrintedDocument ToPrint() = 0;
};

// The right part of the hub: a document in its text box, and what is done to it. The panes of the
// areas share it and decide which file is on show.
class DocumentView {
 public:
  DocumentView(forms::Container& parent, forms::Context& context);

  forms::Panel panel;
  forms::Label heading{panel, "Label6", {}, forms::LabelRole::kHeading};
  forms::Label status_label{panel, "Label5", "Current Status:"};
  forms::ComboBox status{panel, "Combo1", "Current Status"};
  forms::Panel actions{panel, "SSFrame1", "Actions"};
  forms::OptionGroup views;
  forms::RichTextBox text{panel, "Rtext1", {.spoken_name = "Document"}};
  parts::FormatBar format;
  parts::FindBar find;
  forms::Command insert_template{panel, "SSCommand2", "&Insert Template"};
  TextTools tools;
  forms::Command print_options{panel, "SSCommand5", "&Print Options"};
  forms::Command save{panel, "SSCommand6", "&Save"};
  forms::Command exit{panel, "SSCommand7", "E&xit"};

  // Which choices its documents have: of a status, and among three texts.
  void ShowChoices(bool of_status, bool of_text);
  // Its commands are the owner's from now on. Without one there is nothing to choose.
  void LendTo(DocumentOwner* owner);
  DocumentOwner* owner() const { return owner_; }

  // What can be done: nothing without a document; leaving it alone when it can't be read; reading;
  // or everything.
  enum class Access { kNone, kUnreadable, kRead, kEdit };
  Access access() const { return access_; }
  // A text can be read, whether or not it can be edited.
  bool is_readable() const { return access_ >= Access::kRead; }

  // Shows the file's document; a missing file gives an empty view. In the place of one that can't
  // be read the view says so and why, and is locked.
  void Open(std::string_view file, Access access);
  // Without a document.
  void Clear();
  // A new document, empty.
  void OpenNew();
  // Likewise with the text of a file to start from, which isn't saved yet. Without that file the
  // user is told, and what is on show stays.
  bool OpenTemplate(std::string_view file);
  // Shows a supplied file's document as a new, unsaved text of the document in hand. Before that
  // the user must agree to lose what is on show, if there is anything and unless it `is_spare`;
  // `kind` is the box's word for it.
  void InsertTemplate(std::string_view file, std::string_view kind, bool is_spare = false);

  // What is on show as a file holds it.
  std::string Bytes() const { return richtext::SaveRichText(text.document(), stored_); }
  // Writes what is on show; where nobody changed what was read, its very bytes. False when the disk
  // refused: the user was told, and the text stays, unsaved.
  bool Write(std::string_view file);

  // Holds as long as edited text is on show that isn't saved.
  bool unsaved() const { return question_.unsaved(); }
  // Shows that document, as typed and not saved, in the place of the one that is open.
  void PutUnsaved(std::string bytes);
  // What was written isn't kept after all.
  void MarkUnsaved() { question_.SetUnsaved(true); }
  // Offers to save what is unsaved. False when that was wanted and didn't work.
  bool OfferToSave() { return question_.Offer() != parts::SaveResult::kFailed; }
  // Likewise before the text is left. False when it has to stay.
  bool Settle(const parts::SaveWords& words = {}) { return question_.Settle(words); }

  void CopyToClipboard();
  // "Format", with the keys of all that is done to the text.
  void AddMenu(forms::MenuItem& menus);

  std::function<void()> on_saved;
  std::function<void(PrintedDocument)> on_print;
  std::function<void()> on_archive;       // a copy of what is on show
  std::function<void()> on_view_archive;  // what was copied

 private:
  void ConnectCommands();
  parts::SaveResult Save();
  void SetAccess(Access access);
  void Show(std::string bytes);
  std::optional<std::string> ReadTemplate(std::string_view file);

  forms::Context& context_;
  richtext::StoredForm stored_;  // of the document on show
  parts::SaveQuestion question_;
  DocumentOwner* owner_ = nullptr;
  Access access_ = Access::kNone;
};

}  // namespace tarnwell::workarea

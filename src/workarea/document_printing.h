// What the hub prints: the texts of the document in hand, or all documents together.

#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "forms/context.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "forms/progress_bar.h"
#include "print/print_panel.h"
#include "richtext/rich_document.h"
#include "storage/fault.h"
#include "workarea/areas.h"

namespace tarnwell::workarea {

// A text, or why it can't be read.
struct PrintedText {
  richtext::RichDocument document;
  storage::Fault fault = storage::Fault::kNone;
};

inline constexpr std::string_view kImplementationText = "Implementation specification";
inline constexpr std::string_view kSafeguardsText = "All Safeguards";

// A document with the texts that can be printed of it.
struct PrintedDocument {
  std::string title;
  int on_show = kPolicyText;                  // the text that is ticked when the panel opens
  bool has_texts = false;                     // there are all three to choose from
  std::function<PrintedText(int text)> text;  // what it is at present
  // What else can be printed of it: the caption of its box, and what it puts on the page. Where
  // there is only the caption, the user is told so.
  std::string_view first_text = kImplementationText;
  std::function<void(print::PageEngine&)> print_first = {};
};

class DocumentPrinting {
 public:
  DocumentPrinting(forms::Container& parent, forms::Context& context);

  print::PrintPanel print;
  forms::CheckBox first;  // in front of the texts
  // One for each text of a document.
  std::array<forms::CheckBox, 3> texts;
  forms::Panel all_panel;
  forms::Label all_note;
  forms::ProgressBar all_progress;

  enum class Breaks { kNone, kPages };

  void Open(PrintedDocument document);
  // A report of a grid, with the choices that such reports have.
  void OpenReport(print::PrintJob job);
  // Every document that has text, one behind the other. Those that can't be read are named.
  void OpenAll(Breaks breaks);

 private:
  enum class Printed { kDocument, kAllDocuments, kReport };
  void ShowChoices(Printed printed);
  void TickFirst();
  void Tick(int text);
  void Build(print::PageEngine& engine);
  void BuildAll(print::PageEngine& engine, Breaks breaks);
  void Gather(print::PageEngine& engine, Breaks breaks);
  void Untick(forms::CheckBox& box);

  forms::Context& context_;
  PrintedDocument document_;
  bool unticking_ = false;
  int printed_ = 0;
  std::string left_out_;  // a line for each document that couldn't be read
};

}  // namespace tarnwell::workarea

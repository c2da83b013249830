#include "workarea/document_printing.h"

#include <initializer_list>
#include <utility>

#include "forms/disk_trouble.h"
#include "forms/message.h"
#include "print/report.h"
#include "print/rich_text.h"
#include "richtext/plain_text.h"
#include "richtext/rich_text_reader.h"
#include "storage/file_names.h"

namespace tarnwell::workarea {
namespace {

constexpr forms::Margins kMarginsOfAll{.left = 600, .top = 750, .right = 600, .bottom = 650};

// What is said of a text that is empty. The first one's title belongs to another place; it is what
// the user knows.
struct EmptyText {
  const char* title;
  const char* kind;
  bool is_unticked;
};
constexpr EmptyText kEmptyTexts[] = {
    {"Action Taken", "Disclaimer or How to Use entries were", false},
    {"Comments/Notes", "Comments/Notes were", true},
    {"Policies and Procedures", "Document/Policy was", true},
};

}  // namespace

DocumentPrinting::DocumentPrinting(forms::Container& parent, forms::Context& context)
    : print(parent, context,
            {.grid_lines_caption = "Print Grid Lines on each page",
             .range_caption = "Print Selected Document",
             .auto_size_name = "SSCommand3"}),
      first(print.options_frame, "SSCheck80(0)", kImplementationText),
      texts{forms::CheckBox{print.options_frame, "SSCheck80(3)", "Disclaimer and How To Use"},
            forms::CheckBox{print.options_frame, "SSCheck80(4)", "Comments/Notes"},
            forms::CheckBox{print.options_frame, "SSCheck80(5)", "View Document/Policy Etc."}},
      all_panel(parent, "SSPanel6", "Print All Current Policies and Documents"),
      all_note(all_panel, "Label16",
               "Prior to printing - all current policies will be loaded into the Print Preview "
               "screen - this may take a couple of minutes to accomplish.  Once completed you can "
               "then review them and click on the Print Button to Print all of them at one time."),
      all_progress(all_panel, "ProgressBar1", "Documents loaded"),
      context_(context) {
  all_panel.SetVisible(false);
  all_panel.SetHelpContext(print::kPrintHelp);
  first.on_change = [this] { TickFirst(); };
  for (int i = 0; i < static_cast<int>(texts.size()); ++i) {
    texts[static_cast<std::size_t>(i)].on_change = [this, i] { Tick(i); };
  }
}

void DocumentPrinting::Open(PrintedDocument document) {
  if (richtext::IsBlank(document.text(document.on_show).document)) {
    return print::ReportNothingToPrint(context_);
  }
  document_ = std::move(document);
  for (int i = 0; i < static_cast<int>(texts.size()); ++i) {
    texts[static_cast<std::size_t>(i)].SetChecked(i == document_.on_show);
  }
  first.SetCaption(document_.first_text);
  first.SetChecked(false);
  ShowChoices(Printed::kDocument);
  print::PrintJob job;
  job.build = [this](print::PageEngine& engine) { Build(engine); };
  job.printed_line = false;  // Build has a place for it
  job.own_paper = true;
  job.title = document_.title;
  print.Open(std::move(job));
}

void DocumentPrinting::ShowChoices(Printed printed) {
  const bool is_report = printed == Printed::kReport;
  const bool is_document = printed == Printed::kDocument;
  const bool has_texts = is_document && document_.has_texts;
  const bool has_first = has_texts || (is_document && document_.print_first != nullptr);
  print.range_frame.SetVisible(is_document);
  print.options_frame.SetVisible(has_first || is_report);
  first.SetVisible(has_first);
  for (forms::CheckBox& text : texts) text.SetVisible(has_texts);
  for (forms::Control* own : std::initializer_list<forms::Control*>{
           &*print.as_of, &*print.grid_lines, &*print.auto_size}) {
    own->SetVisible(is_report);
  }
}

void DocumentPrinting::OpenReport(print::PrintJob job) {
  ShowChoices(Printed::kReport);
  print.Open(std::move(job));
}

void DocumentPrinting::TickFirst() {
  if (unticking_ || !print.is_open()) return;
  if (!first.checked()) return print.Rebuild();
  if (document_.print_first) return print.ResetFont();
  if (document_.first_text == kSafeguardsText) {
    forms::ShowMessage(context_, {"Print",
                                  "Only works with the Implementation specicfication, References "
                                  "in Rule and Additional Information of this portion of the "
                                  "program!",
                                  forms::Icon::kExclamation});
  } else {
    forms::ShowMessage(context_,
                       {"Action Taken",
                        "No Implementation specification is available for " + document_.title + "!",
                        forms::Icon::kExclamation});
  }
  Untick(first);
}

void DocumentPrinting::Tick(int text) {
  forms::CheckBox& box = texts[static_cast<std::size_t>(text)];
  if (unticking_ || !print.is_open()) return;
  if (!box.checked()) return print.Rebuild();
  const PrintedText ticked = document_.text(text);
  if (ticked.fault != storage::Fault::kNone) {
    forms::TellUnreadable(context_, "This text", ticked.fault);
    return Untick(box);
  }
  if (richtext::IsBlank(ticked.document)) {
    const EmptyText& empty = kEmptyTexts[text];
    forms::ShowMessage(
        context_,
        {empty.title, "No " + std::string(empty.kind) + " found for " + document_.title + "!",
         forms::Icon::kExclamation});
    if (empty.is_unticked) Untick(box);
    return;
  }
  print.Rebuild();
}

void DocumentPrinting::Untick(forms::CheckBox& box) {
  unticking_ = true;
  box.SetChecked(false);
  unticking_ = false;
}

void DocumentPrinting::Build(print::PageEngine& engine) {
  const int head = print.ReportMargins().top;
  bool is_first = true;
  if (document_.print_first && first.checked()) {
    engine.MoveTo(head + print::kHeadHeight);
    document_.print_first(engine);
    is_first = false;
  }
  for (int i = 0; i < static_cast<int>(texts.size()); ++i) {
    if (!texts[static_cast<std::size_t>(i)].checked()) continue;
    const richtext::RichDocument text = document_.text(i).document;
    if (richtext::IsBlank(text)) continue;
    print::RichPaper paper{print.chosen_paper(), is_first ? head + print::kHeadHeight : 0};
    if (!std::exchange(is_first, false)) engine.NewPage();
    print::AddRichPages(engine, text, paper);
  }
  if (is_first) return;
  engine.OnPage(0, [&] { print::PrintedLine(engine, context_.clock.Today(), head); });
}

void DocumentPrinting::OpenAll(Breaks breaks) {
  ShowChoices(Printed::kAllDocuments);
  left_out_.clear();
  print::PrintJob job;
  job.build = [this, breaks](print::PageEngine& engine) { BuildAll(engine, breaks); };
  job.printed_line = false;
  job.margins = kMarginsOfAll;
  print.Open(std::move(job));
  if (printed_ > 0) return;
  print.Close();
  if (left_out_.empty()) print::ReportNothingToPrint(context_);
}

// The pages are built anew with each change of the print settings; what is left out is told again
// only if it isn't the same.
void DocumentPrinting::BuildAll(print::PageEngine& engine, Breaks breaks) {
  const std::string told = std::exchange(left_out_, {});
  Gather(engine, breaks);
  if (left_out_.empty() || left_out_ == told) return;
  forms::ShowMessage(context_, {"Can't Be Read", "These documents are not printed:" + left_out_,
                                forms::Icon::kCritical});
}

void DocumentPrinting::Gather(print::PageEngine& engine, Breaks breaks) {
  const forms::Form::BusyScope busy(all_panel.form());
  print.panel.SetEnabled(false);
  all_progress.Start(kLastDocument);
  all_panel.SetVisible(true);
  printed_ = 0;
  for (int number = 0; number <= kLastDocument; ++number) {
    all_progress.SetValue(number);
    context_.loop.Yield();
    const auto read = context_.folder.Read(storage::file_names::DocumentText(number));
    if (read.is_unreadable()) {
      left_out_ += "\n" + TitleOf(number) + ": " + std::string(forms::ReasonOf(read.fault));
    }
    const richtext::RichDocument document = richtext::ReadRichText(read.content);
    if (richtext::IsBlank(document)) continue;
    if (++printed_ > 1) {
      if (breaks == Breaks::kPages) {
        engine.NewPage();
      } else {
        engine.Paragraph(" ");
      }
    }
    print::AddRichText(engine, document);
  }
  all_panel.SetVisible(false);
  print.panel.SetEnabled(true);
}

}  // namespace tarnwell::workarea

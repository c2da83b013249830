#include "workarea/todo_pane.h"

#include <initializer_list>
#include <utility>

#include "forms/disk_trouble.h"
#include "forms/form.h"
#include "proofing/grid_corrections.h"
#include "proofing/spelling.h"
#include "storage/file_names.h"
#include "text/date_mask.h"
#include "text/letters.h"
#include "workarea/todo_report.h"

namespace tarnwell::workarea {
namespace {

constexpr parts::SaveWords kLeaving{"Select New Report - Insert Template",
                                    "Save Current Document, etc. before next Action?",
                                    forms::Buttons::kYesNoCancel};

}  // namespace

ToDoPane::ToDoPane(forms::Form& hub, forms::Container& areas, forms::Context& context)
    : panel(areas, "SSPanel4"),
      sheet(panel, context),
      exporting(hub, context),
      background(hub, context, settings::GridBackground::kWorkArea),
      hub_(hub),
      context_(context),
      question_(context, [this] { return Save(); }),
      names_(context.folder) {
  panel.SetVisible(false);
  ConnectCommands();
}

void ToDoPane::ConnectCommands() {
  question_.on_change = [this] { panel.form().SetUnsaved(question_.unsaved()); };
  sheet.on_change = [this] { question_.SetUnsaved(true); };
  sheet.on_item = [this](const std::string& item) { TakeItem(item); };
  add.on_click = [this] { AddName(); };
  delete_name.on_click = [this] { DeleteName(); };
  save.on_click = [this] { Save(); };
  delete_row.on_click = [this] { sheet.DeleteRow(); };
  clear.on_click = [this] { sheet.Clear(); };
  spelling.on_click = [this] { CheckSpelling(); };
  print_options.on_click = [this] { Print(); };
  exit.on_click = [this] {
    if (Settle()) on_exit();
  };
  background.on_apply = [this](const forms::GridLook& look) { sheet.grid.SetLook(look); };
}

PaneMenu ToDoPane::Menu() {
  const std::vector<forms::Control*> grid{&sheet.grid};
  return {{"mOClip", {[this] { Copy(); }, grid}},
          {"mOSpell", forms::ActionOf(spelling)},
          {"mODel", forms::ActionOf(delete_row)},
          {"mOClear", forms::ActionOf(clear)},
          {"mOIns", {[this] { sheet.InsertRow(); }, grid}},
          {"mOP", forms::ActionOf(print_options)},
          {"mOS", {[this] { Save(SaveKind::kGeneral); }, {&save}}},
          {"mOGB", {[this] { background.Open(); }, grid}},
          {"mUExport",
           {[this] {
              sheet.grid.EndEdit();
              exporting.Open(sheet.grid, "Timeline.xls");
            },
            grid}}};
}

void ToDoPane::Enter(Area) {
  const forms::Hourglass hourglass(context_.window);
  date.SetCaption("Date: " + text::FormatDate(context_.clock.Today(), "mmmm d, yyyy"));
  background.Load();
  const ToDoList list = ReadToDoList(context_.folder);
  names_.Read();
  sheet.Fill(list.rows);
  names.SetItems(names_.names());
  names.SetText({});
  question_.SetUnsaved(false);
  ShowState(list.fault);
  panel.SetVisible(true);
}

// A list that can't be read isn't edited, or the next save would put what is on show in its place.
void ToDoPane::ShowState(storage::Fault list_fault) {
  const bool has_list = list_fault == storage::Fault::kNone;
  for (forms::Control* control : std::initializer_list<forms::Control*>{
           &sheet.grid, &save, &add, &delete_row, &clear, &spelling, &print_options}) {
    control->SetEnabled(has_list);
  }
  for (forms::Control* control : std::initializer_list<forms::Control*>{&names, &delete_name}) {
    control->SetEnabled(names_.is_readable());
  }
  if (!names_.is_readable()) add.SetEnabled(false);
  std::string note;
  if (!names_.is_readable()) note = forms::UnreadableNote("The list of names", names_.fault());
  if (!has_list) note = forms::UnreadableNote("The To Do list", list_fault);
  hub_.SetStatus(note.substr(0, note.find('\n')));
}

void ToDoPane::Leave() {
  sheet.CloseCalendar();
  panel.SetVisible(false);
  question_.SetUnsaved(false);
  sheet.Fill({});
  hub_.SetStatus({});
}

bool ToDoPane::OfferToSave() {
  sheet.grid.EndEdit();
  return question_.Offer({kLeaving.title, kLeaving.text}) != parts::SaveResult::kFailed;
}

bool ToDoPane::Settle() {
  sheet.grid.EndEdit();
  return question_.Settle(kLeaving);
}

std::optional<forms::Draft> ToDoPane::TakeDraft() {
  if (!question_.unsaved()) return std::nullopt;
  forms::Draft draft{heading.caption(), {std::string(storage::file_names::kToDoList)}, {}};
  for (const ToDoRow& row : sheet.Rows()) {
    for (const auto& cell : {row.item, row.to_do, row.actual, row.review}) draft.Add(cell);
  }
  return draft;
}

bool ToDoPane::PutDraft(forms::DraftTexts& texts) {
  if (!sheet.grid.enabled()) return false;
  std::vector<ToDoRow> rows(texts.left() / std::size(kToDoTitles));
  for (ToDoRow& row : rows) row = {texts.Next(), texts.Next(), texts.Next(), texts.Next()};
  sheet.Fill(rows);
  question_.SetUnsaved(true);
  return true;
}

parts::SaveResult ToDoPane::Save(SaveKind kind) {
  sheet.grid.EndEdit();
  if (!question_.unsaved()) return parts::SaveResult::kSaved;
  const auto written = [&]() -> storage::Outcome {
    const forms::Hourglass hourglass(context_.window);
    const std::vector<ToDoRow> rows = sheet.Rows();
    if (kind == SaveKind::kGeneral) {
      if (const auto general = WriteGeneralSave(context_.folder, rows); !general) return general;
    }
    return WriteToDoList(context_.folder, rows);
  }();
  if (!written) {
    forms::TellNotSaved(context_, "The To Do list", written.fault());
    return parts::SaveResult::kFailed;
  }
  question_.SetUnsaved(false);
  if (on_saved) on_saved();
  hub_.Message(
      {"File Save Command", "To Do List Has Been Saved/Updated!", forms::Icon::kInformation});
  return parts::SaveResult::kSaved;
}

void ToDoPane::AddName() {
  const std::string name = text::Trim(names.text());
  if (name.empty()) return names.Focus();
  const std::string* known = names_.Find(name);
  if (sheet.Add(known ? std::string(*known) : name)) return;
  hub_.Message({"Item Grid", "There is no empty row left in the grid!", forms::Icon::kInformation});
}

// A new item's name can be used again.
void ToDoPane::TakeItem(const std::string& item) {
  if (const auto added = names_.Add(item); !added) {
    return forms::TellRefused(context_, "The list of names", added.fault(),
                              "The item stands in the grid alone.");
  }
  names.SetItems(names_.names());
}

void ToDoPane::DeleteName() {
  const std::size_t before = names_.names().size();
  if (const auto removed = names_.Remove(names.text()); !removed) {
    return forms::TellRefused(context_, "The list of names", removed.fault(),
                              "The item stays in it.");
  }
  if (names_.names().size() < before) {
    names.SetItems(names_.names());
    names.SetText({});
  }
  names.Focus();
}

void ToDoPane::CheckSpelling() {
  sheet.grid.EndEdit();
  sheet.CloseCalendar();
  const std::vector<ToDoRow> before = sheet.Rows();
  const std::size_t corrected =
      proofing::CheckSpellingOfColumn(context_, sheet.grid, ToDoSheet::kItem, kLongestToDoItem);
  const std::vector<ToDoRow> after = sheet.Rows();
  if (after != before) {
    question_.SetUnsaved(true);
    CorrectNames(before, after);
  }
  proofing::ReportCheckedEntries(context_, "Spell Check", corrected > 0);
  hub_.SetStatus(proofing::CorrectedNote(corrected));
  sheet.grid.Focus();
}

void ToDoPane::CorrectNames(const std::vector<ToDoRow>& before, const std::vector<ToDoRow>& after) {
  ToDoNames::Corrections corrections;
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (before[i].item != after[i].item) corrections.emplace_back(before[i].item, after[i].item);
  }
  if (const auto corrected = names_.Correct(corrections); !corrected) {
    forms::TellRefused(context_, "The list of names", corrected.fault(), "It stays as it was.");
  }
  names.SetItems(names_.names());
}

void ToDoPane::Print() {
  sheet.grid.EndEdit();
  sheet.CloseCalendar();
  std::vector<ToDoRow> rows = sheet.Rows();
  if (ToDoText(rows).empty()) return print::ReportNothingToPrint(context_);
  print::PrintJob job;
  job.build = [this, rows = std::move(rows)](print::PageEngine& engine) {
    PrintTimeline(engine, context_.variables, rows);
  };
  job.as_of_line = true;
  job.title = "Project Timeline/To Do List";
  on_print(std::move(job));
}

void ToDoPane::Copy() {
  sheet.grid.EndEdit();
  const std::string text = ToDoText(sheet.Rows());
  if (text.empty()) {
    hub_.Message({"Copy", "There are currently No Entries to Copy!", forms::Icon::kInformation});
    return;
  }
  context_.clipboard.SetText(text);
  hub_.Message({"Copy Option", "A copy has been copied to the Windows Clipboard.",
                forms::Icon::kInformation});
}

}  // namespace tarnwell::workarea

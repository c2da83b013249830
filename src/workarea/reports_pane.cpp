#include "workarea/reports_pane.h"

#include <algorithm>

#include "forms/form.h"
#include "storage/file_names.h"
#include "text/letters.h"

namespace tarnwell::workarea {
namespace {

namespace file_names = storage::file_names;

constexpr std::string_view kBeginTitle = "Select New Report - Insert Template";
constexpr std::string_view kSaveTitle = "File Save Command";

const ReportKind* KindOf(Area area) {
  const auto kinds = ReportKinds();
  const auto found = std::ranges::find(kinds, area, &ReportKind::area);
  return found == kinds.end() ? nullptr : &*found;
}

}  // namespace

bool ReportsPane::Has(Area area) const { return KindOf(area) != nullptr; }

void ReportsPane::Show(Area area) {
  kind_ = KindOf(area);
  TakePanel(kind_->files);
  names_.title.SetCaption(kind_->title);
  names_.list_heading.SetVisible(false);
  names_.new_report.on_click = [this] { BeginFromTemplate(); };
  names_.new_blank.on_click = [this] { BeginBlank(); };
  for (forms::Command* own : {&names_.new_report, &names_.new_blank}) own->SetVisible(true);
  OfferNames();
}

// The name can be changed, so that Save makes another report.
void ReportsPane::ShowDocument(const std::string& name) {
  OpenNamed(name, DocumentView::Access::kEdit);
  names_.name.SetText(name);
  names_.name.SetVisible(true);
  view_.heading.SetCaption(" Document: " + name);
}

std::string ReportsPane::Title() const { return text::Trim(names_.name.text()); }

void ReportsPane::BeginFromTemplate() {
  const std::string like = names_.list.text();
  if (!SettleBefore("before inserting a new Template?")) return;
  const std::string own = file_names::DocumentText(kind_->document);
  const bool takes_own =
      context_.folder.Length(own) > 0 &&
      view_.panel.form().Confirmed({std::string(kBeginTitle), std::string(kind_->own_question),
                                    forms::Icon::kQuestion, forms::Buttons::kYesNo, 2});
  if (!view_.OpenTemplate(takes_own ? own : file_names::DocumentTemplate(kind_->document))) return;
  Begin(like, kind_->template_reminder);
}

void ReportsPane::BeginBlank() {
  const std::string like = names_.list.text();
  if (!SettleBefore("before this Action?")) return;
  view_.OpenNew();
  Begin(like, kind_->blank_reminder);
}

void ReportsPane::Begin(const std::string& like, std::string_view reminder) {
  shown_.clear();
  view_.tools.StartSearch(kInsertionMark);
  view_.heading.SetCaption("");
  names_.name.SetText(like.empty() ? "" : NameForToday(like, context_.clock.Today()));
  Tell(kBeginTitle, reminder);
  SetState(State::kName);
  names_.name.Focus();
}

// Under the name that was typed, or the one that was picked.
std::optional<forms::Draft> ReportsPane::Place() {
  const std::string name = parts::UserNames::AsListed(Title());
  forms::Draft draft{std::string(kind_->title) + (name.empty() ? "" : " - " + name), {}, {}};
  if (!name.empty()) draft.files.push_back(documents().FileOf(name));
  draft.Add(shown_);
  draft.Add(names_.name.text());
  return draft;
}

bool ReportsPane::GoTo(forms::DraftTexts& place) {
  const std::string listed = place.Next();
  if (listed.empty()) {
    view_.OpenNew();
    shown_.clear();
    view_.tools.StartSearch(kInsertionMark);
    SetState(State::kName);
  } else {
    if (!documents().IsListed(listed)) return false;
    ShowDocument(listed);
  }
  names_.name.SetText(place.Next());
  return true;
}

bool ReportsPane::IsUpdate(const std::string& name) {
  return !shown_.empty() &&
         text::EqualIgnoringCase(documents().FileOf(name), documents().FileOf(shown_));
}

bool ReportsPane::Save() {
  const std::string name = parts::UserNames::AsListed(Title());
  if (name.empty()) {
    Tell(kSaveTitle, kind_->name_missing);
    names_.name.Focus();
    return false;
  }
  if (view_.text.IsBlank()) {
    Tell(kSaveTitle, kind_->text_missing);
    return false;
  }
  return SaveAs(name);
}

bool ReportsPane::KeepText(const std::string& name) {
  if (Keep(name, [this](const std::string& file) { return view_.Write(file); })) return true;
  view_.MarkUnsaved();
  return false;
}

bool ReportsPane::SaveAs(const std::string& name) {
  if (IsUpdate(name)) {
    const std::string updated = shown_;
    if (!KeepText(updated)) return false;
    OfferNames();
    Tell("Save File Action", "This File [ " + updated + " ] Has Been Updated/Saved!");
    view_.exit.Focus();
    return true;
  }
  const bool replaces = documents().Has(name);
  if (replaces && !view_.panel.form().Confirmed(
                      {"Save Changes to Existing File?",
                       "File by Name [ " + name + " ] already Exists!\nDo you want to Replace it?",
                       forms::Icon::kQuestion, forms::Buttons::kYesNo, 2})) {
    return false;
  }
  if (!KeepText(name)) return false;
  shown_ = name;
  view_.heading.SetCaption(" Document: " + name);
  if (replaces) {
    Tell(kSaveTitle, "File Has Been Saved/Updated!");
  } else {
    Tell("Save File Action", "This File [ " + name + " ] Has Been Saved/Updated!");
  }
  return true;
}

void ReportsPane::InsertTemplate() {
  view_.InsertTemplate(file_names::DocumentTemplate(kind_->inserted_document), "Agreement/Doc.");
}

void ReportsPane::Tell(std::string_view title, std::string_view text) {
  view_.panel.form().Message({std::string(title), std::string(text), forms::Icon::kInformation});
}

}  // namespace tarnwell::workarea

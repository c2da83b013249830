#include "workarea/titles_panel.h"

#include <string>

#include "forms/control_array.h"

namespace tarnwell::workarea {
TitleRow::TitleRow(forms::Container& parent, int number)
    : label(parent, forms::MemberName("Label12", number),
            "Risk Analyis # " + std::to_string(number)),
      current(parent, forms::MemberName("Label13", number)),
      change(parent, forms::MemberName("Text3", number),
             {.max_length = kLongestWorksheetTitle,
              .spoken_name = "Change Title of Button " + std::to_string(number) + " To"}) {}

TitlesPanel::TitlesPanel(forms::Container& parent, forms::Context& context)
    : panel(parent, "SSPanel7"), question_(context, [this] { return Save(); }) {
  panel.SetVisible(false);
  for (int number = 1; number <= kWorksheetCount; ++number) {
    rows.push_back(std::make_unique<TitleRow>(panel, number));
    rows.back()->change.on_change = [this] { question_.SetUnsaved(true); };
  }
  save.on_click = [this] { Save(); };
  exit.on_click = [this] { Close(); };
}

void TitlesPanel::Open(const WorksheetTitles& titles) {
  for (int number = 1; number <= kWorksheetCount; ++number) {
    TitleRow& row = *rows[static_cast<std::size_t>(number) - 1];
    row.current.SetCaption(titles.Caption(number));
    row.change.SetText("");
  }
  question_.SetUnsaved(false);
  panel.SetVisible(true);
  rows.front()->change.Focus();
}

void TitlesPanel::Close() {
  question_.SetUnsaved(false);
  panel.SetVisible(false);
}

parts::SaveResult TitlesPanel::Save() {
  NewTitles titles;
  for (std::size_t i = 0; i < titles.size(); ++i) titles[i] = rows[i]->change.text();
  if (!on_save(titles)) return parts::SaveResult::kFailed;
  Close();
  return parts::SaveResult::kSaved;
}

}  // namespace tarnwell::workarea

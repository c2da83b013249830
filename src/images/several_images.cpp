// How several document images are chosen, to be printed together.

#include "images/image_book.h"
#include "images/photoview1.h"
#include "record_book/record_store.h"

namespace tarnwell::images {

void PhotoVIEW1::ConnectSeveral() {
  several.SetVisible(false);
  several.Cover({&screen});
  print.panel.Cover({&screen, &several});
  choose_several.on_click = [this] { ShowSeveral(); };
  all.on_open = add.on_click = [this] { AddChosen(); };
  all.on_pick = chosen.on_pick = [this] { EnableSeveral(); };
  chosen.on_open = take_away.on_click = [this] { TakeAway(); };
  print_several.on_click = [this] { PrintSeveral(); };
  leave_several.on_click = [this] {
    several.SetVisible(false);
    SetStatus({});
  };
}

void PhotoVIEW1::ShowSeveral() {
  Message({"Selecting Multiple Photos",
           "Due to the memory size of various video cards, etc. we would suggest you\n"
           "limit the total number photos selected!  If too many are selected at one\n"
           "time, the computer may slow down or even lock up!"});
  SetStatus("Print Multi");
  std::vector<std::string> names_of_all;
  for (const record_book::NameEntry& entry : entries()) {
    names_of_all.emplace_back(record_book::NameIn(entry));
  }
  all.SetItems(std::move(names_of_all));
  chosen.SetItems({});
  chosen_.clear();
  several.SetVisible(true);
  EnableSeveral();
  all.Focus();
}

void PhotoVIEW1::AddChosen() {
  if (all.selected() == forms::ListBox::kNone) return;
  chosen_.push_back(entries()[static_cast<std::size_t>(all.selected())]);
  chosen.InsertItem(static_cast<int>(chosen.items().size()), all.text());
  EnableSeveral();
}

void PhotoVIEW1::TakeAway() {
  const int place = chosen.selected();
  if (place == forms::ListBox::kNone) return;
  chosen_.erase(chosen_.begin() + place);
  chosen.RemoveItem(place);
  EnableSeveral();
}

void PhotoVIEW1::EnableSeveral() {
  add.SetEnabled(all.selected() != forms::ListBox::kNone);
  take_away.SetEnabled(chosen.selected() != forms::ListBox::kNone);
  print_several.SetEnabled(!chosen_.empty());
}

void PhotoVIEW1::PrintSeveral() {
  std::vector<Sheet> sheets;
  for (const record_book::NameEntry& entry : chosen_) {
    const auto read = record_book::ReadRecord(context_.folder, ImageBook(), entry.record);
    if (!read) continue;
    const bool has_image = read->picture.size() >= style().picture.shortest_path;
    sheets.push_back({has_image ? read->picture : "", read->entries[0], read->entries[1]});
  }
  if (!sheets.empty()) Print(std::move(sheets), false);
}

}  // namespace tarnwell::images

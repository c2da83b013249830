#include "vehicles/history_pane.h"

#include <algorithm>
#include <utility>

#include "vehicles/history_merge.h"

namespace tarnwell::vehicles {
namespace {

constexpr int kLeastRows = 11;
constexpr std::size_t kRowsWithScrollBar = 16;
constexpr std::size_t kBlanksOfHeading = 27;

struct ViewWords {
  const char* heading;
  const char* sum;
  const char* column;
  const char* nothing;
  const char* nothing_title;
};

const ViewWords& WordsOf(HistoryView view) {
  static constexpr ViewWords kMaintenance{
      "Maintenance History", "Maintenance Total Cost: ", "Maintenance Actions",
      "There is currently no Maintenance History to View!", "View Maintenance History"};
  static constexpr ViewWords kRepairs{
      "Repairs and Expenditures History",
      "Repairs and Expenditures Total Cost: ", "Repairs and Expenditures",
      "There is currently no Repair and Expenditure History to View!",
      "View Repair and Expenditure History"};
  static constexpr ViewWords kAll{
      "Maintenance, Repairs and Expenditures History",
      "Maint., Repairs and Expenditures Total Cost: ", "Actions, Repairs and Expenditures",
      "There are currently no History Files to View!", "View History Files"};
  switch (view) {
    case HistoryView::kMaintenance:
      return kMaintenance;
    case HistoryView::kRepairs:
      return kRepairs;
    case HistoryView::kAll:
    case HistoryView::kNone:
      break;
  }
  return kAll;
}

}  // namespace

HistoryPane::HistoryPane(forms::Container& parent, Tracker& tracker)
    : panel(parent, "SSPanel5"), tracker_(tracker) {
  grid.SetColumns(
      {{.title = "", .share = 0.15, .align = forms::GridAlign::kRight, .numeric = true},
       {.title = "Date", .share = 0.16, .align = forms::GridAlign::kCenter},
       {.title = "", .share = 0.54},
       {.title = "Cost", .share = 0.15, .align = forms::GridAlign::kRight, .numeric = true}});
  grid.SetSelection(forms::GridSelection::kRow);
  grid.on_select = [this] { Selected(); };
  maintenance.on_click = [this] { View(HistoryView::kMaintenance); };
  repairs.on_click = [this] { View(HistoryView::kRepairs); };
  all.on_click = [this] { View(HistoryView::kAll); };
  remove.on_click = [this] { Remove(); };
  Clear();
}

void HistoryPane::ShowUnit() { grid.SetTitle(kOdometer, tracker_.words().reading); }

void HistoryPane::SetHistories(const History& maintenance_history, const History& repair_history) {
  maintenance_ = maintenance_history;
  repairs_ = repair_history;
}

void HistoryPane::Clear() {
  view_ = HistoryView::kNone;
  shown_.clear();
  ShowEntries();
}

bool HistoryPane::View(HistoryView view) {
  std::vector<HistoryEntry> entries = view == HistoryView::kMaintenance ? maintenance_.entries
                                      : view == HistoryView::kRepairs
                                          ? repairs_.entries
                                          : JoinedHistory(maintenance_.entries, repairs_.entries);
  if (entries.empty()) {
    const ViewWords& words = WordsOf(view);
    tracker_.form.Message({words.nothing_title, words.nothing, forms::Icon::kInformation});
    return false;
  }
  view_ = view;
  has_told_ = false;
  shown_ = std::move(entries);
  ShowEntries();
  return true;
}

void HistoryPane::ShowEntries() {
  const ViewWords& words = WordsOf(view_);
  heading.SetCaption(std::string(kBlanksOfHeading, ' ') + words.heading);
  sum_title.SetCaption(words.sum);
  remove.SetEnabled(false);
  grid.SetTitle(kText, words.column);
  ShowUnit();
  const forms::Grid::Batch batch(grid);
  grid.SetRows(1);
  grid.SetRows(std::max(kLeastRows, static_cast<int>(shown_.size()) + 1));
  int row = 1;
  for (const HistoryEntry& entry : shown_) {
    grid.SetText(row, kOdometer, "       " + entry.odometer);
    ShowDate(grid, {row, kDate}, entry.date);
    grid.SetText(row, kText, entry.text);
    grid.SetText(row, kCost, "  " + entry.cost);
    ++row;
  }
  // The blanks leave room for the scroll bar.
  sum.SetCaption(HistoryCost(shown_) + (shown_.size() < kRowsWithScrollBar ? "  " : "      "));
}

void HistoryPane::Selected() {
  const int row = grid.current().row;
  const bool is_entry = row > 0 && static_cast<std::size_t>(row) <= shown_.size();
  if (!is_entry) {
    grid.SetHighlight(0);
    remove.SetEnabled(false);
    return;
  }
  TellTurn(tracker_, grid);
  if (view_ == HistoryView::kMaintenance || view_ == HistoryView::kRepairs) {
    const History& history = view_ == HistoryView::kMaintenance ? maintenance_ : repairs_;
    return remove.SetEnabled(!history.is_cut);
  }
  // Once for a list, or nobody could go through it with the keys.
  if (std::exchange(has_told_, true)) return;
  tracker_.form.Message({"Entry Selection",
                         "If you are trying to select an Entry to Delete,\n"
                         "Please first Select the Maint. History or the\n"
                         "Rep/Exp Hist View Button.\n"
                         "Deletions can only be done in these two files!",
                         forms::Icon::kInformation});
}

void HistoryPane::Remove() {
  const int row = grid.current().row;
  if (row < 1 || static_cast<std::size_t>(row) > shown_.size()) return;
  grid.SetHighlight(row);
  const bool is_sure = tracker_.form.Confirmed(
      {"Delete Selected Entry",
       "Do You really want to delete the\n selected entry from this Auto file?",
       forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2});
  grid.SetHighlight(0);
  if (!is_sure) return;
  const auto entry = shown_.begin() + (row - 1);
  const auto kind =
      view_ == HistoryView::kMaintenance ? HistoryKind::kMaintenance : HistoryKind::kRepairs;
  if (!on_remove(kind, *entry)) return;
  shown_.erase(entry);
  ShowEntries();
  view_ = HistoryView::kNone;
}

}  // namespace tarnwell::vehicles

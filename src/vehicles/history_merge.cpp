#include "vehicles/history_merge.h"

#include <algorithm>
#include <set>

#include "text/leading_number.h"
#include "text/letters.h"
#include "text/number_mask.h"
#include "vehicles/cell_values.h"
#include "vehicles/standard_actions.h"

namespace tarnwell::vehicles {
namespace {

std::string KeyOf(const HistoryEntry& entry) {
  return text::Trim(entry.odometer) + ":" + entry.date.shown + ":" + text::Trim(entry.text) + ":" +
         text::Trim(entry.cost);
}

bool AreSame(const HistoryEntry& a, const HistoryEntry& b) { return KeyOf(a) == KeyOf(b); }

}  // namespace

void SortHistory(std::vector<HistoryEntry>& entries) {
  std::ranges::stable_sort(entries, {},
                           [](const HistoryEntry& entry) { return NumberIn(entry.odometer); });
}

std::vector<HistoryEntry> EntriesOf(const std::vector<ScheduleRow>& rows) {
  std::vector<HistoryEntry> entries;
  for (const ScheduleRow& row : rows) {
    if (text::Trim(row.action).empty() ||
        text::Trim(row.odometer + row.date.shown + row.cost).empty()) {
      continue;
    }
    entries.push_back({row.odometer, row.date, PastAction(row.action), row.cost});
  }
  return entries;
}

std::vector<HistoryEntry> MergedHistory(std::vector<HistoryEntry> entries,
                                        const std::vector<HistoryEntry>& additions) {
  std::set<std::string> keys;
  for (const HistoryEntry& entry : entries) keys.insert(KeyOf(entry));
  for (const HistoryEntry& entry : additions) {
    if (keys.insert(KeyOf(entry)).second) entries.push_back(entry);
  }
  SortHistory(entries);
  entries.erase(std::unique(entries.begin(), entries.end(), AreSame), entries.end());
  return entries;
}

std::vector<HistoryEntry> JoinedHistory(const std::vector<HistoryEntry>& maintenance,
                                        const std::vector<HistoryEntry>& repairs) {
  std::vector<HistoryEntry> joined = maintenance;
  joined.insert(joined.end(), repairs.begin(), repairs.end());
  if (joined.size() > kMostJoined) joined.resize(kMostJoined);
  SortHistory(joined);
  return joined;
}

std::string HistoryCost(const std::vector<HistoryEntry>& entries) {
  float sum = 0;
  for (const HistoryEntry& entry : entries) {
    sum += static_cast<float>(
        text::LeadingNumber(text::FormatNumber(NumberIn(entry.cost), "#######.##")));
  }
  return text::FormatNumber(sum, "Currency");
}

}  // namespace tarnwell::vehicles

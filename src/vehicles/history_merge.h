// How histories grow, and what they cost.

#pragma once

#include <string>
#include <vector>

#include "vehicles/vehicle_files.h"
#include "vehicles/vehicle_sheet.h"

namespace tarnwell::vehicles {

// By the odometer, the lowest first; entries at the same one keep their order.
void SortHistory(std::vector<HistoryEntry>& entries);

// What the history says of a row of the schedule: its last action, with the action's name in the
// past. Rows without an action, or without anything of a last one, say nothing.
std::vector<HistoryEntry> EntriesOf(const std::vector<ScheduleRow>& rows);

// `entries` with those of `additions` that aren't in it, sorted, and without any that are the same
// as the one before. Two are the same when all their cells are.
std::vector<HistoryEntry> MergedHistory(std::vector<HistoryEntry> entries,
                                        const std::vector<HistoryEntry>& additions);

// Both histories by the odometer, maintenance first, as many entries as are shown together.
inline constexpr std::size_t kMostJoined = 6100;
std::vector<HistoryEntry> JoinedHistory(const std::vector<HistoryEntry>& maintenance,
                                        const std::vector<HistoryEntry>& repairs);

// What all cost, summed in single precision, by "Currency". A cost that is no number counts 0.
std::string HistoryCost(const std::vector<HistoryEntry>& entries);

}  // namespace tarnwell::vehicles

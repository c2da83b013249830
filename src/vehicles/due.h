// When an action of a vehicle's schedule is due: by distance and by time, whichever comes first.

#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "text/date.h"
#include "vehicles/vehicle_sheet.h"

namespace tarnwell::vehicles {

// What the schedule knows of an action.
struct ActionTimes {
  bool is_named = false;
  std::optional<float> distance;   // between two actions; empty for no interval
  double months = 0;               // likewise; 0 or less for none
  float odometer = 0;              // at the last action
  std::optional<text::Date> date;  // of the last action
};

// What is left of a time.
struct TimeLeft {
  int count = 0;
  bool in_months = false;  // else in days

  friend bool operator==(const TimeLeft&, const TimeLeft&) = default;
};

struct Due {
  std::optional<float> distance_left;
  std::optional<TimeLeft> time_left;
  bool by_distance = false;
  bool by_time = false;

  bool is_due() const { return by_distance || by_time; }
  friend bool operator==(const Due&, const Due&) = default;
};

// An action without a name isn't due.
Due DueOf(const ActionTimes& action, float odometer, text::Date today);

// The same calendar day so many months later, or the last of its month. A part of a month rounds,
// but any interval counts one month at least.
text::Date MonthsLater(text::Date date, double months);

// The cells "Remaining": "1,204", "" for 0; "1 day", "-12 days", "5 mos.".
std::string DistanceLeftText(const Due& due);
std::string TimeLeftText(const Due& due);

// The values are read back out of the cells as they are shown, in the row's texts.
ActionTimes TimesOf(const ScheduleRow& row);

// Which vehicles the report of all shows, besides those with an action due: with one due in a few
// days, or after a short distance.
struct Nearness {
  bool in_15_days = false;
  bool in_30_days = false;
  bool in_250 = false;  // units of distance
  bool in_500 = false;
};
bool IsNear(const Due& due, const Nearness& wanted);
bool AnyIsNear(std::span<const ScheduleRow> rows, float odometer, text::Date today,
               const Nearness& wanted);

// The registration month, a number or a name of at least three letters, is that of today.
bool RegistrationIsDue(std::string_view month, text::Date today);

}  // namespace tarnwell::vehicles

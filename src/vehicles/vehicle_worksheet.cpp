// The sheet for notes at the vehicle.

#include <algorithm>
#include <iterator>
#include <string_view>

#include "print/report.h"
#include "vehicles/vehicle_report.h"

namespace tarnwell::vehicles {
namespace {

using print::PageEngine;

constexpr const char* kActions[] = {
    "Change Oil and Filter", "Rotate Tires", "Inspect Brake Linings", "Replace Air Filter",
    // Not as the schedule has it.
    "Replace Engine Coolant", "Replace Spark Plugs", "Replace Timing Belt"};
constexpr const char* kRule =
    " _________      ______          _________      _________      _________";
constexpr const char* kOwnAction = "__________________";
constexpr const char* kFieldRule = " ___________________________";
constexpr const char* kLastFieldRule = " ____________________________________________";
constexpr int kLeastOwnRows = 6;
constexpr int kOtherLines = 7;    // headings, and space between them
constexpr double kLeastSize = 5;  // points

int Lines() {
  return static_cast<int>(kLastField + std::size(kActions)) + kLeastOwnRows + kOtherLines;
}

void ActionRow(PageEngine& engine, std::string_view action, int rule_x) {
  engine.TextAt(rule_x, engine.y(), kRule);
  engine.Line(action);
}

}  // namespace

void Worksheet(PageEngine& engine, const UnitWords& words) {
  const forms::Font usual = engine.font();
  forms::Font font = usual;
  const auto is_too_large = [&] {
    return !engine.HasRoom(Lines() * engine.LineHeight()) ||
           engine.TextWidth(kActions[4]) + engine.TextWidth(kRule) > engine.ColumnWidth();
  };
  while (is_too_large() && font.size > kLeastSize) {
    font.size -= 0.5;
    engine.SetFont(font);
  }
  print::TitleLine(engine, " Company Vehicle Maintenance Tracker Data Worksheet", kLargerTitle);
  engine.Line("** Information Data **");
  for (std::size_t i = kYear; i <= kLastField; ++i) {
    engine.Line(std::string(kFieldCaptions[i]) + (i < kLastField ? kFieldRule : kLastFieldRule));
  }
  engine.Skip(engine.LineHeight());
  engine.Line("** Maintenance Data **");
  engine.Line(std::string(37, ' ') +
              "   Interval Between Actions                               Last Action");
  engine.Line(std::string(42, ' ') +
              (&words == &kMileWords
                   ? "     Miles          Months               Miles               Date            "
                     "   Cost"
                   : "Kilometers      Months          Kilometers           Date                "
                     "Cost"));
  int rule_x = 0;
  for (const char* action : kActions) rule_x = std::max(rule_x, engine.TextWidth(action));
  rule_x = engine.left() + std::max(rule_x, engine.TextWidth(kOwnAction));
  for (const char* action : kActions) ActionRow(engine, action, rule_x);
  while (engine.HasRoom(engine.LineHeight())) ActionRow(engine, kOwnAction, rule_x);
  engine.SetFont(usual);
}

}  // namespace tarnwell::vehicles

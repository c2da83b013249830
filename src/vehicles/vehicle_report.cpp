#include "vehicles/vehicle_report.h"

#include <algorithm>
#include <string_view>
#include <tuple>
#include <utility>

#include "print/picture_size.h"
#include "print/report.h"
#include "print/table.h"
#include "text/date_mask.h"
#include "text/letters.h"
#include "text/number_mask.h"
#include "vehicles/cell_values.h"
#include "vehicles/due.h"
#include "vehicles/fuel_totals.h"
#include "vehicles/history_merge.h"
#include "vehicles/schedule_colors.h"

namespace tarnwell::vehicles {
namespace {

using print::Align;
using print::Cell;
using print::PageEngine;

constexpr int kGap = 160;                   // twips, between sections
constexpr int kBorderInside = 60;           // twips, between a border and what lies in it
constexpr std::size_t kPrintedAction = 21;  // characters

void Bold(PageEngine& engine, std::string_view line) {
  const forms::Font font = engine.font();
  forms::Font bold = font;
  bold.bold = true;
  engine.SetFont(bold);
  engine.Line(line);
  engine.SetFont(font);
}

// A section's title stays with the lines that follow it.
void Begin(PageEngine& engine, std::string_view title, std::string_view block = {}) {
  constexpr int kLinesTogether = 6;
  if (!engine.at_column_top()) engine.Skip(kGap);
  if (!engine.HasRoom(kLinesTogether * engine.LineHeight()) && !engine.at_column_top()) {
    engine.NewPage();
  }
  print::TitleLine(engine, title, kLargerTitle);
  if (!block.empty()) Bold(engine, block);
}

// By shares of the column's width.
std::vector<print::TableColumn> Columns(
    PageEngine& engine, std::initializer_list<std::tuple<std::string_view, double, Align>> parts) {
  std::vector<print::TableColumn> columns;
  for (const auto& [heading, share, align] : parts) {
    columns.push_back(
        {std::string(heading), static_cast<int>(engine.ColumnWidth() * share), align});
  }
  return columns;
}

void HistoryTable(PageEngine& engine, std::span<const HistoryEntry> entries, const UnitWords& words,
                  std::string_view text_heading) {
  print::Table table(engine,
                     Columns(engine, {{words.reading, 0.16, Align::kRight},
                                      {" Date ", 0.16, Align::kCenter},
                                      {text_heading, 0.5, Align::kLeft},
                                      {"  Cost  ", 0.16, Align::kRight}}),
                     print::TableLines::kNone);
  for (const HistoryEntry& entry : entries) {
    table.Row({text::Trim(entry.odometer), entry.date.shown, entry.text, text::Trim(entry.cost)});
  }
}

void TotalledHistory(PageEngine& engine, const std::vector<HistoryEntry>& entries,
                     const UnitWords& words, std::string_view title, std::string_view text_heading,
                     std::string_view total) {
  Begin(engine, title);
  HistoryTable(engine, entries, words, text_heading);
  Bold(engine, std::string(total) + HistoryCost(entries));
}

// "1,204" by the mask, nothing for an empty cell.
std::string Masked(const std::string& cell, std::string_view mask) {
  return text::Trim(cell).empty() ? std::string() : text::FormatNumber(NumberIn(cell), mask);
}

std::string Described(const VehicleSheet& sheet) {
  return sheet.fields[kYear] + " " + sheet.fields[kMake] + " " + sheet.fields[kModel];
}

}  // namespace

bool PrintedVehicle::HasSchedule() const {
  return std::ranges::any_of(sheet.rows,
                             [](const ScheduleRow& row) { return TimesOf(row).is_named; });
}

std::string VehicleTitle(const PrintedVehicle& vehicle) {
  return Described(vehicle.sheet) + " (" + text::TrimRight(vehicle.name) + ")";
}

std::string VinTitle(const PrintedVehicle& vehicle) {
  return Described(vehicle.sheet) + " (VIN - " + vehicle.sheet.fields[kVin] + ")";
}

void VehicleHead(PageEngine& engine, const std::string& title, text::Date printed,
                 bool with_border) {
  if (with_border) {
    const forms::Margins& margins = engine.paper().margins;
    engine.Add(
        forms::PlacedBox{margins.left - kBorderInside, margins.top - kBorderInside,
                         engine.page_width() - margins.left - margins.right + 2 * kBorderInside,
                         engine.page_height() - margins.top - margins.bottom + 2 * kBorderInside,
                         forms::kBlack, std::nullopt});
  }
  print::TitleLine(engine, title, kLargerTitle);
  engine.Line("Printed: " + text::FormatDate(printed, "Long Date"));
  engine.Skip(kGap);
}

void NumberPages(PageEngine& engine) {
  const int pages = engine.page_count();
  if (pages < 2) return;
  forms::Font larger = engine.font();
  larger.size += kLargerTitle;
  const int title_height = engine.metrics().LineHeight(larger);
  for (int page = 0; page < pages; ++page) {
    engine.OnPage(page, [&] {
      engine.TextAt(engine.right(), engine.top() + title_height, "Page " + std::to_string(page + 1),
                    Align::kRight);
    });
  }
}

void InformationSection(PageEngine& engine, const VehicleSheet& sheet) {
  Begin(engine, "Information");
  const auto field = [&](std::size_t i) {
    engine.Paragraph(std::string(kFieldCaptions[i]) + " " + sheet.fields[i]);
  };
  for (std::size_t i = kYear; i <= kLastField; ++i) {
    if (i == kFirstGeneral) Bold(engine, "  General Information");
    if (i == kFirstInsurance) Bold(engine, "  Insurance Information");
    if (i == kFirstMaintenance) Bold(engine, "  Maintenance Information");
    field(i);
  }
}

void MaintenanceSection(PageEngine& engine, const VehicleSheet& sheet, const UnitWords& words,
                        text::Date today) {
  Begin(engine, "Maintenance", "  Maintenance Information");
  const bool miles = &words == &kMileWords;
  std::vector<print::TableColumn> columns =
      Columns(engine, {{"", 0.2, Align::kLeft},
                       {miles ? "Miles" : " Kms. ", 0.08, Align::kRight},
                       {"or", 0.03, Align::kCenter},
                       {miles ? "Months" : " Months ", 0.09, Align::kRight},
                       {words.reading, 0.1, Align::kRight},
                       {miles ? "Date" : " Date ", 0.1, Align::kRight},
                       {miles ? "Cost" : " Cost ", 0.1, Align::kRight},
                       {miles ? "Miles" : "  Kms.  ", 0.09, Align::kRight},
                       {miles ? " Time " : "Time", 0.08, Align::kRight},
                       {"", 0.13, Align::kRight}});
  // The groups stand over the first columns of each.
  const auto group = [&](std::size_t column, std::string_view heading) {
    int x = engine.left();
    for (std::size_t i = 0; i < column; ++i) x += columns[i].width;
    engine.TextAt(x + print::Table::kPadding, engine.y(), heading);
  };
  group(1, "Interval Between Actions");
  group(5, "Last Action");
  group(7, "Remaining");
  engine.Skip(engine.LineHeight());
  print::Table table(engine, std::move(columns), print::TableLines::kNone);
  const float odometer = WholeNumber(sheet.fields[kOdometer]);
  for (const ScheduleRow& row : sheet.rows) {
    const ActionTimes times = TimesOf(row);
    if (!times.is_named) continue;
    const Due due = DueOf(times, odometer, today);
    std::vector<Cell> cells{std::string(text::Left(row.action, kPrintedAction)),
                            WholeText(row.distance),
                            "",
                            row.months,
                            WholeText(row.odometer),
                            row.date.shown,
                            text::Trim(row.cost),
                            DistanceLeftText(due),
                            TimeLeftText(due),
                            due.is_due() ? kActionRequired : ""};
    if (due.is_due()) cells[0].color = cells[9].color = kDueColor;
    if (due.by_distance) cells[7].color = kDueColor;
    if (due.by_time) cells[8].color = kDueColor;
    cells[9].bold = true;
    table.Row(cells);
  }
}

void RepairsSection(PageEngine& engine, std::span<const HistoryEntry> entries,
                    const UnitWords& words) {
  Begin(engine, "Repairs and Expenditures", "  Repair/Expenditure Information");
  HistoryTable(engine, entries, words, " Repairs and Expenditures ");
}

void MaintenanceHistorySection(PageEngine& engine, const std::vector<HistoryEntry>& entries,
                               const UnitWords& words) {
  TotalledHistory(engine, entries, words, "Maintenance History", " Maintenance Actions ",
                  "Maintenance Total Cost:  ");
}

void AllHistorySection(PageEngine& engine, const std::vector<HistoryEntry>& entries,
                       const UnitWords& words) {
  TotalledHistory(engine, entries, words, "Maintenance, Repair and Expenditure History",
                  " Maintenance, Repairs and Expenditures ",
                  "Maintenance, Repairs and Expenditures Total Cost:  ");
}

void FuelSection(PageEngine& engine, std::span<const FuelEntry> entries, const UnitWords& words) {
  Begin(engine, words.fuel_title, "  " + std::string(words.fuel_title));
  print::Table table(engine,
                     Columns(engine, {{"Date", 0.14, Align::kCenter},
                                      {"Previous Reading", 0.15, Align::kRight},
                                      {"Current Reading", 0.15, Align::kRight},
                                      {words.driven, 0.14, Align::kRight},
                                      {words.fuel, 0.14, Align::kRight},
                                      {words.printed_rate, 0.13, Align::kRight},
                                      {"  Cost  ", 0.13, Align::kRight}}),
                     print::TableLines::kNone);
  constexpr std::string_view kWhole = "###,###        ";
  constexpr std::string_view kParts = "###,##0.00    ";
  for (const FuelEntry& entry : KeptRows(entries)) {
    if (entry.IsBlank()) continue;
    table.Row({entry.date.shown, Masked(entry.previous, kWhole), Masked(entry.current, kWhole),
               Masked(entry.driven, kWhole), Masked(entry.fuel, kParts), Masked(entry.rate, kParts),
               Masked(entry.cost, "Currency")});
  }
  const FuelTotals totals = TotalFuel(entries);
  std::vector<Cell> cells{"Totals                            ",
                          "",
                          "",
                          totals.DrivenText(),
                          totals.FuelText(),
                          totals.RateText(),
                          text::Trim(totals.CostText())};
  for (Cell& cell : cells) cell.bold = true;
  table.Row(cells, kGap / 2);
}

void PictureSection(PageEngine& engine, const std::shared_ptr<const std::string>& png) {
  const print::PictureSize pixels = print::PixelsOf(*png);
  const auto [width, height] =
      print::FittedInto({engine.ColumnWidth(), engine.page_height() / 3}, pixels);
  if (width < 1) return;
  if (!engine.at_column_top()) engine.Skip(kGap);
  if (!engine.HasRoom(height) && !engine.at_column_top()) engine.NewPage();
  engine.Add(forms::PlacedImage{engine.left() + (engine.ColumnWidth() - width) / 2, engine.y(),
                                width, height, png});
  engine.Skip(height);
}

}  // namespace tarnwell::vehicles

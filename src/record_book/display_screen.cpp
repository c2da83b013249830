#include "record_book/display_screen.h"

#include <algorithm>

#include "forms/disk_trouble.h"
#include "forms/navigator.h"
#include "parts/help_menu.h"
#include "parts/sheet_rows.h"
#include "print/report.h"
#include "text/letters.h"

namespace tarnwell::record_book {
namespace {

constexpr int kLeastRows = 18;
constexpr double kNameShare = 0.5;
constexpr double kValueShare = 0.46;
constexpr const char* kAddressHeadings[] = {"Address Line 2", "City, State, Zip Code"};

constexpr print::PrintPanelStyle kPrintStyle{.as_of_caption = "Print 'As of' date on each page",
                                             .grid_lines_caption = "Print Grid Lines on each page"};
constexpr parts::ExportStyle kExportStyle{
    .first_line =
        "A non-formatted Spreadsheet File (tab-delimited text file) will be saved in the program "
        "folder:  "};

// A sign of a person's own is no mnemonic's.
std::string WithPlainSigns(std::string_view text) {
  std::string plain;
  for (const char sign : text) plain.append(sign == '&' ? 2 : 1, sign);
  return plain;
}

}  // namespace

DisplayScreen::DisplayScreen(forms::Context& context, const DisplayStyle& style)
    : Form(context, style.form_name, print::WithCompany(context.variables, style.caption)),
      grid(sheet, "VSGd1", style.grid_name),
      links(sheet, context, grid, style.book.options),
      complete_report(sheet, "Command6", style.report_caption),
      print(*this, context, kPrintStyle),
      exporting(*this, context, kExportStyle),
      background(*this, context, settings::GridBackground::kDisplayGrids),
      colors(context, style.panel_color),
      style_(style) {
  for (std::size_t i = 0; i < style.book.options.size(); ++i) {
    options.Add(option_frame, "Option3D1(" + std::to_string(i) + ")",
                style.book.options[i].caption);
  }
  options.Add(option_frame, "Option3D1(" + std::to_string(style.book.options.size()) + ")",
              "Pictures - Print Only");
  if (style.heading_grid) {
    headings.emplace(sheet, "VSGd2", "Headings");
    headings->SetColumns(
        {{.title = "Name", .share = kNameShare}, {.title = "Address", .share = kValueShare}});
  }
  ConnectCommands();
  ConnectPanels();
  BuildMenus();
  SetHelpContext(style.help);
}

void DisplayScreen::ConnectCommands() {
  options.on_pick = [this](int option) { Pick(option); };
  search_text.on_change = [this] { FindAsTyped(); };
  search_text.on_enter = [this] { Search(); };
  search.on_click = [this] { Search(); };
  view_all.on_click = [this] { ViewAll(); };
  grid.on_select = [this] { Moved(); };
  grid.on_heading = [this](int column) { Sort(column); };
  remove_row.on_click = [this] { RemoveRow(); };
  print_options.on_click = [this] { PrintList(); };
  complete_report.on_click = [this] { PrintReport(); };
  exit.on_click = [this] { context_.navigator.Close(*this, forms::UnloadCause::kCommand); };
}

void DisplayScreen::ConnectPanels() {
  for (forms::Panel* panel : {&print.panel, &exporting.panel, &background.panel}) {
    panel->Cover({&sheet});
  }
  print.on_close = exporting.on_close = background.on_close = [this] {
    if (grid.Reachable()) grid.Focus();
  };
  with_telephones.on_change = [this] { print.Rebuild(); };
  list_columns.on_pick = [this](int) { print.Rebuild(); };
  background.on_apply = [this](const forms::GridLook& look) {
    grid.SetLook(look);
    if (headings) headings->SetLook(look);
  };
  colors.on_change = [this] {
    for (forms::Panel* panel : {&sheet, &print.panel, &exporting.panel, &background.panel}) {
      panel->SetBackground(colors.panel());
    }
  };
}

void DisplayScreen::BuildMenus() {
  forms::MenuItem& menu = menus().AddSubmenu("mO", "&Options");
  menu.AddCommand("mOV", "&View All", view_all);
  menu.AddCommand("mOS", "&Search", search);
  menu.AddCommand("mOPrt", "&Print Options", print_options).SetKey("Ctrl+P");
  menu.AddCommand("mODel", "&Delete", remove_row);
  menu.AddEntry("mOCopy", "&Copy", {[this] { Copy(); }, {&print_options}}).SetKey("Ctrl+Shift+C");
  menu.AddSeparator();
  links.AddTo(menu);
  menu.AddSeparator();
  menu.AddEntry("mOC", "Panel C&olor", [this] { colors.Choose(parts::ColorTarget::kPanel); });
  menu.AddEntry("mOGB", "&Grid Background", {[this] { background.Open(); }, {&grid}});
  menu.AddSeparator();
  menu.AddCommand("mOE", "E&xit", exit);
  forms::MenuItem& utilities = menus().AddSubmenu("mU", "&Utilities");
  utilities.AddEntry("mUExcel", "Export File in Excel/Spreadsheet Format",
                     {[this] { Export(); }, {&grid}});
  for (forms::MenuItem* one : {&menu, &utilities}) one->LiveWith({&sheet});
  SetPopupMenu(menu);
  parts::AddHelpMenu(*this, context_, {{style_.caption, style_.help}});
}

const DisplayOption& DisplayScreen::Option() const {
  return style_.book.options[static_cast<std::size_t>(options.chosen())];
}

void DisplayScreen::Load() {
  colors.Load();
  background.Load();
  names_ = ReadNames(context_.folder, style_.book.layout);
  options.Choose(0);
  ViewAll();
  search_text.Focus();
}

bool DisplayScreen::QueryUnload(forms::UnloadCause cause) {
  const auto buttons =
      cause == forms::UnloadCause::kCommand ? forms::Buttons::kYesNoCancel : forms::Buttons::kYesNo;
  return colors.Leave(buttons);
}

// The last option leaves the grid alone.
void DisplayScreen::Pick(int option) {
  if (option < static_cast<int>(style_.book.options.size())) return Fill();
  options.Choose(0);
  Fill();
  Message({"Print Pictures Restraint",
           "Due to some computer and video memory restraints this portion of\n"
           "the program was written to only display and print one page at a time.\n"
           "NOTE: When you select Print, it may take several minutes to print,\n"
           "based on you computer memory, processor and size of printer buffer!  \n"
           "Sorry for any inconvience and additional time this may require!"});
  context_.navigator.Show(style_.pictures_form);
}

void DisplayScreen::Fill() {
  const forms::Hourglass hourglass(context_.window);
  const DisplayOption& option = Option();
  shown_option.SetCaption(option.caption);
  links.Show(option.use);
  const DisplayRows read =
      ReadDisplay(context_.folder, style_.book, option, names_.entries, sought_);
  {
    const forms::Grid::Batch batch(grid);
    ShowColumns(option);
    ShowRows(read.rows);
  }
  grid.SetCurrent({1, kName});  // into sight, wherever the rows before were scrolled to
  grid.SetCurrent({});
  Moved();
  complete_report.SetEnabled(!names_.entries.empty());
  const storage::Fault fault = names_.fault != storage::Fault::kNone ? names_.fault : read.fault;
  if (fault == storage::Fault::kNone) return ShowCount(read.rows.size());
  ShowCount(0);
  count.SetCaption(forms::UnreadableNote("The file of names", fault));
}

// Widths that a person has dragged stay while there are as many columns.
void DisplayScreen::ShowColumns(const DisplayOption& option) {
  const int wanted = option.is_address ? 4 : 2;
  if (grid.columns() != wanted) {
    std::vector<forms::GridColumn> columns{{.title = "Name", .share = kNameShare}};
    columns.resize(static_cast<std::size_t>(wanted), {.title = {}, .share = kValueShare});
    grid.SetColumns(std::move(columns), 0, 1);
  }
  grid.SetTitle(kValue, HeadingOf(option));
  for (int i = kValue + 1; i < wanted; ++i) grid.SetTitle(i, kAddressHeadings[i - kValue - 1]);
  if (headings) headings->SetVisible(&option == &style_.book.options.front());
}

void DisplayScreen::ShowRows(const std::vector<DisplayRow>& rows) {
  grid.SetRows(1);
  grid.SetSortMark(std::nullopt);
  const std::size_t count_of_rows = std::max<std::size_t>(rows.size(), kLeastRows);
  grid.SetRows(static_cast<int>(count_of_rows) + 1);
  telephones_.assign(count_of_rows, {});
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const int row = static_cast<int>(i) + 1;
    grid.SetText(row, kName, rows[i].name);
    int column = kValue;
    for (const std::string& value : rows[i].values) grid.SetText(row, column++, value);
    telephones_[i] = rows[i].telephone;
  }
}

void DisplayScreen::ShowCount(std::size_t rows) {
  print_options.SetEnabled(rows > 0);
  if (rows == 0) {
    return count.SetCaption(sought_ ? "No Matches were Found!" : "No Names Found with Info...");
  }
  count.SetCaption((sought_ ? "No. Of Matches Found: " : "No. Of Names: ") + std::to_string(rows));
}

// Those with a value: a name may be empty, a row on show never is.
int DisplayScreen::NamedRows() const {
  int rows = 0;
  for (int row = 1; row < grid.rows(); ++row) rows += grid.text(row, kValue).empty() ? 0 : 1;
  return rows;
}

void DisplayScreen::ViewAll() {
  sought_.reset();
  mode.SetCaption("Current Display Mode: &View All");
  Fill();
}

void DisplayScreen::Search() {
  if (text::Trim(search_text.text()).empty()) {
    Message({"Search", "Please Enter Search Text then press Search!", forms::Icon::kInformation});
    return search_text.Focus();
  }
  sought_ = search_text.text();
  mode.SetCaption("Current Display Mode: &Search For: [" +
                  WithPlainSigns(text::TrimRight(*sought_)) + "]");
  search_text.SelectAll();
  Fill();
}

// Goes to the first name on show that holds what is typed so far.
void DisplayScreen::FindAsTyped() {
  const std::string sought = text::UpperCase(text::Trim(search_text.text()));
  int found = 0;
  for (int row = 1; row < grid.rows() && found == 0 && !sought.empty(); ++row) {
    if (text::UpperCase(grid.text(row, kName)).find(sought) != std::string::npos) found = row;
  }
  grid.SetCurrent({found, kName});
  Moved();
}

void DisplayScreen::Moved() {
  const auto [row, column] = grid.current();
  const bool has_row = row > 0 && !grid.text(row, kValue).empty();
  remove_row.SetEnabled(has_row);
  SetStatus(row == 0 ? ""
                     : grid.column(column).title + " Row " + std::to_string(row) + ": " +
                           grid.text(row, column));
}

void DisplayScreen::Sort(int column) {
  const bool by_days = column == kValue && Option().is_date;
  std::vector<std::string> sorted;
  for (const int old :
       parts::SortSheet(grid, column, by_days ? forms::GridSortKey(DateKey) : nullptr)) {
    sorted.push_back(std::move(telephones_[static_cast<std::size_t>(old - 1)]));
  }
  telephones_ = std::move(sorted);
  Moved();
}

// From the grid only: the row is back when it is filled next.
void DisplayScreen::RemoveRow() {
  const int row = grid.current().row;
  grid.SetHighlight(row);
  const bool is_sure =
      Confirmed({"Delete Command", "Temporarily delete this entire row from grid display?",
                 forms::Icon::kInformation, forms::Buttons::kYesNo, 2});
  grid.SetHighlight(0);
  if (!is_sure) return;
  grid.RemoveRow(row);
  telephones_.erase(telephones_.begin() + row - 1);
  grid.SetRows(std::max(grid.rows(), kLeastRows + 1));
  telephones_.resize(static_cast<std::size_t>(grid.rows() - 1));
  ShowCount(static_cast<std::size_t>(NamedRows()));
  Moved();
}

}  // namespace tarnwell::record_book

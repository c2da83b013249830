#include "record_book/picture_pages.h"

#include <algorithm>
#include <string>

#include "forms/disk_trouble.h"
#include "forms/navigator.h"
#include "parts/help_menu.h"
#include "parts/picture_panel.h"
#include "print/report.h"
#include "record_book/record_store.h"
#include "text/date_mask.h"
#include "text/letters.h"

namespace tarnwell::record_book {
namespace {

constexpr int kShownSide = 300;  // pixels, on the screen
constexpr int kHeadTop = 360;    // twips
constexpr int kLeastPath = 5;    // characters of a path on a page

}  // namespace

PicturePages::PicturePages(forms::Context& context, const PicturePagesStyle& style)
    : Form(context, style.form_name, print::WithCompany(context.variables, style.caption)),
      print(*this, context, {.print_caption = "&Print this Page", .as_of_caption = {}}),
      colors(context, settings::PanelColor::kPicturePages),
      style_(style) {
  display.Add(display_frame, "SSOption3(0)", "Display All");
  display.Add(display_frame, "SSOption3(1)", style.with_pictures);
  for (std::size_t i = 0; i < style.book.lines.size(); ++i) {
    lines.push_back(std::make_unique<forms::CheckBox>(
        lines_frame, "SSCheck1(" + std::to_string(i) + ")", style.book.lines[i].caption));
  }
  list_heading.SetCaption(style.list);
  picture.SetSpokenName("Picture");
  print.options_frame.SetVisible(false);
  print.panel.Cover({&sheet});
  display.on_pick = birthdays.on_pick = [this](int) { Fill(); };
  month.on_enter = [this] { update.Click(); };
  update.on_click = [this] {
    if (text::Trim(month.text()).empty()) month.SetText("Jan");
    birthdays.Choose(1);
    Fill();
  };
  names.on_pick = [this] { ShowPicked(); };
  pages.on_pick = [this] { ShowPage(); };
  preview.on_click = [this] { Preview(); };
  cancel.on_click = [this] { context_.navigator.Close(*this, forms::UnloadCause::kCommand); };
  colors.on_change = [this] {
    for (forms::Panel* panel : {&sheet, &print.panel}) panel->SetBackground(colors.panel());
  };
  forms::MenuItem& options = menus().AddSubmenu("mO", "&Options");
  options.AddCommand("mOPrt", "&Preview Page", preview).SetKey("Ctrl+P");
  options.AddSeparator();
  options.AddEntry("mOC", "Panel C&olor", [this] { colors.Choose(parts::ColorTarget::kPanel); });
  options.AddSeparator();
  options.AddCommand("mOE", "E&xit", cancel);
  options.LiveWith({&sheet});
  SetPopupMenu(options);
  SetHelpContext(style.help);
  parts::AddHelpMenu(*this, context_);
}

void PicturePages::Load() {
  colors.Load();
  NameList read = ReadNames(context_.folder, style_.book.layout);
  all_ = std::move(read.entries);
  display.Choose(0);
  birthdays.Choose(0);
  Fill();
  if (read.fault != storage::Fault::kNone) {
    forms::TellUnreadable(context_, "The list of names", read.fault);
  }
}

bool PicturePages::QueryUnload(forms::UnloadCause) { return colors.Leave(forms::Buttons::kYesNo); }

void PicturePages::Fill() {
  const forms::Hourglass hourglass(context_.window);
  PictureChoice choice;
  choice.with_pictures_only = display.chosen() == 1;
  if (birthdays.chosen() == 1) {
    if (text::Trim(month.text()).empty()) month.SetText("Jan");
    choice.month = MonthTyped(month.text());
  }
  PicturedNames chosen =
      ChooseNames(context_.folder, style_.book, all_, choice, context_.clock.Today());
  shown_ = std::move(chosen.names);
  std::vector<std::string> items;
  for (const NameEntry& name : shown_) items.emplace_back(NameIn(name));
  names.SetItems(std::move(items));
  total.SetCaption(" Total = " + std::to_string(shown_.size()));
  std::vector<std::string> numbers;
  for (int page = 1; page <= PagesOf(shown_.size()); ++page) {
    numbers.push_back("Page " + std::to_string(page));
  }
  pages.SetItems(std::move(numbers));
  pages.Select(0);
  ShowPage();
  ShowPicked();
  if (chosen.fault != storage::Fault::kNone) {
    forms::TellUnreadable(context_, "The records", chosen.fault);
  }
}

void PicturePages::ShowPage() {
  page_label.SetCaption("Page " + std::to_string(pages.selected() + 1) + " of " +
                        std::to_string(pages.items().size()));
}

void PicturePages::ShowPicked() {
  std::string path;
  if (names.selected() != forms::ListBox::kNone) {
    const int record = shown_[static_cast<std::size_t>(names.selected())].record;
    if (const auto read = ReadRecord(context_.folder, style_.book.layout, record)) {
      path = read->picture;
    }
  }
  const parts::ShownPicture loaded = parts::LoadShown(context_, path, kShownSide, kShownSide);
  picture.SetContent(loaded.picture.png);
  picture_note.SetCaption(loaded.note);
}

void PicturePages::Preview() {
  print::PrintJob job;
  job.printed_line = false;
  job.guide_lines = settings::GuideLines::kDisplays;
  job.title = caption();
  job.build = [this](print::PageEngine& engine) { Build(engine); };
  print.Open(std::move(job));
}

void PicturePages::Build(print::PageEngine& engine) {
  const int page = pages.selected();
  const int middle = engine.page_width() / 2;
  engine.TextAt(
      middle, kHeadTop,
      print::WithCompany(context_.variables, std::string(style_.head) + std::to_string(page + 1)),
      print::Align::kCenter);
  engine.TextAt(middle, kHeadTop + engine.LineHeight(),
                "As of  " + text::FormatDate(context_.clock.Today(), "Long Date"),
                print::Align::kCenter);
  std::vector<bool> ticked;
  for (const auto& line : lines) ticked.push_back(line->checked());
  const auto first = static_cast<std::size_t>(page) * kCellsOnPage;
  const std::size_t end = std::min(first + kCellsOnPage, shown_.size());
  for (std::size_t i = first; i < end; ++i) {
    const auto record = ReadRecord(context_.folder, style_.book.layout, shown_[i].record);
    if (!record) continue;
    PictureCell cell{.path = {}, .picture = {}, .lines = LinesOf(style_.book, *record, ticked)};
    if (record->picture.size() >= kLeastPath) {
      cell.path = record->picture;
      cell.picture = context_.pictures.Look(cell.path);
    }
    const int place = static_cast<int>(i - first);
    PrintCell(engine, style_.book.places, place, cell);
    print.ReportProgress(place + 1, static_cast<int>(end - first));
  }
}

}  // namespace tarnwell::record_book

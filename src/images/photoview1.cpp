#include "images/photoview1.h"

#include <algorithm>

#include "forms/disk_trouble.h"
#include "forms/form_names.h"
#include "forms/navigator.h"
#include "images/image_book.h"
#include "images/image_pages.h"
#include "parts/backup_menu.h"
#include "parts/main_buttons.h"
#include "record_book/record_store.h"
#include "storage/file_names.h"
#include "workarea/areas.h"

namespace tarnwell::images {
namespace {

constexpr int kHelp = 3040;
constexpr int kMostShown = 1200;  // pixels of a scan on the screen
constexpr int kCopies[] = {1, 2, 4, 8};
constexpr const char* kStatus[] = {"Print Options", "Print 2", "Print 4", "Print 8"};

constexpr record_book::EntryField kFields[] = {{"Title of Photo:", 40}, {"Date:", 30}};
constexpr record_book::EntryGroup kGroups[] = {{"Photo Information", 0}};

record_book::EntryStyle Style() {
  return {
      .form_name = forms::form_names::kPhotoView,
      .book = &ImageBook(),
      .entry_caption = "Company Data - Company Agreements/Docs - Document Image Entry Screen",
      .view_caption = "Company Data - Company Agreements/Docs - Document Image View Screen",
      .fields = kFields,
      .has_comments = false,
      .groups = kGroups,
      .name_missing = "Title of Photo must be entered to save file!",
      .changed_name_missing = "A photo name must be entered to save file!",
      .click_modifies = false,
      .telephones = {},
      .emails = {},
      .worksheet = {},
      .worksheet_heads = {},
      .label_not_on_worksheet = -1,
      .print_caption = "&Print Options",
      .picture = {.panel = {.caption = "Select Photo",
                            .folder = settings::PictureFolder::kDocumentImages,
                            .longest_path = kLongestPath},
                  .command_name = "Command3",
                  .command = "&Load Picture",
                  .none_shown = "No Picture Currently Loaded",
                  .none_stored = kNoImage,
                  .shortest_path = 6,
                  .most_shown = kMostShown},
      .panel_color = settings::PanelColor::kDocumentImages,
      .has_text_color = true,
      .help = kHelp,
      .backup_set = parts::kImagesSet,
      .backup = "&Backup Document Images Files to Disk",
      .restore = "&Restore Document Images Files from Disk",
  };
}

}  // namespace

PhotoVIEW1::PhotoVIEW1(forms::Context& context) : EntryScreen(context, Style()) {
  ConnectToolbars();
  ConnectPrinting();
  ConnectSeveral();
  ConnectFull();
}

void PhotoVIEW1::Load() {
  for (const auto toolbar : {settings::ImageToolbar::kTop, settings::ImageToolbar::kSide}) {
    ShowToolbar(toolbar, settings::ReadImageToolbarShown(context_.folder, toolbar));
  }
  const auto wallpaper = settings::ReadImageBackground(context_.folder).wallpaper();
  wallpaper_ = wallpaper ? storage::file_names::Wallpaper(*wallpaper) : std::string();
  EntryScreen::Load();
}

// The colours that this screen saves are offered to all others.
bool PhotoVIEW1::QueryUnload(forms::UnloadCause cause) {
  const bool had_colors = colors.changed();
  if (!EntryScreen::QueryUnload(cause)) return false;
  if (had_colors && !colors.changed()) parts::SaveAllPanelColors(context_);
  return true;
}

void PhotoVIEW1::ConnectToolbars() {
  for (const workarea::AreaButton& area : workarea::AreaButtons()) {
    areas.push_back(std::make_unique<forms::Command>(
        top_toolbar, "Toolbar1(" + std::to_string(area.area) + ")", area.caption,
        forms::CommandStyle{.tool_tip = area.tool_tip}));
    areas.back()->on_click = [this, number = area.area] { GoTo(number); };
  }
  struct Repeated {
    forms::Command& button;
    forms::Command& command;
    const char* spoken;
  };
  for (const auto& [button, command, spoken] : {Repeated{side_save, save, "Save"},
                                                {side_print, print_file, "Print"},
                                                {side_load, link, "Load picture"},
                                                {side_remove, remove, "Delete"}}) {
    button.SetToolTip(spoken);
    button.SetSpokenName(spoken);
    button.on_click = [&own = command] { own.Click(); };
  }
  hide_side.SetToolTip("Hide toolbar");
  hide_side.SetSpokenName("Hide side toolbar");
  using enum settings::ImageToolbar;
  hide_top.on_click = [this] { HideOrRestore(kTop, false); };
  hide_side.on_click = [this] { HideOrRestore(kSide, false); };
  restore_top.on_click = [this] { HideOrRestore(kTop, true); };
  restore_side.on_click = [this] { HideOrRestore(kSide, true); };
}

void PhotoVIEW1::ShowToolbar(settings::ImageToolbar toolbar, bool shown) {
  const bool is_top = toolbar == settings::ImageToolbar::kTop;
  (is_top ? top_toolbar : side_toolbar).SetVisible(shown);
  (is_top ? restore_top : restore_side).SetVisible(!shown);
}

void PhotoVIEW1::HideOrRestore(settings::ImageToolbar toolbar, bool shown) {
  ShowToolbar(toolbar, shown);
  const auto stored = settings::WriteImageToolbarShown(context_.folder, toolbar, shown);
  if (!stored) forms::TellHoldsForNow(context_, "The choice of toolbars", stored.fault());
}

// The hub opens the area once this screen has gone.
void PhotoVIEW1::GoTo(int area) {
  const std::string before = status();
  SetStatus("Loading");
  context_.variables.HubArea = static_cast<std::int16_t>(area);
  if (context_.navigator.Close(*this, forms::UnloadCause::kCommand)) return;
  context_.variables.HubArea = 0;
  SetStatus(before);
}

void PhotoVIEW1::StateChanged() {
  show_full.SetEnabled(picture.content() != nullptr);
  choose_several.SetVisible(!is_entry());
  choose_several.SetEnabled(!entries().empty());
  side_save.SetEnabled(save.enabled());
  side_print.SetEnabled(print_file.enabled() && !is_entry());
  side_load.SetEnabled(link.enabled());
  side_remove.SetEnabled(remove.enabled() && !is_entry());
}

void PhotoVIEW1::ConnectPrinting() {
  print.options_frame.SetCaption("Copies of Picture Per Page / Print Data");
  print.options_frame.SetVisible(true);
  copies.Choose(0);
  copies.on_pick = [this](int option) {
    SetStatus(kStatus[option]);
    print.Rebuild();
  };
  print_title.on_change = print_date.on_change = [this] { print.Rebuild(); };
}

void PhotoVIEW1::ConnectFull() {
  full.SetVisible(false);
  full.Cover({&screen});
  full_picture.SetSpokenName("Picture in full size");
  show_full.on_click = picture.on_open = [this] { ShowFull(); };
  full_picture.on_enlarge = [this] { EnableFull(); };
  larger.on_click = [this] { full_picture.Enlarge(1); };
  smaller.on_click = [this] { full_picture.Enlarge(-1); };
  leave_full.on_click = [this] {
    full.SetVisible(false);
    full_picture.Show({});
    show_full.Focus();
  };
}

void PhotoVIEW1::ShowFull() {
  if (!show_full.enabled()) return;
  const forms::Hourglass hourglass(context_.window);
  full.SetVisible(true);
  full_picture.Show(picture_path());
  EnableFull();
  full_picture.Focus();
}

void PhotoVIEW1::EnableFull() {
  larger.SetEnabled(full_picture.steps() < forms::PictureView::kMostSteps);
  smaller.SetEnabled(full_picture.steps() > 0);
}

void PhotoVIEW1::OpenSheet() { Print({{picture_path(), TextOf(0), TextOf(1)}}, true); }

void PhotoVIEW1::Print(std::vector<Sheet> sheets, bool repeats) {
  sheets_ = std::move(sheets);
  repeats_ = repeats;
  print::PrintJob job;
  job.title = sheets_.front().title;
  job.printed_line = false;
  job.build = [this](print::PageEngine& engine) { Build(engine); };
  job.guide_lines = settings::GuideLines::kMainScreens;
  print.Open(std::move(job));
  SetStatus(repeats ? kStatus[copies.chosen()] : "Print Multi");
}

void PhotoVIEW1::Build(print::PageEngine& engine) {
  const int on_page = kCopies[copies.chosen()];
  std::vector<PrintedImage> images;
  for (const Sheet& sheet : sheets_) {
    PrintedImage image{sheet.path, {}};
    if (print_title.checked() && !sheet.title.empty()) image.texts.push_back(sheet.title);
    if (print_date.checked() && !sheet.date.empty()) image.texts.push_back(sheet.date);
    images.insert(images.end(), static_cast<std::size_t>(repeats_ ? on_page : 1), image);
  }
  PrintImages(engine, on_page, images);
}

}  // namespace tarnwell::images

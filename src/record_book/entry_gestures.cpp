// What the entry screen is made of, and what keys and clicks in it do.

#include <algorithm>

#include "forms/navigator.h"
#include "parts/backup_menu.h"
#include "parts/help_menu.h"
#include "record_book/entry_screen.h"
#include "record_book/information_sheet.h"
#include "text/letters.h"

namespace tarnwell::record_book {
namespace {

constexpr int kSheetMargin = forms::kTwipsPerInch;
constexpr int kLastPassedOn = 16;  // entry: Enter goes on to the next one from those above it
constexpr std::string_view kMail = "e-mail address";
constexpr int kDotsPerInch = 300;  // of a picture on paper

std::string Indexed(std::string_view name, int index) {
  return std::string(name) + "(" + std::to_string(index) + ")";
}

}  // namespace

void EntryScreen::BuildEntries() {
  std::string_view label;
  int label_index = 0;
  for (int entry = 0; entry <= last_entry(); ++entry) {
    const auto place = groups.size();
    if (place < style_.groups.size() && style_.groups[place].first == entry) {
      groups.push_back(std::make_unique<forms::Panel>(
          screen, Indexed("Panel3D1", static_cast<int>(place)), style_.groups[place].caption));
    }
    forms::Panel& group = *groups.back();
    const EntryField& field = style_.fields[static_cast<std::size_t>(entry)];
    const bool has_label = !field.label.empty();
    if (has_label) {
      label = field.label.substr(0, field.label.find(':'));
      labels.push_back(
          std::make_unique<forms::Label>(group, Indexed("Label1", label_index++), field.label));
    }
    const std::string spoken = std::string(label) + (has_label ? "" : ", second line");
    if (style_.has_comments && entry == last_entry()) {
      comments = std::make_unique<forms::TextBox>(
          group, Indexed("Text1", entry),
          forms::TextBoxStyle{.max_length = field.longest, .spoken_name = spoken});
    } else {
      fields.push_back(std::make_unique<forms::TextField>(
          group, Indexed("Text1", entry),
          forms::TextFieldStyle{.max_length = field.longest, .spoken_name = spoken}));
    }
  }
}

void EntryScreen::ConnectEntries() {
  for (int entry = 0; entry <= last_entry(); ++entry) {
    forms::Control& control = ControlOf(entry);
    control.on_focus = [this, entry] { MarkFocused(entry, true); };
    control.on_leave = [this, entry] { MarkFocused(entry, false); };
  }
  for (int entry = 0; entry < static_cast<int>(fields.size()); ++entry) {
    forms::TextField& field = *fields[static_cast<std::size_t>(entry)];
    field.on_change = [this, entry] { Typed(entry); };
    field.on_click = [this] { Clicked(); };
    field.on_enter = [this, entry] { PressedEnter(entry); };
  }
  if (!comments) return;
  comments->on_change = [this] { Typed(last_entry()); };
  comments->on_click = [this] { Clicked(); };
  comments->on_enter = [this] { return PressedEnter(last_entry()); };
}

void EntryScreen::ConnectCommands() {
  question_.on_change = [this] { SetUnsaved(question_.unsaved()); };
  search.on_change = [this] { SearchAsTyped(); };
  search.on_enter = [this] { View(); };
  view.on_click = [this] { View(); };
  names.on_pick = [this] { PickName(); };
  names.on_open = [this] {
    if (!search.text().empty()) View();
  };
  large.on_change = [this] {
    if (large.checked()) small.SetChecked(false);
  };
  small.on_change = [this] {
    if (small.checked()) large.SetChecked(false);
  };
  picture.SetSpokenName("Picture");
  picture.on_drop = [this](const std::string& path) { TakeDropped(path); };
  link.on_click = [this] { pictures.Open(picture_path_); };
  pictures.on_take = [this](const std::string& path) { TakePicture(path); };
  pictures.on_remove = [this] { TakePicture({}); };
  pictures.on_close = [this] { link.Focus(); };
  mode.on_click = [this] { SwitchMode(); };
  change.on_click = [this] { ChangeOrClear(); };
  save.on_click = [this] { Save(); };
  print_file.on_click = [this] { OpenSheet(); };
  remove.on_click = [this] { Delete(); };
  exit.on_click = [this] { context_.navigator.Close(*this, forms::UnloadCause::kCommand); };
  colors.on_change = [this] {
    for (forms::Panel* panel : {&screen, &pictures.panel, &print.panel}) {
      panel->SetBackground(colors.panel());
    }
    if (!style_.has_text_color) return;
    for (auto& field : fields) field->SetColor(colors.text());
  };
  print.options_frame.SetVisible(false);  // there are none
  print.on_close = [this] {
    SetStatus({});
    if (screen.visible()) (print_file.Reachable() ? print_file : mode).Focus();
  };
}

void EntryScreen::BuildMenus() {
  forms::MenuItem& options = menus().AddSubmenu("mO", "&Options");
  forms::MenuItem& view_name = options.AddCommand("mOV", "&View", view);
  forms::MenuItem& clear =
      options.AddEntry("mOClr", "&Clear Current Data", forms::ActionOf(change));
  forms::MenuItem& save_new =
      options.AddEntry("mONS", "&Save && New Screen", forms::ActionOf(save));
  forms::MenuItem& save_changed =
      options.AddEntry("mOS", "&Save Modifications", forms::ActionOf(save));
  save_new.SetKey("Ctrl+S");
  save_changed.SetKey("Ctrl+S");
  forms::MenuItem& delete_file = options.AddCommand("mODel", "Delete &File", remove);
  options.AddCommand("mOPrt", "&Print File", print_file).SetKey("Ctrl+P");
  if (!style_.worksheet.empty()) {
    options.AddEntry("mOW", "Print &Worksheet", {[this] { OpenWorksheet(); }, {&mode}});
  }
  forms::MenuItem& copy = options.AddEntry("mOCopy", "C&opy", [this] { Copy(); });
  options.AddSeparator();
  forms::MenuItem& view_screen = options.AddEntry("mOVS", "View Sc&reen", forms::ActionOf(mode));
  forms::MenuItem& entry_screen = options.AddEntry("mOES", "E&ntry Screen", forms::ActionOf(mode));
  options.AddSeparator();
  options.AddEntry("mOC", "Panel Co&lor", [this] { colors.Choose(parts::ColorTarget::kPanel); });
  if (style_.has_text_color) {
    options.AddEntry("mOTC", "Te&xt Color", [this] { colors.Choose(parts::ColorTarget::kText); });
  }
  options.AddSeparator();
  options.AddCommand("mOEx", "E&xit", exit);
  forms::MenuItem& edit = menus().AddSubmenu("mE", "&Edit");
  forms::MenuItem& modify = edit.AddEntry("mEMod1", "&Make Modifications", forms::ActionOf(change));
  of_content_ = {&copy, &edit.AddEntry("mECopy", "&Copy", [this] { Copy(); })};
  if (!style_.telephones.empty()) AddAddressEntries(edit);
  AddUtilities();
  of_entry_ = {&clear, &save_new, &view_screen};
  of_view_ = {&view_name, &save_changed, &delete_file, &modify, &entry_screen};
  for (forms::MenuItem* menu : {&options, &edit}) menu->LiveWith({&screen});
  SetPopupMenu(options);
  parts::AddHelpMenu(*this, context_);
}

void EntryScreen::AddUtilities() {
  forms::MenuItem& utilities = menus().AddSubmenu("mU", "&Utilities");
  const parts::BackupEntries entries =
      parts::AddBackupEntries(utilities, context_,
                              {.set = style_.backup_set,
                               .backup = style_.backup,
                               .restore = style_.restore,
                               .settle = [this] { return SettleAll(); },
                               .reload =
                                   [this] {
                                     colors.Load();
                                     ShowScreen(false);
                                   }});
  utilities.on_open = [this, &backup = entries.backup] {
    backup.SetEnabled(!ReadNames(context_.folder, *style_.book).entries.empty());
  };
  utilities.LiveWith({&screen});
}

void EntryScreen::AddAddressEntries(forms::MenuItem& edit) {
  edit.AddEntry("mECopyTel", "Copy &Telephone Number",
                [this] { CopyFirst(style_.telephones, "telephone number"); })
      .SetKey("Ctrl+T");
  edit.AddEntry("mECopyMail", "Copy &E-mail Address", [this] { CopyFirst(style_.emails, kMail); })
      .SetKey("Ctrl+L");
  edit.AddEntry("mEMail", "&Write an E-mail", [this] { WriteMail(); }).SetKey("Ctrl+M");
}

forms::Control& EntryScreen::ControlOf(int entry) {
  if (IsComments(entry)) return *comments;
  return *fields[static_cast<std::size_t>(entry)];
}

std::string EntryScreen::TextOf(int entry) const {
  return IsComments(entry) ? comments->text() : fields[static_cast<std::size_t>(entry)]->text();
}

void EntryScreen::SetTextOf(int entry, std::string_view text) {
  if (IsComments(entry)) return comments->SetText(text);
  fields[static_cast<std::size_t>(entry)]->SetText(text);
}

void EntryScreen::MarkFocused(int entry, bool focused) {
  const bool is_marked = focused && (is_entry() || state_ == State::kModifying);
  if (IsComments(entry)) return comments->SetMarked(is_marked);
  fields[static_cast<std::size_t>(entry)]->SetMarked(is_marked);
}

void EntryScreen::Typed(int entry) {
  question_.SetUnsaved(true);
  EnableCommands();
  if (entry == 0) TellUnsafeName();
}

void EntryScreen::TellUnsafeName() {
  const std::size_t width = style_.book->fields[0].width;
  SetStatus(IsUnsafeName(*style_.book, TextOf(0))
                ? "A name of " + std::to_string(width) +
                      " characters or more isn't safe here: a new entry would take its place. " +
                      std::to_string(width - 1) + " are safe."
                : "");
}

// The first click on a record that is shown makes it ready to be changed.
void EntryScreen::Clicked() {
  if (state_ == State::kNoRecord) {
    Message({"View Command", "Name must first be selected to view"});
    return search.Focus();
  }
  if (state_ != State::kShown) return;
  if (!style_.click_modifies) {
    Message({"Make Modifications", "Please click Make Modifications Button to modify data!"});
    return change.Focus();
  }
  Enter(State::kModifying);
  for (int entry = 0; entry <= last_entry(); ++entry) {
    if (ControlOf(entry).focused()) MarkFocused(entry, true);
  }
}

// True where the key makes no line.
bool EntryScreen::PressedEnter(int entry) {
  if (entry < std::min(kLastPassedOn, last_entry())) {
    ControlOf(entry + 1).Focus();
    return true;
  }
  if (entry != kLastPassedOn || !IsComments(entry)) return true;
  if (!comments->text().ends_with('\n')) return false;
  ControlOf(0).Focus();
  return true;
}

void EntryScreen::Copy() {
  if (TextOf(0).empty()) return;
  context_.clipboard.SetText(CopiedText(style_, Content().entries));
  Message(
      {"Copy Option", "Data has been copied to the Windows Clipboard.", forms::Icon::kInformation});
}

std::string EntryScreen::FirstOf(std::span<const int> entries, std::string_view what) {
  std::string found;
  for (const int entry : entries) {
    const std::string text = text::Trim(TextOf(entry));
    if (text.empty()) continue;
    if (found.empty() || ControlOf(entry).focused()) found = text;
  }
  if (found.empty()) SetStatus("There is no " + std::string(what) + " here.");
  return found;
}

void EntryScreen::CopyFirst(std::span<const int> entries, std::string_view what) {
  const std::string found = FirstOf(entries, what);
  if (found.empty()) return;
  context_.clipboard.SetText(found);
  SetStatus("Copied: " + found);
}

void EntryScreen::WriteMail() {
  const std::string address = FirstOf(style_.emails, kMail);
  if (address.empty()) return;
  SetStatus(context_.launcher.WriteMail(address) ? "A letter to " + address + " is begun."
                                                 : "No letter can be written to " + address + ".");
}

void EntryScreen::OpenSheet() {
  const SheetPicture size = large.checked()   ? SheetPicture::kLarge
                            : small.checked() ? SheetPicture::kSmall
                                              : SheetPicture::kNone;
  forms::LoadedPicture loaded;
  if (size != SheetPicture::kNone) {
    const int side = InchesOf(size) * kDotsPerInch;
    loaded = context_.pictures.Load(picture_path_, side, side);
  }
  print::PrintJob job;
  job.title = NameOf(*style_.book, Content());
  job.build = [this, loaded, size, entries = Content().entries](print::PageEngine& engine) {
    PrintInformationSheet(engine, style_, entries, loaded, size);
  };
  Open(std::move(job));
}

void EntryScreen::OpenWorksheet() {
  print::PrintJob job;
  job.title = std::string(style_.worksheet) + " Data Worksheet";
  job.build = [this](print::PageEngine& engine) { PrintWorksheet(engine, style_); };
  Open(std::move(job));
  SetStatus("Print Worksheet");
}

void EntryScreen::Open(print::PrintJob job) {
  job.margins.left = job.margins.right = kSheetMargin;
  job.guide_lines = settings::GuideLines::kMainScreens;
  print.Open(std::move(job));
}

}  // namespace tarnwell::record_book

#include "parts/format_bar.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <optional>
#include <sstream>

#include "forms/disk_trouble.h"
#include "forms/message.h"
#include "richtext/picture_file.h"
#include "text/code_page_1252.h"
#include "text/letters.h"

namespace tarnwell::parts {
namespace {

using richtext::Alignment;
using richtext::ListKind;

struct Button {
  FormatCommand command;
  const char* caption;  // in the menu
  const char* name;
  const char* key;
  bool is_state = false;  // it stays down while the text is so
};

constexpr Button kButtons[] = {
    {FormatCommand::kUndo, "&Undo", "Undo", "Ctrl+Z"},
    {FormatCommand::kRedo, "Re&do", "Redo", "Ctrl+Y"},
    {FormatCommand::kBold, "&Bold", "Bold", "Ctrl+B", true},
    {FormatCommand::kItalic, "&Italic", "Italic", "Ctrl+I", true},
    {FormatCommand::kUnderline, "U&nderline", "Underline", "Ctrl+U", true},
    {FormatCommand::kColor, "&Color...", "Color of the letters", "Ctrl+Shift+C"},
    {FormatCommand::kHighlight, "&Highlight", "Highlight", "Ctrl+Shift+H", true},
    {FormatCommand::kLeft, "&Left", "Left", "Ctrl+L", true},
    {FormatCommand::kCenter, "C&enter", "Center", "Ctrl+E", true},
    {FormatCommand::kRight, "&Right", "Right", "Ctrl+R", true},
    {FormatCommand::kJustify, "&Justify", "Justify", "Ctrl+J", true},
    {FormatCommand::kBullets, "Bulle&ts", "Bullets", "Ctrl+Shift+L", true},
    {FormatCommand::kNumbers, "Nu&mbers", "Numbers", "Ctrl+Shift+N", true},
    {FormatCommand::kOutdent, "Indent &Out", "Indent out", "Ctrl+Shift+M"},
    {FormatCommand::kIndent, "Indent In", "Indent in", "Ctrl+M"},
    {FormatCommand::kTable, "", "Table", ""},
    {FormatCommand::kPicture, "&Picture...", "Insert picture", "Ctrl+Shift+P"},
    {FormatCommand::kLink, "Lin&k...", "Link", "Ctrl+K"},
};

// Behind these a new group begins in the menu.
constexpr FormatCommand kEndsOfGroups[] = {FormatCommand::kRedo, FormatCommand::kHighlight,
                                           FormatCommand::kJustify, FormatCommand::kIndent,
                                           FormatCommand::kLink};

constexpr double kLeastSize = 1;  // points
constexpr double kLargestSize = 1638;

std::string SizeText(double points) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << points;
  return text.str();
}

// Empty for what is no size.
std::optional<double> SizeOf(const std::string& text) {
  double points = 0;
  const char* const last = text.data() + text.size();
  const auto end = std::from_chars(text.data(), last, points);
  const bool is_number = end.ec == std::errc() && end.ptr == last;
  if (!is_number || points < kLeastSize || points > kLargestSize) return std::nullopt;
  return points;
}

template <typename Value>
bool Is(const std::optional<Value>& part, const Value& value) {
  return part && *part == value;
}

}  // namespace

FormatBar::FormatBar(forms::Container& parent, forms::Context& context, forms::RichTextBox& text)
    : panel(parent, "Toolbar1"),
      font(panel, "Toolbar1Font", {.completes = true, .spoken_name = "Font"}),
      size(panel, "Toolbar1Size",
           {.max_length = 6, .characters = "0123456789.", .spoken_name = "Font size"}),
      tables(context, text),
      context_(context),
      text_(text),
      buttons_(panel, "Toolbar1Button", ""),
      highlight_(forms::kYellow) {
  for (const Button& button : kButtons) {
    forms::Command& command = (*this)[button.command];
    command.SetSpokenName(button.name);
    const bool has_key = *button.key != '\0';
    command.SetToolTip(button.name + (has_key ? " (" + std::string(button.key) + ")" : ""));
    command.on_click = [this, which = button.command] {
      Press(which);
      text_.Focus();
    };
  }
  ConnectFont();
  text_.SetPopupMenu(&tables.popup);
  subscription_ = text_.OnChanged([this] { Show(); });
  Show();
}

void FormatBar::ConnectFont() {
  font.SetToolTip("Font");
  size.SetToolTip("Font size in points");
  size.SetItems(
      {"8", "9", "10", "10.5", "11", "12", "14", "16", "18", "20", "24", "28", "36", "48", "72"});
  font.on_focus = [this] { OfferFonts(); };
  font.on_open = [this] { return OfferFonts(), true; };
  font.on_take = [this] {
    forms::FontParts parts;
    if (!font.text().empty()) parts.name = font.text();
    text_.ChangeFont(parts);
    text_.Focus();
    Show();
  };
  font.on_leave = size.on_leave = [this] { Show(); };
  size.on_take = [this] {
    forms::FontParts parts;
    parts.size = SizeOf(size.text());
    text_.ChangeFont(parts);
    text_.Focus();
    Show();
  };
}

void FormatBar::OfferFonts() {
  if (font.items().empty()) font.SetItems(context_.pages.FontNames());
}

forms::MenuItem& FormatBar::AddMenu(forms::MenuItem& menus) {
  forms::MenuItem& menu = menus.AddSubmenu("mF", "For&mat");
  for (const Button& button : kButtons) {
    if (button.command == FormatCommand::kTable) {
      tables.AddTo(menu);
      continue;
    }
    forms::Command& command = (*this)[button.command];
    const std::string name = "mF(" + std::to_string(static_cast<int>(button.command)) + ")";
    forms::MenuItem& entry = menu.AddCommand(name, button.caption, command);
    entry.SetKey(button.key);
    if (button.is_state) {
      entry.SetCheckable();
      states_.emplace_back(&entry, &command);
    }
    if (button.command == FormatCommand::kHighlight) {
      menu.AddEntry("mFHC", "Hi&ghlight Color...", {[this] { ChooseHighlight(); }, {&command}});
    }
    if (std::ranges::find(kEndsOfGroups, button.command) != std::end(kEndsOfGroups)) {
      menu.AddSeparator();
    }
  }
  menu.on_open = [this] {
    for (const auto& [entry, command] : states_) entry->SetChecked(command->selected());
  };
  return menu;
}

void FormatBar::Press(FormatCommand command) {
  switch (command) {
    case FormatCommand::kUndo:
      return text_.Undo();
    case FormatCommand::kRedo:
      return text_.Redo();
    case FormatCommand::kBold:
      return text_.ToggleBold();
    case FormatCommand::kItalic:
      return text_.ToggleItalic();
    case FormatCommand::kUnderline:
      return text_.ToggleUnderline();
    case FormatCommand::kColor:
      return ChooseColor();
    case FormatCommand::kHighlight:
      return text_.Highlight(look_.highlight ? std::nullopt : std::optional(highlight_));
    case FormatCommand::kLeft:
      return text_.Align(Alignment::kLeft);
    case FormatCommand::kCenter:
      return text_.Align(Alignment::kCenter);
    case FormatCommand::kRight:
      return text_.Align(Alignment::kRight);
    case FormatCommand::kJustify:
      return text_.Align(Alignment::kJustify);
    case FormatCommand::kBullets:
      return ToggleList(ListKind::kBullets);
    case FormatCommand::kNumbers:
      return ToggleList(ListKind::kNumbers);
    case FormatCommand::kOutdent:
      return text_.Indent(-1);
    case FormatCommand::kIndent:
      return text_.Indent(1);
    case FormatCommand::kTable:
      return;
    case FormatCommand::kPicture:
      return InsertPicture();
    case FormatCommand::kLink:
      return InsertLink();
  }
}

void FormatBar::ChooseColor() {
  const auto chosen = context_.dialogs.ChooseColor(look_.font.color.value_or(forms::kBlack));
  if (!chosen) return;
  forms::FontParts parts;
  parts.color = chosen;
  text_.ChangeFont(parts);
}

void FormatBar::ChooseHighlight() {
  if (const auto chosen = context_.dialogs.ChooseColor(look_.highlight.value_or(highlight_))) {
    highlight_ = *chosen;
    text_.Highlight(highlight_);
  }
  text_.Focus();
}

void FormatBar::InsertPicture() {
  auto chosen = context_.dialogs.ChoosePicture();
  if (!chosen) return;
  if (chosen->fault != storage::Fault::kNone) {
    return forms::TellUnreadable(context_, "The picture", chosen->fault);
  }
  const richtext::Page& page = text_.document().page;
  auto picture = richtext::PictureFromFile(std::move(chosen->bytes),
                                           page.width - page.left_margin - page.right_margin,
                                           page.height - page.top_margin - page.bottom_margin);
  if (picture) return text_.InsertPicture(std::move(*picture));
  forms::ShowMessage(context_, {"Insert Picture",
                                "Only pictures of the kinds PNG and JPEG can "
                                "stand in a document."});
}

void FormatBar::InsertLink() {
  const auto address = context_.dialogs.Input(
      {"Link", "Address of a web page (https://...) or of mail (mailto:...):"});
  if (!address || text_.Link(text::ToUtf8(text::Trim(*address)).bytes())) return;
  forms::ShowMessage(context_, {"Link",
                                "Nothing was linked. An address begins with http://, "
                                "https:// or mailto: and has no blank in it; what is "
                                "linked stands in one paragraph."});
}

void FormatBar::ToggleList(ListKind kind) {
  text_.SetList(look_.list == kind ? ListKind::kNone : kind);
}

void FormatBar::Show() {
  look_ = text_.SelectionLook();
  panel.SetEnabled(!text_.locked());
  tables.Follow(look_.in_table);
  (*this)[FormatCommand::kUndo].SetEnabled(text_.CanUndo());
  (*this)[FormatCommand::kRedo].SetEnabled(text_.CanRedo());
  const std::pair<FormatCommand, bool> states[] = {
      {FormatCommand::kBold, Is(look_.font.bold, true)},
      {FormatCommand::kItalic, Is(look_.font.italic, true)},
      {FormatCommand::kUnderline, Is(look_.font.underline, true)},
      {FormatCommand::kHighlight, look_.highlight.has_value()},
      {FormatCommand::kLeft, look_.alignment == Alignment::kLeft},
      {FormatCommand::kCenter, look_.alignment == Alignment::kCenter},
      {FormatCommand::kRight, look_.alignment == Alignment::kRight},
      {FormatCommand::kJustify, look_.alignment == Alignment::kJustify},
      {FormatCommand::kBullets, look_.list == ListKind::kBullets},
      {FormatCommand::kNumbers, look_.list == ListKind::kNumbers},
  };
  for (const auto& [command, is_down] : states) {
    forms::Command& button = (*this)[command];
    if (button.selected() != is_down) button.SetSelected(is_down);
  }
  ShowText(look_.font.name.value_or(""), font);
  ShowText(look_.font.size ? SizeText(*look_.font.size) : "", size);
}

// What a person is typing stays until it is taken or left.
void FormatBar::ShowText(const std::string& text, forms::TypedCombo& combo) {
  if (combo.taken() != text || (!combo.focused() && combo.text() != text)) combo.SetText(text);
}

}  // namespace tarnwell::parts

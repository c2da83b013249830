// The bar above a document that a person writes in, and the menu that names the same.

#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/command.h"
#include "forms/context.h"
#include "forms/control_array.h"
#include "forms/menu.h"
#include "forms/panel.h"
#include "forms/rich_text_box.h"
#include "forms/typed_combo.h"
#include "parts/table_menu.h"

namespace tarnwell::parts {

// The bar's buttons, from left to right.
enum class FormatCommand {
  kUndo,
  kRedo,
  kBold,
  kItalic,
  kUnderline,
  kColor,
  kHighlight,
  kLeft,
  kCenter,
  kRight,
  kJustify,
  kBullets,
  kNumbers,
  kOutdent,
  kIndent,
  kTable,
  kPicture,
  kLink,
};
inline constexpr int kFormatCommandCount = 18;

// Its buttons show at any time how the text is at the cursor, and change it as one step of undo. A
// text that is only read leaves nothing to press.
class FormatBar {
 public:
  FormatBar(forms::Container& parent, forms::Context& context, forms::RichTextBox& text);

  forms::Panel panel;
  forms::TypedCombo font;
  forms::TypedCombo size;
  TableMenu tables;  // hangs below the button kTable

  forms::Command& operator[](FormatCommand command) {
    return buttons_[static_cast<std::size_t>(command)];
  }

  // "Format", with every button once more and its key.
  forms::MenuItem& AddMenu(forms::MenuItem& menus);

 private:
  void ConnectFont();
  void Show();
  void ShowText(const std::string& text, forms::TypedCombo& combo);
  void Press(FormatCommand command);
  void ChooseColor();
  void ChooseHighlight();
  void InsertPicture();
  void InsertLink();
  void ToggleList(richtext::ListKind kind);
  void OfferFonts();

  forms::Context& context_;
  forms::RichTextBox& text_;
  forms::ControlArray<forms::Command, kFormatCommandCount> buttons_;
  forms::TextLook look_;
  forms::Color highlight_;  // that the button gives
  std::vector<std::pair<forms::MenuItem*, forms::Command*>> states_;
  forms::Subscription subscription_;
};

}  // namespace tarnwell::parts

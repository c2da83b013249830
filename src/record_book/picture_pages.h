// The screen from which records are printed with their pictures, eight to a page, a page at a time.

#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/list_box.h"
#include "forms/panel.h"
#include "forms/text_field.h"
#include "parts/color_choice.h"
#include "print/print_panel.h"
#include "record_book/picture_cells.h"

namespace tarnwell::record_book {

struct PicturePagesStyle {
  std::string_view form_name;
  std::string_view caption;
  PictureBook book;
  std::string_view list;           // " Employee... "
  std::string_view head;           // of a page; its number follows
  std::string_view with_pictures;  // the second display option
  int help = 0;
};

class PicturePages : public forms::Form {
 public:
  PicturePages(forms::Context& context, const PicturePagesStyle& style);

  forms::Panel sheet{*this, "SSPanel1"};
  forms::Label warning{
      sheet, "Label1(0)",
      "DO NOT USE COMPUTER FOR OTHER PURPOSES DURING LOADING AND PRINTING ACTIONS!",
      forms::LabelRole::kNote};
  forms::Label patience{
      sheet, "Label1(1)",
      "Depending on your computer, this function may require a minute or two to complete!",
      forms::LabelRole::kNote};
  forms::Label list_heading{sheet, "Panel3D1(0)", {}, forms::LabelRole::kHeading};
  forms::Label total{sheet, "Panel3D1(1)"};
  forms::ListBox names{sheet, "VSGd1", "Names"};
  forms::Picture picture{sheet, "Image1", {}};
  forms::Label picture_note{sheet, "Label2", {}, forms::LabelRole::kNote};
  forms::Panel display_frame{sheet, "SSFrame3", "Display Option"};
  forms::OptionGroup display;
  forms::Panel birthday_frame{sheet, "SSFrame1", "Birthday Criteria"};
  forms::OptionGroup birthdays{
      birthday_frame, "SSOption1", {"Find All Birthdates", "Birthday Month"}};
  forms::Label month_label{birthday_frame, "Label3(0)", "Enter Month:"};
  forms::TextField month{birthday_frame, "Text1", {.max_length = 12, .spoken_name = "Month"}};
  forms::Label month_note{birthday_frame, "Label3(1)", "(Jan or 1, etc.)"};
  forms::Command update{birthday_frame, "SSCommand4", "&Update Data"};
  forms::Panel lines_frame{sheet, "SSFrame2", "Additional Information Display"};
  std::vector<std::unique_ptr<forms::CheckBox>> lines;
  forms::ComboBox pages{sheet, "FlatScrollBar1", "Page"};
  forms::Label page_label{sheet, "Label4"};
  forms::Command preview{sheet, "SSCommand3", "&Preview Page"};
  forms::Command cancel{sheet, "SSCommand5", "&Cancel", {.cancel = true}};
  print::PrintPanel print;
  parts::ColorChoice colors;

  void Load() override;
  bool QueryUnload(forms::UnloadCause cause) override;

 private:
  void Fill();
  void ShowPage();
  void ShowPicked();
  void Preview();
  void Build(print::PageEngine& engine);

  PicturePagesStyle style_;
  std::vector<NameEntry> all_;
  std::vector<NameEntry> shown_;
};

}  // namespace tarnwell::record_book

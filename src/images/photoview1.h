#pragma once

#include <memory>
#include <vector>

#include "forms/picture_view.h"
#include "record_book/entry_screen.h"
#include "settings/picture_settings.h"

namespace tarnwell::images {

// The screen "Document Images": titles and dates of scanned documents, each with the path of its
// picture, one at a time.
class PhotoVIEW1 : public record_book::EntryScreen {
 public:
  explicit PhotoVIEW1(forms::Context& context);

  // The areas of the hub, to which each button leads.
  forms::Panel top_toolbar{screen, "Toolbar1"};
  std::vector<std::unique_ptr<forms::Command>> areas;
  forms::Command hide_top{top_toolbar, "Toolbar1(42)", "Hide Toolbar"};
  // The screen's own commands once more.
  forms::Panel side_toolbar{screen, "Toolbar2"};
  forms::Command side_save{side_toolbar, "Toolbar2(1)", {}};
  forms::Command side_print{side_toolbar, "Toolbar2(2)", {}};
  forms::Command side_load{side_toolbar, "Toolbar2(3)", {}};
  forms::Command side_remove{side_toolbar, "Toolbar2(4)", {}};
  forms::Command hide_side{side_toolbar, "Toolbar2(5)", {}};
  forms::Command restore_top{screen, "StatusBar1(2)", "Click to Restore Top Toolbar"};
  forms::Command restore_side{screen, "StatusBar1(3)", "Click to Restore Side Toolbars"};

  forms::OptionGroup copies{
      print.options_frame,
      "SSOption1",
      {"One on a Page", "Two on a Page", "Four on a Page", "Eight on a Page"}};
  forms::CheckBox print_title{print.options_frame, "SSCheck1", "Title"};
  forms::CheckBox print_date{print.options_frame, "SSCheck2", "Date"};

  // The picture as large as a person wants it.
  forms::Command show_full{picture_panel, "Command8", "F&ull Size"};
  forms::Panel full{*this, "SSPanel6", "Full Size"};
  forms::PictureView full_picture{full, "Image2"};
  forms::Command larger{full, "Command7(0)", "&Larger"};
  forms::Command smaller{full, "Command7(1)", "&Smaller"};
  forms::Command leave_full{full, "Command7(2)", "E&xit", {.cancel = true}};

  // Several images together.
  forms::Command choose_several{screen, "Command5", "Print M&ulti"};
  forms::Panel several{*this, "SSPanel5", "Print Multi"};
  forms::Label all_heading{several, "Label4(0)", "Names:"};
  forms::ListBox all{several, "List3", "Names"};
  forms::Label chosen_heading{several, "Label4(1)", "To be printed, in this order:"};
  forms::ListBox chosen{several, "List2", "Names to be printed"};
  forms::Command add{several, "Command6(0)", "&Add"};
  forms::Command take_away{several, "Command6(1)", "&Take Away"};
  forms::Command print_several{several, "Command6(2)", "&Print Options"};
  forms::Command leave_several{several, "Command6(3)", "E&xit", {.cancel = true}};

  // The file of the supplied picture behind the screen; empty for none.
  const std::string& wallpaper() const { return wallpaper_; }

  void Load() override;
  bool QueryUnload(forms::UnloadCause cause) override;

 protected:
  void OpenSheet() override;
  void StateChanged() override;

 private:
  // What is printed of one image.
  struct Sheet {
    std::string path;
    std::string title;
    std::string date;
  };

  void ConnectToolbars();
  void ConnectPrinting();
  void ConnectSeveral();
  void ConnectFull();
  void ShowFull();
  void EnableFull();
  void ShowToolbar(settings::ImageToolbar toolbar, bool shown);
  void HideOrRestore(settings::ImageToolbar toolbar, bool shown);
  void GoTo(int area);
  void ShowSeveral();
  void AddChosen();
  void TakeAway();
  void EnableSeveral();
  void PrintSeveral();
  void Print(std::vector<Sheet> sheets, bool repeats);
  void Build(print::PageEngine& engine);

  std::vector<Sheet> sheets_;
  bool repeats_ = false;  // one image fills its page
  std::string wallpaper_;
  std::vector<record_book::NameEntry> chosen_;
};

}  // namespace tarnwell::images

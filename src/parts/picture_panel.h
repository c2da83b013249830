// The panel through which a person links a picture: a file of the machine, seen before it is taken.

#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/command.h"
#include "forms/context.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "parts/folder_chooser.h"
#include "settings/picture_settings.h"

namespace tarnwell::parts {

struct PicturePanelStyle {
  std::string_view caption = "Select Individual Picture";
  settings::PictureFolder folder{};  // where the panel opens without a picture
  std::size_t longest_path = 0;      // characters that the screen's file keeps
  bool keeps_quotes = true;          // else its file ends a text at one
};

class PicturePanel {
 public:
  PicturePanel(forms::Container& parent, forms::Context& context, const PicturePanelStyle& style);

  forms::Panel panel;
  FolderChooser chooser;
  // Which kinds of pictures are listed.
  forms::ComboBox kinds{panel, "Combo30", "Kinds of pictures"};
  forms::Label preview_heading{panel, "Label130", "Picture Preview:"};
  forms::Picture preview{panel, "Image30", {}};
  // In the preview's place, where there is none.
  forms::Label note{panel, "Label131", {}, forms::LabelRole::kNote};
  forms::Command enter{panel, "SSCommand30(0)", "&Enter Picture Into Program"};
  forms::Command leave{panel, "SSCommand30(1)", "E&xit Without Entering Picture", {.cancel = true}};
  forms::Command remove{panel, "SSCommand30(2)", "Exit an &Delete Current Picture"};

  // On the picture that the screen has; empty for none.
  void Open(const std::string& path);
  void Close();

  // Why the file at that path can't be an entry's picture: a sentence, empty if it can. An empty
  // path is one with letters that code page 1252 doesn't have.
  std::string WhyNot(const std::string& path) const;

  std::function<void(const std::string& path)> on_take;
  std::function<void()> on_remove;
  std::function<void()> on_close;

 private:
  void ListKind(int kind);
  void ShowPreview();
  std::string WhyNotKept(const std::string& path) const;
  void Enter();

  forms::Context& context_;
  PicturePanelStyle style_;
};

// A picture for the screen, or why there is none: a sentence for the frame in its place.
struct ShownPicture {
  forms::LoadedPicture picture;
  std::string note;
};
ShownPicture LoadShown(forms::Context& context, const std::string& path, int most_width,
                       int most_height);

}  // namespace tarnwell::parts

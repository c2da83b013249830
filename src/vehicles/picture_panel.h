#pragma once

#include <functional>
#include <string>

#include "forms/command.h"
#include "forms/context.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "parts/folder_chooser.h"

namespace tarnwell::vehicles {

// Where a person finds the picture of a vehicle among the machine's files.
class PicturePanel {
 public:
  PicturePanel(forms::Container& parent, forms::Context& context);

  forms::Panel panel;
  forms::Label title{panel, "Label70", "Select the Picture of the Vehicle",
                     forms::LabelRole::kTitle};
  parts::FolderChooser chooser;
  forms::Picture preview{panel, "Image2", {}};
  forms::Command use{panel, "Command27", "&Use this Picture"};
  forms::Command close{panel, "Command28", "&Close", {.cancel = true}};

  // On the folder from which the last one was taken.
  void Open();
  void Close();

  std::function<void(const std::string& path)> on_use;
  std::function<void()> on_close;

 private:
  void ShowPreview();
  void Use();

  forms::Context& context_;
};

}  // namespace tarnwell::vehicles

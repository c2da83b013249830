#pragma once

#include "forms/command.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/text_box.h"

namespace tarnwell::shell {

class About1 : public forms::Form {
 public:
  explicit About1(forms::Context& context);

  forms::Picture logo;
  forms::Label product;
  forms::Label version;
  forms::Label maker;
  forms::Label data_place{*this, "Label4"};
  forms::Command open_folder{*this, "Command2", "Open &Folder"};
  forms::TextBox licenses{*this, "Text1", {.spoken_name = "Licenses"}};
  forms::Command close;

 private:
  void OpenFolder();
};

}  // namespace tarnwell::shell

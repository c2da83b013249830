// The lists of drives, folders and files through which a person finds a folder or a file of the
// machine.

#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/choice.h"
#include "forms/context.h"
#include "forms/label.h"
#include "forms/list_box.h"

namespace tarnwell::parts {

struct FolderChooserStyle {
  // The endings of the files that are listed, as ".xls", in any capitals; empty for all files.
  std::vector<std::string_view> extensions = {};
  // For a screen that has controls of these names itself.
  std::string_view drives = "Drive1";
  std::string_view folders = "Dir1";
  std::string_view files = "File1";
  std::string_view path = "Label24";
  std::string_view drives_heading = "Label20";
  std::string_view folders_heading = "Label21";
  std::string_view path_heading = "Label22";
  std::string_view files_heading = "Label23";
};

class FolderChooser {
 public:
  FolderChooser(forms::Container& parent, forms::Context& context,
                const FolderChooserStyle& style = {});

  forms::Label drives_heading;
  // The places of this machine from which folders are reached.
  forms::ComboBox drives;
  forms::Label folders_heading;
  // The folder above is its first row, "..", where there is one. A folder is opened, not picked.
  forms::ListBox folders;
  forms::Label path_heading;
  forms::Label path;
  forms::Label files_heading;
  forms::ListBox files;

  // Shows the drives and `folder`, with `file` selected where it is listed. In the place of a
  // folder that can't be read, and of none, comes the program's own, or the first drive that can be
  // read.
  void Open(const std::string& folder = {}, std::string_view file = {});
  // Lists files with these endings from now on.
  void SetExtensions(std::vector<std::string_view> extensions);
  // Reads the folder on show anew.
  void Refresh() { Show(folder_); }

  // The folder on show, with a "/" behind.
  const std::string& folder() const { return folder_; }
  // The whole path of the file that is selected; empty for none.
  std::string file_path() const;
  // False from when nothing could be read until another drive is picked.
  bool is_readable() const { return readable_; }
  // A name with one of the endings that are listed.
  bool Lists(std::string_view name) const;

  std::function<void()> on_folder;  // another folder came on show, or none could be read
  std::function<void()> on_file;    // a person picked a file

 private:
  void PickDrive();
  void OpenFolder();
  bool Show(const std::string& folder);
  void SelectDrive();
  bool FallBack();
  void TellUnavailable();

  forms::Context& context_;
  std::vector<std::string> extensions_;
  std::vector<forms::Place> places_;
  std::string folder_;
  bool readable_ = true;
};

}  // namespace tarnwell::parts

#include "parts/folder_chooser.h"

#include <gmock/gmock.h>

#include "forms/panel.h"
#include "support/form_rig.h"

namespace tarnwell::parts {
namespace {

using ::testing::ElementsAre;

TEST(FolderChooser, OpensWhereItIsToldOrElseWhereItCan) {
  testing::FormRig rig;
  rig.folders.readable["/"] = {{"home"}, {}};
  rig.folders.readable["/home/ann/Photos/"] = {{}, {"a.JPG", "b.txt", "c.png"}};
  FolderChooser chooser(rig.form, rig.context, {.extensions = {".jpg", ".png"}});
  const struct {
    const char* folder;
    const char* file;
    const char* shown;
    const char* chosen;
  } cases[] = {
      {"/home/ann/Photos", "c.png", "/home/ann/Photos/", "/home/ann/Photos/c.png"},
      {"/home/ann/Photos/", "b.txt", "/home/ann/Photos/", ""},
      {"/home/ann/Photos/", "", "/home/ann/Photos/", ""},
      {"/gone", "c.png", "/home/ann/Tarnwell/", ""},
      {"", "", "/home/ann/Tarnwell/", ""},
  };
  for (const auto& one : cases) {
    chooser.Open(one.folder, one.file);
    EXPECT_EQ(chooser.folder(), one.shown) << one.folder;
    EXPECT_EQ(chooser.file_path(), one.chosen) << one.folder << one.file;
  }
  chooser.Open("/home/ann/Photos");
  EXPECT_THAT(chooser.files.items(), ElementsAre("a.JPG", "c.png"));

  rig.folders.readable.erase("/home/ann/Tarnwell/");
  rig.folders.readable.erase("/home/ann/");
  chooser.Open();
  EXPECT_EQ(chooser.folder(), "/");
  rig.folders.readable.clear();
  chooser.Open();
  EXPECT_FALSE(chooser.is_readable());
}

TEST(FolderChooser, TwoStandOnOneScreenUnderTheirOwnNames) {
  testing::FormRig rig;
  int files = 0;
  FolderChooser exported(rig.form, rig.context, {.extensions = {".xls"}});
  FolderChooser pictures(rig.form, rig.context,
                         {.drives = "Drive2",
                          .folders = "Dir2",
                          .files = "File2",
                          .path = "Label34",
                          .drives_heading = "Label30",
                          .folders_heading = "Label31",
                          .path_heading = "Label32",
                          .files_heading = "Label33"});
  for (const forms::Control* control : rig.form.AllControls()) {
    EXPECT_EQ(rig.form.Find(control->name()), control) << control->name();
  }
  rig.folders.readable["/home/ann/Tarnwell/"] = {{}, {"any.file"}};
  pictures.on_file = [&] { ++files; };
  pictures.Open();
  pictures.files.Pick(0);
  EXPECT_EQ(files, 1);
  EXPECT_EQ(pictures.file_path(), "/home/ann/Tarnwell/any.file");
}

}  // namespace
}  // namespace tarnwell::parts

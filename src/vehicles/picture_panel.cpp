#include "vehicles/picture_panel.h"

#include "forms/disk_trouble.h"
#include "settings/picture_settings.h"

namespace tarnwell::vehicles {
namespace {

constexpr int kPreviewSize = 320;  // pixels

parts::FolderChooserStyle Pictures() {
  return {
      .extensions = {".bmp", ".gif", ".ico", ".jpg", ".jpeg", ".png", ".tif", ".tiff", ".webp"}};
}

}  // namespace

PicturePanel::PicturePanel(forms::Container& parent, forms::Context& context)
    : panel(parent, "SSPanel8"), chooser(panel, context, Pictures()), context_(context) {
  panel.SetVisible(false);
  preview.SetSpokenName("Picture that is selected");
  chooser.on_file = chooser.on_folder = [this] { ShowPreview(); };
  use.on_click = [this] { Use(); };
  close.on_click = [this] { Close(); };
}

void PicturePanel::Open() {
  panel.SetVisible(true);
  chooser.Open(settings::ReadPictureFolder(context_.folder, settings::PictureFolder::kVehicles));
  ShowPreview();
  chooser.files.Focus();
}

void PicturePanel::Close() {
  panel.SetVisible(false);
  if (on_close) on_close();
}

// Only what can be shown can be used, and a path that the vehicle's file can hold.
void PicturePanel::ShowPreview() {
  const std::string path = chooser.file_path();
  const auto loaded = path.empty() ? forms::LoadedPicture()
                                   : context_.pictures.Load(path, kPreviewSize, kPreviewSize);
  preview.SetContent(loaded.png);
  use.SetEnabled(loaded.png && path.find('"') == std::string::npos);
}

void PicturePanel::Use() {
  const auto stored = settings::WritePictureFolder(
      context_.folder, settings::PictureFolder::kVehicles, chooser.folder());
  if (!stored) forms::TellHoldsForNow(context_, "The folder of pictures", stored.fault());
  on_use(chooser.file_path());
  Close();
}

}  // namespace tarnwell::vehicles

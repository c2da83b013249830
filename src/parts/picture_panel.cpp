#include "parts/picture_panel.h"

#include "forms/disk_trouble.h"

namespace tarnwell::parts {
namespace {

constexpr int kPreviewWidth = 480;  // pixels
constexpr int kPreviewHeight = 360;
constexpr const char* kNotLoaded = "Program is unable to load this file as a Picture File!!!";

// Of a path of this system or of another, whose files the program may have come with.
std::size_t NameBegin(const std::string& path) {
  const std::size_t last = path.find_last_of("/\\");
  return last == std::string::npos ? 0 : last + 1;
}

}  // namespace

PicturePanel::PicturePanel(forms::Container& parent, forms::Context& context,
                           const PicturePanelStyle& style)
    : panel(parent, "SSPanel30", style.caption),
      chooser(panel, context,
              {.extensions = {".bmp", ".ico", ".mmf", ".emf", ".jpg", ".gif", ".jpeg", ".png",
                              ".tif", ".tiff", ".webp"},
               .drives = "Drive30",
               .folders = "Dir30",
               .files = "File30",
               .path = "Label137",
               .drives_heading = "Label133",
               .folders_heading = "Label134",
               .path_heading = "Label135",
               .files_heading = "Label136"}),
      context_(context),
      style_(style) {
  panel.SetVisible(false);
  preview.SetSpokenName("Picture");
  chooser.on_file = chooser.on_folder = [this] { ShowPreview(); };
  enter.on_click = [this] { Enter(); };
  leave.on_click = [this] { Close(); };
  remove.on_click = [this] {
    if (on_remove) on_remove();
    Close();
  };
}

void PicturePanel::Open(const std::string& path) {
  panel.SetVisible(true);
  remove.SetEnabled(!path.empty());
  const std::size_t name = NameBegin(path);
  chooser.Open(path.empty() ? settings::ReadPictureFolder(context_.folder, style_.folder)
                            : path.substr(0, name),
               path.substr(name));
  ShowPreview();
  chooser.files.Focus();
}

void PicturePanel::Close() {
  panel.SetVisible(false);
  if (on_close) on_close();
}

void PicturePanel::ShowPreview() {
  const std::string path = chooser.file_path();
  const ShownPicture shown =
      path.empty() ? ShownPicture{} : LoadShown(context_, path, kPreviewWidth, kPreviewHeight);
  std::string why = shown.picture.png || path.empty() ? "" : kNotLoaded;
  if (path.size() > style_.longest_path) {
    why = "This picture's path is too long to be kept: " + std::to_string(path.size()) +
          " characters, where there is room for " + std::to_string(style_.longest_path) + ".";
  }
  if (!style_.keeps_quotes && path.find('"') != std::string::npos) {
    why = "This picture's path has a quote in it and can't be kept.";
  }
  preview.SetContent(shown.picture.png);
  note.SetCaption(why);
  enter.SetEnabled(!path.empty() && why.empty());
}

void PicturePanel::Enter() {
  const std::string path = chooser.file_path();
  const auto kept = settings::WritePictureFolder(context_.folder, style_.folder, chooser.folder());
  if (!kept) forms::TellHoldsForNow(context_, "The folder of pictures", kept.fault());
  if (on_take) on_take(path);
  Close();
}

ShownPicture LoadShown(forms::Context& context, const std::string& path, int most_width,
                       int most_height) {
  ShownPicture shown;
  if (path.empty()) return shown;
  shown.picture = context.pictures.Load(path, most_width, most_height);
  if (shown.picture.png) return shown;
  switch (shown.picture.fault) {
    case storage::Fault::kMissing:
      shown.note = "This picture isn't there any more: " + path;
      break;
    case storage::Fault::kNone:
      shown.note = "The picture " + path + " can't be shown: it is no picture.";
      break;
    default:
      shown.note = "The picture " + path +
                   " can't be shown: " + std::string(forms::ReasonOf(shown.picture.fault)) + ".";
  }
  return shown;
}

}  // namespace tarnwell::parts

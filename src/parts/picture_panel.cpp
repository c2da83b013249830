#include "parts/picture_panel.h"

#include "forms/disk_trouble.h"

namespace tarnwell::parts {
namespace {

constexpr int kPreviewWidth = 480;  // pixels
constexpr int kPreviewHeight = 360;
constexpr const char* kNotLoaded = "Program is unable to load this file as a Picture File!!!";

constexpr std::string_view kUsualKinds[] = {".bmp", ".ico", ".mmf", ".emf", ".jpg", ".gif"};
constexpr std::string_view kMoreKinds[] = {".jpeg", ".png", ".tif", ".tiff", ".webp"};
constexpr int kAllKinds = 1;  // in the list of kinds

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
              {.drives = "Drive30",
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
  kinds.SetItems({"*.bmp;*.ico;*.mmf;*.emf;*.jpg;*.gif", "All Pictures"});
  kinds.on_pick = [this] {
    ListKind(kinds.selected());
    ShowPreview();
  };
  ListKind(0);
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
  if (!path.empty() && !chooser.Lists(path)) ListKind(kAllKinds);
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

void PicturePanel::ListKind(int kind) {
  std::vector<std::string_view> extensions(std::begin(kUsualKinds), std::end(kUsualKinds));
  if (kind == kAllKinds) {
    extensions.insert(extensions.end(), std::begin(kMoreKinds), std::end(kMoreKinds));
  }
  kinds.Select(kind);
  chooser.SetExtensions(std::move(extensions));
}

// Of a path that fits, whatever lies there.
std::string PicturePanel::WhyNotKept(const std::string& path) const {
  if (path.empty()) {
    return "This picture's path has letters that the program's files don't know and can't be kept.";
  }
  if (path.size() > style_.longest_path) {
    return "This picture's path is too long to be kept: " + std::to_string(path.size()) +
           " characters, where there is room for " + std::to_string(style_.longest_path) + ".";
  }
  if (!style_.keeps_quotes && path.find('"') != std::string::npos) {
    return "This picture's path has a quote in it and can't be kept.";
  }
  return {};
}

std::string PicturePanel::WhyNot(const std::string& path) const {
  const std::string why = WhyNotKept(path);
  if (!why.empty()) return why;
  return context_.pictures.Look(path).is_picture() ? "" : kNotLoaded;
}

void PicturePanel::ShowPreview() {
  const std::string path = chooser.file_path();
  preview.SetContent(nullptr);
  std::string why;
  if (path.empty()) {
    const int left_out = context_.folders.FilesLeftOut(chooser.folder());
    if (left_out > 0) {
      why = "Not listed, because their names have letters that the program's files don't know: " +
            std::to_string(left_out) + (left_out == 1 ? " file." : " files.");
    }
  } else {
    const ShownPicture shown = LoadShown(context_, path, kPreviewWidth, kPreviewHeight);
    preview.SetContent(shown.picture.png);
    why = WhyNotKept(path);
    if (why.empty() && !shown.picture.png) why = kNotLoaded;
  }
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

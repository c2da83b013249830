#include "desktop/widgets/wallpaper.h"

#include <utility>

#include "desktop/widgets/layout.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/picture_files.h"

namespace tarnwell::desktop {
namespace {

QColor MeanColor(const QImage& picture) {
  return picture.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0);
}

class WallpaperPage : public QWidget {
 public:
  WallpaperPage(forms::Form& form, std::function<std::string()> file, PictureStore& pictures,
                QWidget* content)
      : file_(std::move(file)), pictures_(pictures) {
    auto* layout = new TightLayout(QBoxLayout::TopToBottom, this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    subscription_ = form.OnChanged([this] { ShowFile(); });
    ShowFile();
  }

 private:
  void ShowFile() {
    std::string file = file_();
    if (file == shown_) return;
    shown_ = std::move(file);
    const auto wallpaper = ReadWallpaper(pictures_, shown_);
    QPalette palette = wallpaper ? wallpaper->palette : QPalette();
    if (wallpaper) palette.setBrush(QPalette::Window, wallpaper->picture);
    setPalette(palette);
    setAutoFillBackground(wallpaper.has_value());
  }

  std::function<std::string()> file_;
  PictureStore& pictures_;
  std::string shown_;
  forms::Subscription subscription_;
};

}  // namespace

std::optional<Wallpaper> ReadWallpaper(const PictureStore& pictures, const std::string& file) {
  const QImage picture = file.empty() ? QImage() : Decoded(pictures.Read(file));
  if (picture.isNull()) return std::nullopt;
  return Wallpaper{QPixmap::fromImage(picture), PaletteOn(MeanColor(picture))};
}

QWidget* OnWallpaper(forms::Form& form, std::function<std::string()> file, PictureStore& pictures,
                     QWidget* content) {
  return new WallpaperPage(form, std::move(file), pictures, content);
}

}  // namespace tarnwell::desktop

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "forms/clickable.h"
#include "forms/page.h"

namespace tarnwell::forms {

// A link looks like one while the pointer is over it, or the focus on it.
enum class LabelRole { kText, kHeading, kTitle, kNote, kLink };

// A text that the form sets. It can be clicked where it has an `on_click`.
class Label : public Clickable {
 public:
  Label(Container& parent, std::string_view name, std::string_view caption = {},
        LabelRole role = LabelRole::kText)
      : Clickable(parent, name), caption_(caption), role_(role) {}

  const std::string& caption() const { return caption_; }
  void SetCaption(std::string_view caption) {
    caption_ = caption;
    Changed();
  }
  LabelRole role() const { return role_; }
  // Empty for the look's own.
  const std::optional<Font>& font() const { return font_; }
  void SetFont(const Font& font) {
    font_ = font;
    Changed();
  }
  // Of the letters, on a white ground; empty for the look's own.
  const std::optional<Color>& color() const { return color_; }
  void SetColor(std::optional<Color> color) {
    if (color_ == color) return;
    color_ = color;
    Changed();
  }

 private:
  std::string caption_;
  LabelRole role_;
  std::optional<Font> font_;
  std::optional<Color> color_;
};

// A picture: a file in the program's folder or among the supplied ones, or one in hand.
class Picture : public Clickable {
 public:
  Picture(Container& parent, std::string_view name, std::string_view file)
      : Clickable(parent, name), file_(file) {}

  // By its name; empty for none.
  const std::string& file() const { return file_; }
  void SetFile(std::string_view file) {
    file_ = file;
    content_.reset();
    Changed();
  }

  // A PNG or JPEG file, such as Pictures loads from anywhere on the machine; null for none. It
  // takes the place of the file in the folder.
  const std::shared_ptr<const std::string>& content() const { return content_; }
  void SetContent(std::shared_ptr<const std::string> content) {
    content_ = std::move(content);
    file_.clear();
    Changed();
  }

  // A person double-clicked it, or pressed Enter in it.
  void Open() {
    if (Reachable()) Run(on_open);
  }
  std::function<void()> on_open;

  // A person dropped a file of the machine on it. Its absolute path; empty where that has letters
  // that code page 1252 doesn't.
  void Drop(const std::string& path) {
    if (Reachable() && on_drop) on_drop(path);
  }
  std::function<void(const std::string& path)> on_drop;

  // A frame stands around it: the one in hand of several.
  bool marked() const { return marked_; }
  void SetMarked(bool marked) {
    if (marked_ == marked) return;
    marked_ = marked;
    Changed();
  }

 private:
  std::string file_;
  std::shared_ptr<const std::string> content_;
  bool marked_ = false;
};

}  // namespace tarnwell::forms

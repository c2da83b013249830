// What stands around a document's text: headers and footers, and the notes behind it.

#pragma once

#include <QPainter>
#include <QString>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "desktop/widgets/rich_text_part.h"
#include "print/printed_text.h"
#include "richtext/sections.h"

namespace tarnwell::desktop {

class RichTextFurniture {
 public:
  // `on_ready` runs when a picture has come.
  explicit RichTextFurniture(std::function<void()> on_ready) : on_ready_(std::move(on_ready)) {}

  // Of the document from now on, at most so many pixels wide. It has to stay.
  void Show(const richtext::RichDocument& document, const RichTextFormats& formats, double width);
  // Finds sections and notes anew, behind a change of the text.
  void Follow(const richtext::RichDocument& document);

  // Null where there is none. `number` is the page's, from 1, of `pages`; 0 for a text that isn't
  // parted into pages. `block` is the document's that begins the page.
  RichTextPart* Header(std::size_t block, int number, int pages) {
    return PartOf(true, block, number, pages);
  }
  RichTextPart* Footer(std::size_t block, int number, int pages) {
    return PartOf(false, block, number, pages);
  }
  RichTextPart* Notes();
  // See KeptObjects.
  QString NumberOf(int paragraph, int note) const;
  PartSource* source() { return source_ ? &*source_ : nullptr; }
  const richtext::Section& first_section() const { return sections_.front(); }
  std::size_t section_count() const { return sections_.size(); }

 private:
  using Rtf = std::shared_ptr<const std::string>;
  struct Key {
    Rtf rtf;
    int number = 0;
    int pages = 0;
    auto operator<=>(const Key&) const = default;
  };

  RichTextPart* PartOf(bool is_header, std::size_t block, int number, int pages);
  void FindNotes(const richtext::RichDocument& document);
  richtext::RichDocument TextOfNotes();

  std::function<void()> on_ready_;
  std::optional<PartSource> source_;
  double width_ = 0;
  std::vector<richtext::Section> sections_{1};
  bool has_facing_pages_ = false;
  std::map<Key, std::unique_ptr<RichTextPart>> parts_;
  std::vector<print::FoundNote> found_;
  std::map<int, std::vector<QString>> numbers_;  // by paragraph
  std::unique_ptr<RichTextPart> notes_;
};

}  // namespace tarnwell::desktop

// How the characters of a formatted document look on paper.

#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "print/page_engine.h"
#include "richtext/paragraph_frame.h"
#include "richtext/rich_document.h"

namespace tarnwell::print {

struct RichStyle {
  forms::Font font;
  int place = 0;    // in the pages' fonts
  int raise = 0;    // twips that the base of its letters stands above the line's; below 0 under it
  int ascent = 0;   // above the line's base
  int descent = 0;  // below it
  std::optional<forms::Color> highlight;
  richtext::Underline underline = richtext::Underline::kNone;
};

// The looks of one document, made once each.
class RichStyles {
 public:
  RichStyles(PageEngine& engine, const richtext::RichDocument& document);

  // A look's number.
  int Find(const richtext::CharacterFormat& format);
  const RichStyle& at(int style) const { return styles_[static_cast<std::size_t>(style)]; }
  richtext::ParagraphFrame FrameOf(const richtext::Paragraph& paragraph) const {
    return richtext::FrameOf(paragraph.format, colors_);
  }
  // Whether one frame stands around both.
  bool AreJoined(const richtext::Paragraph& first, const richtext::Paragraph& second) const;
  // A picture's file, which all pages share.
  std::shared_ptr<const std::string> Shared(const std::string& file);
  double Width(int style, std::string_view utf8) {
    return engine_.metrics().Utf8Width(at(style).font, utf8);
  }

 private:
  using Key =
      std::tuple<std::string, int, int, std::optional<forms::Color>, std::optional<forms::Color>>;

  RichStyle Make(const richtext::CharacterFormat& format);
  std::string FontName(const std::string& name) const;

  PageEngine& engine_;
  std::string default_font_;
  std::vector<std::optional<richtext::Color>> colors_;
  std::map<Key, int> known_;
  std::map<std::string_view, std::shared_ptr<const std::string>> pictures_;
  std::vector<RichStyle> styles_;
  richtext::CharacterFormat last_format_;
  int last_style_ = -1;
};

forms::Color ToPageColor(richtext::Color color);

}  // namespace tarnwell::print

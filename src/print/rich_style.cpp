#include "print/rich_style.h"

#include <algorithm>
#include <cmath>

#include "text/code_page_1252.h"

namespace tarnwell::print {
namespace {

// Of raised and lowered characters, against the size and the ascent of the others.
constexpr double kScriptSize = 0.6;
constexpr double kSuperscriptRise = 0.36;
constexpr double kSubscriptFall = 0.14;

std::optional<forms::Color> ToPageColor(const std::optional<richtext::Color>& color) {
  if (!color) return std::nullopt;
  return print::ToPageColor(*color);
}

int FlagsOf(const richtext::CharacterFormat& format) {
  return format.bold | format.italic << 1 | format.strike << 2 |
         static_cast<int>(format.script) << 3 | static_cast<int>(format.underline) << 5;
}

}  // namespace

forms::Color ToPageColor(richtext::Color color) {
  return color.red | color.green << 8 | color.blue << 16;
}

RichStyles::RichStyles(PageEngine& engine, const richtext::RichDocument& document)
    : engine_(engine), default_font_(engine.font().name), colors_(document.colors) {
  const auto font =
      std::ranges::find(document.fonts, document.default_font, &richtext::Font::number);
  if (font != document.fonts.end()) default_font_ = FontName(font->name);
}

std::string RichStyles::FontName(const std::string& name) const {
  return name.empty() ? default_font_ : text::FromUtf8(text::Utf8(name));
}

std::shared_ptr<const std::string> RichStyles::Shared(const std::string& file) {
  const auto known = pictures_.find(file);
  if (known != pictures_.end()) return known->second;
  auto shared = std::make_shared<const std::string>(file);
  return pictures_.emplace(*shared, shared).first->second;
}

bool RichStyles::AreJoined(const richtext::Paragraph& first,
                           const richtext::Paragraph& second) const {
  const richtext::ParagraphFormat& a = first.format;
  const richtext::ParagraphFormat& b = second.format;
  return a.left_indent == b.left_indent && a.right_indent == b.right_indent &&
         a.first_line_indent == b.first_line_indent && !FrameOf(first).is_empty() &&
         FrameOf(first) == FrameOf(second);
}

int RichStyles::Find(const richtext::CharacterFormat& format) {
  if (last_style_ >= 0 && format == last_format_) return last_style_;
  const Key key{format.font, format.half_points, FlagsOf(format), ToPageColor(format.color),
                ToPageColor(format.highlight)};
  const auto [known, is_new] = known_.try_emplace(key, static_cast<int>(styles_.size()));
  if (is_new) styles_.push_back(Make(format));
  last_format_ = format;
  last_style_ = known->second;
  return last_style_;
}

RichStyle RichStyles::Make(const richtext::CharacterFormat& format) {
  RichStyle style;
  style.font = {.name = FontName(format.font),
                .size = std::max(format.half_points, 1) / 2.0,
                .bold = format.bold,
                .italic = format.italic,
                .underline = format.underline == richtext::Underline::kSingle,
                .strike = format.strike,
                .color = ToPageColor(format.color).value_or(forms::kBlack)};
  style.underline = format.underline;
  style.highlight = ToPageColor(format.highlight);
  forms::TextMetrics& metrics = engine_.metrics();
  if (format.script != richtext::Script::kBaseline) {
    const bool is_raised = format.script == richtext::Script::kSuperscript;
    style.raise = static_cast<int>(
        std::lround(metrics.Ascent(style.font) * (is_raised ? kSuperscriptRise : -kSubscriptFall)));
    style.font.size *= kScriptSize;
  }
  const int ascent = metrics.Ascent(style.font);
  style.ascent = ascent + style.raise;
  style.descent = metrics.LineHeight(style.font) - ascent - style.raise;
  style.place = engine_.PlaceOf(style.font);
  return style;
}

}  // namespace tarnwell::print

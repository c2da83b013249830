// Any bytes as a document on paper: the pages come to an end, each has its paper, each text a font.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "print/rich_text.h"
#include "richtext/rich_text_reader.h"

namespace {

using namespace tarnwell;

class Metrics : public forms::TextMetrics {
 public:
  int Width(const forms::Font& font, std::string_view text) override {
    return static_cast<int>(Utf8Width(font, text));
  }
  double Utf8Width(const forms::Font& font, std::string_view text) override {
    return font.size * 10 * static_cast<double>(text.size());
  }
  int LineHeight(const forms::Font& font) override { return static_cast<int>(font.size * 24); }
  int Ascent(const forms::Font& font) override { return static_cast<int>(font.size * 18); }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const richtext::RichDocument document = richtext::ReadRichText(bytes);
  Metrics metrics;
  print::PageEngine engine(metrics);
  engine.Start({}, {});
  print::AddRichPages(engine, document);
  const auto& pages = engine.document().pages;
  if (engine.document().setups.size() != pages.size()) std::abort();
  for (const forms::Page& page : pages) {
    for (const forms::Mark& mark : page) {
      const auto* const text = std::get_if<forms::PlacedText>(&mark);
      if (text == nullptr) continue;
      if (static_cast<std::size_t>(text->font) >= engine.document().fonts.size()) std::abort();
    }
  }
  return 0;
}

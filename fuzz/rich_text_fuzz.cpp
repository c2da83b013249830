// Any bytes as a document: what was read, written and read again is the same document, and the
// bytes of an unchanged one are saved as they were. Erasing all of it can be taken back.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "richtext/editor.h"
#include "richtext/html.h"
#include "richtext/paragraphs.h"
#include "richtext/plain_text.h"
#include "richtext/rich_text_reader.h"
#include "richtext/rich_text_writer.h"

namespace {

using namespace tarnwell::richtext;

void Require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const RichDocument document = ReadRichText(bytes);
  if (document.is_part) return 0;  // never saved
  const std::string rtf = WriteRichText(document);
  const RichDocument again = ReadRichText(rtf);
  Require(again == document);
  Require(WriteRichText(again) == rtf);
  Require(SaveRichText(document, StoredFormOf(std::string(bytes), ReadRichText(bytes))) == bytes);
  // A row's definition makes cells that nothing stands in.
  const auto paragraphs = static_cast<std::size_t>(CountParagraphs(again));
  Require(PlainText(again).size() <= 6 * size + paragraphs + 64);
  Require(ToHtml(document) == ToHtml(again));
  RichDocument edited = document;
  Editor editor(edited);
  editor.Erase({{}, EndOf(edited)});
  for (auto it = editor.changes().rbegin(); it != editor.changes().rend(); ++it) {
    TakeBack(*it, edited);
  }
  Require(edited == document);
  return 0;
}

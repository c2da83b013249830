#include "richtext/rich_text_reader.h"

#include <algorithm>

#include "richtext/plain_text.h"
#include "richtext/rtf_reader.h"
#include "text/code_page_1252.h"
#include "text/utf8.h"

namespace tarnwell::richtext {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// Some editors put a mark or empty lines before the first brace.
std::string_view WithoutLead(std::string_view bytes) {
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  bytes.remove_prefix(std::min(bytes.find_first_not_of(" \t\r\n"), bytes.size()));
  return bytes;
}

}  // namespace

bool IsRtf(std::string_view bytes) { return WithoutLead(bytes).starts_with("{\\rtf"); }

RichDocument ReadRichText(std::string_view bytes) {
  if (IsRtf(bytes)) return RtfReader(WithoutLead(bytes)).Read();
  if (!bytes.starts_with(kByteOrderMark)) return FromPlainText(text::ToUtf8(bytes).bytes());
  std::string utf8;
  for (std::string_view rest = bytes.substr(kByteOrderMark.size()); !rest.empty();) {
    text::AppendUtf8(text::TakeUtf8(rest), utf8);
  }
  return FromPlainText(utf8);
}

}  // namespace tarnwell::richtext

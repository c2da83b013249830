#include "richtext/code_pages.h"

#include <algorithm>

#include "richtext/code_page_tables.h"
#include "richtext/utf8.h"
#include "text/code_page_1252.h"

namespace tarnwell::richtext {
namespace {

constexpr unsigned char kFirstUpper = 0x80;

bool IsPlain(char c) { return (c >= ' ' && c <= '~') || c == '\t'; }

const CodePageTable* TableOf(int code_page) {
  const auto* const table = std::find_if(
      std::begin(kCodePageTables), std::end(kCodePageTables),
      [code_page](const CodePageTable& candidate) { return candidate.number == code_page; });
  return table == std::end(kCodePageTables) ? nullptr : table;
}

void DecodeUpper(char byte, int code_page, std::string& utf8) {
  if (code_page == 1252) {
    utf8 += text::ToUtf8(std::string_view(&byte, 1));
    return;
  }
  const CodePageTable* const table = TableOf(code_page);
  const char16_t character =
      table == nullptr ? u'\0' : table->upper[static_cast<unsigned char>(byte) - kFirstUpper];
  AppendUtf8(character == 0 ? U'?' : character, utf8);
}

}  // namespace

void DecodeBytes(std::string_view bytes, int code_page, std::string& utf8) {
  if (code_page != kSymbolCodePage && std::all_of(bytes.begin(), bytes.end(), IsPlain)) {
    utf8 += bytes;
    return;
  }
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    if (byte == '\t') {
      utf8 += byte;
    } else if (code < ' ') {
      continue;
    } else if (code_page == kSymbolCodePage && byte != ' ') {
      AppendUtf8(0xF000u + code, utf8);
    } else if (code < kFirstUpper) {
      utf8 += byte;
    } else {
      DecodeUpper(byte, code_page, utf8);
    }
  }
}

int CodePageOfCharset(int charset, int document) {
  switch (charset) {
    case 0:
      return 1252;
    case kSymbolCharset:
      return kSymbolCodePage;
    case 77:
      return 10000;
    case 128:
      return 932;
    case 129:
      return 949;
    case 134:
      return 936;
    case 136:
      return 950;
    case 161:
      return 1253;
    case 162:
      return 1254;
    case 163:
      return 1258;
    case 177:
      return 1255;
    case 178:
      return 1256;
    case 186:
      return 1257;
    case 204:
      return 1251;
    case 222:
      return 874;
    case 238:
      return 1250;
    case 254:
      return 437;
    case 255:
      return 850;
    default:
      return document;
  }
}

}  // namespace tarnwell::richtext

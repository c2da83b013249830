#include "richtext/code_pages.h"

#include <algorithm>
#include <utility>

#include "richtext/code_page_tables.h"
#include "text/code_page_1252.h"
#include "text/system_code_pages.h"
#include "text/utf8.h"

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

// Whether the byte begins a character of two bytes.
bool IsFirstHalf(char byte, int code_page) {
  const auto code = static_cast<unsigned char>(byte);
  switch (code_page) {
    case 932:
      return (code >= 0x81 && code <= 0x9F) || (code >= 0xE0 && code <= 0xFC);
    case 936:
    case 949:
    case 950:
      return code >= 0x81 && code <= 0xFE;
    case 1361:
      return code >= 0x84 && code <= 0xF9;
    default:
      return false;
  }
}

bool IsSecondHalf(char byte, int code_page) {
  const auto code = static_cast<unsigned char>(byte);
  return code >= (code_page == 1361 ? 0x31 : 0x40) && code != 0x7F && code != 0xFF;
}

}  // namespace

void ByteDecoder::TakeUpper(char byte, int code_page, std::string& utf8) {
  if (IsFirstHalf(byte, code_page)) {
    first_half_ = byte;
    return;
  }
  const std::string_view bytes(&byte, 1);
  if (code_page == 1252) {
    utf8 += text::ToUtf8(bytes).bytes();
    return;
  }
  if (const CodePageTable* const table = TableOf(code_page)) {
    const char16_t character = table->upper[static_cast<unsigned char>(byte) - kFirstUpper];
    return text::AppendUtf8(character == 0 ? U'?' : character, utf8);
  }
  if (!text::AppendCharacter(code_page, bytes, utf8)) utf8 += '?';
}

void ByteDecoder::Take(std::string_view bytes, int code_page, std::string& utf8) {
  const bool waits = first_half_ != 0;
  if (!waits && code_page != kSymbolCodePage && std::ranges::all_of(bytes, IsPlain)) {
    utf8 += bytes;
    return;
  }
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    if (first_half_ != 0 && IsSecondHalf(byte, code_page)) {
      const char pair[] = {std::exchange(first_half_, '\0'), byte};
      if (!text::AppendCharacter(code_page, {pair, 2}, utf8)) utf8 += '?';
      continue;
    }
    Flush(utf8);
    if (byte == '\t') {
      utf8 += byte;
    } else if (code < ' ') {
      continue;
    } else if (code_page == kSymbolCodePage && byte != ' ') {
      text::AppendUtf8(0xF000u + code, utf8);
    } else if (code < kFirstUpper) {
      utf8 += byte;
    } else {
      TakeUpper(byte, code_page, utf8);
    }
  }
}

void ByteDecoder::Flush(std::string& utf8) {
  if (std::exchange(first_half_, '\0') != 0) utf8 += '?';
}

bool HasDoubleBytes(int code_page) { return IsFirstHalf('\x90', code_page); }

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
    case 130:
      return 1361;
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

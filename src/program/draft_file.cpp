#include "program/draft_file.h"

#include <charconv>
#include <cstdint>

namespace tarnwell::program {
namespace {

constexpr std::string_view kMagic = "Tarnwell unsaved 1";

// A netstring (D. J. Bernstein): "5:hello,".
void Append(std::string& bytes, std::string_view text) {
  bytes.append(std::to_string(text.size())).append(":").append(text).append(",");
}

// Takes the next text off the bytes.
std::optional<std::string> Take(std::string_view& bytes) {
  std::size_t length = 0;
  const auto [colon, error] = std::from_chars(bytes.data(), bytes.data() + bytes.size(), length);
  const auto digits = static_cast<std::size_t>(colon - bytes.data());
  if (error != std::errc() || digits == bytes.size() || *colon != ':') return std::nullopt;
  bytes.remove_prefix(digits + 1);
  if (length >= bytes.size() || bytes[length] != ',') return std::nullopt;
  std::string text(bytes.substr(0, length));
  bytes.remove_prefix(length + 1);
  return text;
}

}  // namespace

std::string ToBytes(const KeptDraft& kept) {
  std::string bytes;
  Append(bytes, kMagic);
  Append(bytes, kept.kept);
  Append(bytes, kept.draft.title);
  Append(bytes, std::to_string(kept.draft.files.size()));
  for (std::size_t i = 0; i < kept.draft.files.size(); ++i) {
    Append(bytes, kept.draft.files[i]);
    Append(bytes, kept.marks.at(i));
  }
  for (const std::string& text : kept.draft.texts) Append(bytes, text);
  return bytes;
}

std::optional<KeptDraft> FromBytes(std::string_view bytes) {
  std::vector<std::string> texts;
  while (!bytes.empty()) {
    auto text = Take(bytes);
    if (!text) return std::nullopt;
    texts.push_back(*std::move(text));
  }
  forms::DraftTexts all(texts);
  if (all.Next() != kMagic) return std::nullopt;
  KeptDraft kept;
  kept.kept = all.Next();
  kept.draft.title = all.Next();
  const int files = all.NextNumber();
  for (int i = 0; i < files && all.left() > 0; ++i) {
    kept.draft.files.push_back(all.Next());
    kept.marks.push_back(all.Next());
  }
  while (all.left() > 0) kept.draft.Add(all.Next());
  return kept;
}

std::string MarkOf(storage::ProgramFolder& folder, std::string_view file) {
  const storage::ReadResult read = folder.Read(file);
  if (read.is_missing()) return "-";
  if (read.is_unreadable()) return "?";
  std::uint64_t hash = 0xcbf29ce484222325;
  for (const char byte : read.content) {
    hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
  }
  std::string digits(16, '0');
  for (char& digit : digits) {
    digit = "0123456789abcdef"[hash >> 60];
    hash <<= 4;
  }
  return digits;
}

}  // namespace tarnwell::program

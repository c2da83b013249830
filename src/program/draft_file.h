// A draft as it is kept on the disk. docs/formats/unsaved.md has the layout.

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/draft.h"
#include "storage/program_folder.h"

namespace tarnwell::program {

struct KeptDraft {
  std::string kept;  // when, in words: "January 5, 2027 10:32 AM"
  forms::Draft draft;
  std::vector<std::string> marks;  // of draft.files, as they were then: MarkOf
};

std::string ToBytes(const KeptDraft& kept);
// Empty for bytes that aren't such a file, or not the whole of one.
std::optional<KeptDraft> FromBytes(std::string_view bytes);

// What tells a file's content from another content of it: 16 digits of base 16, by FNV-1a over its
// bytes (Fowler, Noll, Vo; 64 bits); "-" without a file, "?" for one that can't be read.
std::string MarkOf(storage::ProgramFolder& folder, std::string_view file);

}  // namespace tarnwell::program

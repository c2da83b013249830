#include "text/nearest_form.h"

#include <cstddef>

namespace tarnwell::text {
namespace {

// Consecutive characters from `first` on and, at the same place, the letter nearest to each.
struct LetterRun {
  char32_t first;
  std::string_view letters;
};

constexpr LetterRun kLetterRuns[] = {
    {0x0100, "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiJjJjKkkLlLlLlLlLl"},
    {0x0143, "NnNnNnnNnOoOoOoOoRrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs"},
    {0x01CD, "AaIiOoUuUuUuUuUu"},
    {0x0200, "AaAaEeEeIiIiOoOoRrRrUuUuSsTt"},
    {0x1E00, "AaBbBbBbCcDdDdDdDdDdEeEeEeEeEeFfGgHhHhHhHhHhIiIiKkKkKkLlLlLlLl"},
    {0x1E3E, "MmMmMmNnNnNnNnOoOoOoOoPpPpRrRrRrRrSsSsSsSsSsTtTtTtTtUuUuUuUuUu"},
    {0x1E7C, "VvVvWwWwWwWwWwXxXxYyZzZzZzhtwyasssSd"},
    {0x1EA0, "AaAaAaAaAaAaAaAaAaAaAaAaEeEeEeEeEeEeEeEeIiIi"},
    {0x1ECC, "OoOoOoOoOoOoOoOoOoOoOoOoUuUuUuUuUuUuUuYyYyYyYy"},
};

// Characters of one range that share one form.
struct SharedForm {
  char32_t first;
  char32_t last;
  std::string_view form;
};

constexpr SharedForm kSharedForms[] = {
    {0x02BC, 0x02BC, "'"},    {0x0300, 0x036F, ""},     {0x2000, 0x200A, " "},
    {0x200B, 0x200F, ""},     {0x2010, 0x2012, "-"},    {0x2015, 0x2015, "\x97"},
    {0x201B, 0x201B, "'"},    {0x2023, 0x2023, "\x95"}, {0x2024, 0x2024, "."},
    {0x2028, 0x2029, " "},    {0x202F, 0x202F, " "},    {0x2032, 0x2032, "'"},
    {0x2033, 0x2033, "\""},   {0x2043, 0x2043, "-"},    {0x2044, 0x2044, "/"},
    {0x205F, 0x205F, " "},    {0x2060, 0x2060, ""},     {0x2212, 0x2212, "-"},
    {0x2215, 0x2215, "/"},    {0x2219, 0x2219, "\xB7"}, {0x22C5, 0x22C5, "\xB7"},
    {0x25AA, 0x25AA, "\x95"}, {0x25CF, 0x25CF, "\x95"}, {0x3000, 0x3000, " "},
    {0xFB00, 0xFB00, "ff"},   {0xFB01, 0xFB01, "fi"},   {0xFB02, 0xFB02, "fl"},
    {0xFB03, 0xFB03, "ffi"},  {0xFB04, 0xFB04, "ffl"},  {0xFEFF, 0xFEFF, ""},
};

constexpr std::string_view kPrintableAscii =
    " !\"#$%&'()*+,-./0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`"
    "abcdefghijklmnopqrstuvwxyz{|}~";

// The double-width forms of the printable ASCII characters but the blank.
constexpr LetterRun kDoubleWidth{0xFF01, kPrintableAscii.substr(1)};

std::string_view FormInRun(const LetterRun& run, char32_t character) {
  if (character < run.first) return {};
  const std::size_t place = character - run.first;
  return place < run.letters.size() ? run.letters.substr(place, 1) : std::string_view{};
}

}  // namespace

std::string_view NearestForm(char32_t character) {
  for (const LetterRun& run : kLetterRuns) {
    if (const std::string_view form = FormInRun(run, character); !form.empty()) return form;
  }
  for (const SharedForm& shared : kSharedForms) {
    if (character >= shared.first && character <= shared.last) return shared.form;
  }
  const std::string_view form = FormInRun(kDoubleWidth, character);
  return form.empty() ? "?" : form;
}

}  // namespace tarnwell::text

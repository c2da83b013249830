#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/page.h"

namespace tarnwell::forms {

// How much room text takes, in twips.
class TextMetrics {
 public:
  virtual ~TextMetrics() = default;
  virtual int Width(const Font& font, std::string_view text) = 0;
  // Of a text in UTF-8 with any character. Parts of a line add up, so nothing is rounded.
  virtual double Utf8Width(const Font& font, std::string_view utf8) = 0;
  // From the top of one line to the top of the next.
  virtual int LineHeight(const Font& font) = 0;
  // From the top of a line to the base of its letters.
  virtual int Ascent(const Font& font) = 0;
};

// What became of a print.
enum class PrintResult {
  kDone,
  kCancelled,
  kNotStarted,  // neither the printer nor the file in its place can be opened: nothing is out
  kBrokenOff,   // some pages may be out
};

// The printer of the system.
class Pages {
 public:
  virtual ~Pages() = default;
  virtual TextMetrics& metrics() = 0;
  // Of the fonts that there are, sorted.
  virtual std::vector<std::string> FontNames() = 0;
  // All pages, or those that a person asks for. Nothing is done with no pages.
  virtual PrintResult Print(const Document& document) = 0;
  // One page, counted from 0, onto the clipboard.
  virtual void CopyPage(const Document& document, int page) = 0;
  // What the printer leaves blank at the edges of its paper; 0.25 inch where no printer says.
  virtual Margins Reach() = 0;
  // The page-setup dialogue; empty when it was cancelled.
  virtual std::optional<PageSetup> ChooseSetup(const PageSetup& start) = 0;
};

}  // namespace tarnwell::forms

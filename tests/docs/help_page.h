// The little of HTML that our help pages use, read to be checked.

#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace tarnwell::docs {

struct Link {
  std::string file;    // empty for the page itself
  std::string anchor;  // empty for the whole page
  std::string text;
};

struct HelpPage {
  std::string title;
  std::set<std::string> anchors;
  std::vector<Link> links;
  // Tags that the viewer doesn't know, or that aren't closed where they should be.
  std::vector<std::string> tag_faults;
};

HelpPage ParseHelpPage(const std::string& html);

std::string ReadFile(const std::filesystem::path& path);

// The numbers that the code of one file asks help pages by: those of four digits in a statement
// that speaks of help, or anywhere in a file whose name does.
std::set<int> HelpContexts(const std::string& file_name, const std::string& code);

}  // namespace tarnwell::docs

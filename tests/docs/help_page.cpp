#include "docs/help_page.h"

#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>

namespace tarnwell::docs {
namespace {

using RegexIterator = std::sregex_iterator;

// What the viewer shows and our pages need; a tag that is missing here may well be shown too.
const std::set<std::string> kTags = {"html", "head", "title", "body", "h1", "h2",
                                     "p",    "ul",   "ol",    "li",   "a",  "b",
                                     "i",    "tt",   "table", "tr",   "th", "td"};
const std::set<std::string> kTagsWithoutEnd = {"!DOCTYPE", "meta", "hr", "br"};

std::vector<std::string> TagFaults(const std::string& html) {
  static const std::regex kTag("<(/?)([!A-Za-z0-9]+)[^>]*>");
  std::vector<std::string> faults;
  std::vector<std::string> open;
  for (RegexIterator tag(html.begin(), html.end(), kTag), end; tag != end; ++tag) {
    const std::string name = (*tag)[2];
    if (kTagsWithoutEnd.contains(name)) continue;
    if (!kTags.contains(name)) faults.push_back("unknown <" + name + ">");
    if ((*tag)[1].length() == 0) {
      open.push_back(name);
    } else if (open.empty() || open.back() != name) {
      faults.push_back("stray </" + name + ">");
    } else {
      open.pop_back();
    }
  }
  for (const std::string& name : open) faults.push_back("unclosed <" + name + ">");
  return faults;
}

}  // namespace

HelpPage ParseHelpPage(const std::string& html) {
  static const std::regex kTitle("<title>([^<]*)</title>");
  static const std::regex kAnchor("<a name=\"([^\"]+)\">");
  static const std::regex kLink("<a href=\"([^\"#]*)#?([^\"]*)\">([^<]*)</a>");
  HelpPage page;
  std::smatch title;
  if (std::regex_search(html, title, kTitle)) page.title = title[1];
  for (RegexIterator a(html.begin(), html.end(), kAnchor), end; a != end; ++a) {
    page.anchors.insert((*a)[1]);
  }
  for (RegexIterator a(html.begin(), html.end(), kLink), end; a != end; ++a) {
    page.links.push_back({(*a)[1], (*a)[2], (*a)[3]});
  }
  page.tag_faults = TagFaults(html);
  return page;
}

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(stream), {});
}

std::set<int> HelpContexts(const std::string& file_name, const std::string& code) {
  const bool all = file_name.find("help") != std::string::npos;
  static const std::regex kComment("//[^\n]*");
  static const std::regex kNumber("\\b[1-9][0-9]{3}\\b");
  std::istringstream statements(std::regex_replace(code, kComment, ""));
  std::set<int> contexts;
  for (std::string statement; std::getline(statements, statement, ';');) {
    if (!all && statement.find("elp") == std::string::npos) continue;
    for (RegexIterator n(statement.begin(), statement.end(), kNumber), end; n != end; ++n) {
      contexts.insert(std::stoi(n->str()));
    }
  }
  return contexts;
}

}  // namespace tarnwell::docs

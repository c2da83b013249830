// The help pages as a book: its table of contents, its index, and what a search in it finds.

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnwell::parts {

// All texts are UTF-8, as the pages are.

// A place to open.
struct HelpPlace {
  std::string file;    // of the page: "3014.html"
  std::string title;   // of the page
  std::string phrase;  // to be marked on the page; empty for its beginning
};

struct HelpChapter {
  std::string title;
  std::vector<HelpPlace> pages;
};

struct HelpEntry {
  std::string term;
  HelpPlace place;
};

struct HelpFound {
  HelpPlace place;
  std::string around;  // what stands around the phrase that is marked
};

class HelpBook {
 public:
  // The page "index.html" is the table of contents: its headings are the chapters, its links their
  // pages. Every other page has a title, and headings and bold words that the index lists.
  void AddPage(std::string_view file, std::string_view html);

  std::vector<HelpChapter> Contents() const;
  // By the alphabet, without regard to capitals; terms that several pages have, once for each.
  const std::vector<HelpEntry>& Index();
  // The pages that have all words, or words that begin so; those with the words in their title or
  // headings first, then those that have them behind each other, then those with more of them.
  // Empty for no word.
  std::vector<HelpFound> Search(std::string_view words) const;

 private:
  struct Page {
    std::string file;
    std::string title;
    std::vector<std::string> terms;
    std::string headings;
    std::string text;
  };

  std::vector<Page> pages_;
  std::string contents_;  // the page itself
  std::vector<HelpEntry> index_;
  bool is_sorted_ = false;
};

}  // namespace tarnwell::parts

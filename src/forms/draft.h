// What a person has typed and not saved, kept for the case that the program doesn't end as it
// should.

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "text/date.h"

namespace tarnwell::forms {

struct Draft {
  std::string title;  // what a person calls it: "Daily Planner - January 05, 2027 - Tue"
  std::vector<std::string> files;  // of the program's folder, that saving it would write
  std::vector<std::string> texts;  // the form's own: where it belongs, then what was typed

  void Add(std::string text) { texts.push_back(std::move(text)); }
  void Add(int number) { texts.push_back(std::to_string(number)); }
  void Add(text::Date date);  // one that is ok()
};

// Takes a draft's texts back in their order. Behind the last one each is empty, each number 0 and
// no date there.
class DraftTexts {
 public:
  explicit DraftTexts(const std::vector<std::string>& texts) : texts_(texts) {}

  std::string Next() { return next_ < texts_.size() ? texts_[next_++] : std::string(); }
  int NextNumber();
  std::optional<text::Date> NextDate();
  std::size_t left() const { return texts_.size() - next_; }

 private:
  const std::vector<std::string>& texts_;
  std::size_t next_ = 0;
};

}  // namespace tarnwell::forms

// Boxes that a test expects, with what a person will answer.

#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "forms/dialogs.h"
#include "forms/text_field.h"

namespace tarnwell::testing {

// Is told the answers beforehand. A box that nobody expected fails the test, and so does an answer
// that no box asked for. An expectation names the whole box, with its icon, its buttons and the one
// that Enter presses: by the short names for the usual kinds, by a MessageBox for the others.
class ScriptedDialogs : public forms::Dialogs {
 public:
  ~ScriptedDialogs() override {
    for (const Expected& next : expected_) ADD_FAILURE() << "never shown: " << next.box.title;
    for (const ExpectedInput& box : inputs_) ADD_FAILURE() << "never asked: " << box.title;
  }

  // `meanwhile` happens while the box stands.
  void Expect(forms::MessageBox box, forms::Answer answer, std::function<void()> meanwhile = {}) {
    expected_.push_back({std::move(box), answer, std::move(meanwhile)});
  }
  // With OK alone.
  void ExpectNote(std::string title, std::string text) {
    Expect({std::move(title), std::move(text), forms::Icon::kInformation}, forms::Answer::kOk);
  }
  void ExpectWarning(std::string title, std::string text) {
    Expect({std::move(title), std::move(text), forms::Icon::kExclamation}, forms::Answer::kOk);
  }
  void ExpectError(std::string title, std::string text) {
    Expect({std::move(title), std::move(text), forms::Icon::kCritical}, forms::Answer::kOk);
  }
  // Questions; Enter presses Yes.
  void ExpectYesNo(std::string title, std::string text, forms::Answer answer) {
    Expect({std::move(title), std::move(text), forms::Icon::kQuestion, forms::Buttons::kYesNo},
           answer);
  }
  void ExpectYesNoCancel(std::string title, std::string text, forms::Answer answer) {
    Expect(
        {std::move(title), std::move(text), forms::Icon::kQuestion, forms::Buttons::kYesNoCancel},
        answer);
  }
  // What stands behind every save that failed on the way out; Enter presses No.
  void ExpectLeaveUnsaved(forms::Answer answer) {
    Expect({"Not Saved", "Leave without saving?", forms::Icon::kExclamation, forms::Buttons::kYesNo,
            2},
           answer);
  }

  // What stands before the choice of a colour.
  void ExpectColorQuestion(forms::Answer answer, std::string title = "Panel Color") {
    Expect({std::move(title),
            "Select New Color or Use System Default Color?\n"
            "Yes = Color Selection Panel will appear.\n"
            "No = Current System Default Color will be selected.",
            forms::Icon::kInformation, forms::Buttons::kYesNoCancel},
           answer);
  }

  forms::Answer Message(const forms::MessageBox& box) override {
    if (expected_.empty()) {
      ADD_FAILURE() << "unexpected box: " << box.title << " / " << box.text;
      return forms::Answer::kCancel;
    }
    const Expected next = expected_.front();
    expected_.pop_front();
    EXPECT_EQ(box.title, next.box.title);
    EXPECT_EQ(box.text, next.box.text);
    EXPECT_EQ(box.icon, next.box.icon) << "icon of " << box.title;
    EXPECT_EQ(box.buttons, next.box.buttons) << "buttons of " << box.title;
    EXPECT_EQ(box.default_button, next.box.default_button) << "default button of " << box.title;
    if (next.meanwhile) next.meanwhile();
    return next.answer;
  }

  void ExpectColor(std::optional<forms::Color> chosen) { colors_.push_back(chosen); }
  std::optional<forms::Color> ChooseColor(forms::Color start) override {
    last_start_color = start;
    if (colors_.empty()) {
      ADD_FAILURE() << "unexpected colour dialogue";
      return std::nullopt;
    }
    const auto chosen = colors_.front();
    colors_.pop_front();
    return chosen;
  }

  void ExpectFont(std::optional<forms::FontParts> chosen) { fonts_.push_back(chosen); }
  std::optional<forms::FontParts> ChooseFont(const forms::FontParts& start) override {
    last_start_font = start;
    if (fonts_.empty()) {
      ADD_FAILURE() << "unexpected font dialogue";
      return std::nullopt;
    }
    const auto chosen = fonts_.front();
    fonts_.pop_front();
    return chosen;
  }

  void ExpectPicture(std::optional<forms::ChosenPicture> chosen) {
    pictures_.push_back(std::move(chosen));
  }
  std::optional<forms::ChosenPicture> ChoosePicture() override {
    if (pictures_.empty()) {
      ADD_FAILURE() << "unexpected file dialogue";
      return std::nullopt;
    }
    auto chosen = std::move(pictures_.front());
    pictures_.pop_front();
    return chosen;
  }

  // `answer` is what a person types, as far as the box takes it; none cancels the box.
  void ExpectInput(std::string title, std::string prompt, std::optional<std::string> answer) {
    inputs_.push_back({std::move(title), std::move(prompt), std::move(answer)});
  }
  std::optional<std::string> Input(const forms::InputBox& box) override {
    last_input = box;
    if (inputs_.empty()) {
      ADD_FAILURE() << "unexpected input box: " << box.title << " / " << box.prompt;
      return std::nullopt;
    }
    const ExpectedInput next = inputs_.front();
    inputs_.pop_front();
    EXPECT_EQ(box.title, next.title);
    EXPECT_EQ(box.prompt, next.prompt);
    if (!next.answer) return std::nullopt;
    return forms::TypedText(*next.answer, box.max_length);
  }

  forms::InputBox last_input;
  forms::Color last_start_color = 0;
  forms::FontParts last_start_font;

 private:
  struct Expected {
    forms::MessageBox box;
    forms::Answer answer;
    std::function<void()> meanwhile;
  };
  struct ExpectedInput {
    std::string title;
    std::string prompt;
    std::optional<std::string> answer;
  };

  std::deque<Expected> expected_;
  std::deque<ExpectedInput> inputs_;
  std::deque<std::optional<forms::Color>> colors_;
  std::deque<std::optional<forms::FontParts>> fonts_;
  std::deque<std::optional<forms::ChosenPicture>> pictures_;
};

}  // namespace tarnwell::testing

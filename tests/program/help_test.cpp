// What the help pages say of the screens, held against the screens themselves.

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <string>

#include "forms/choice.h"
#include "forms/form_names.h"
#include "forms/grid.h"
#include "forms/label.h"
#include "forms/mnemonics.h"
#include "forms/panel.h"
#include "support/program_rig.h"

namespace tarnwell {
namespace {

namespace fs = std::filesystem;
using ::testing::IsEmpty;

const fs::path kPages = TARNWELL_SOURCE_DIR "/data/help";

// As a page has it: without marks of mnemonics, with single blanks, without a colon at its end.
std::string Plain(std::string_view caption) {
  std::string text;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && ++i == caption.size()) break;
    const char sign = caption[i] == '\n' ? ' ' : caption[i];
    if (sign != ' ' || !(text.empty() || text.back() == ' ')) text += sign;
  }
  while (text.ends_with(' ') || text.ends_with(':') || text.ends_with('.')) text.pop_back();
  return text;
}

void AddMenu(const forms::MenuItem& menu, std::set<std::string>& captions) {
  captions.insert(Plain(menu.caption()));
  for (const auto& item : menu.items()) AddMenu(*item, captions);
}

std::set<std::string> CaptionsOf(forms::Form& form) {
  std::set<std::string> captions;
  AddMenu(form.menus(), captions);
  for (forms::Control* control : form.AllControls()) {
    captions.insert(Plain(forms::CaptionOf(*control)));
    captions.insert(Plain(control->spoken_name()));
    captions.insert(Plain(control->tool_tip()));
    if (auto* label = dynamic_cast<forms::Label*>(control))
      captions.insert(Plain(label->caption()));
    if (auto* panel = dynamic_cast<forms::Panel*>(control))
      captions.insert(Plain(panel->caption()));
    auto* grid = dynamic_cast<forms::Grid*>(control);
    for (int column = 0; grid && grid->rows() > 0 && column < grid->columns(); ++column) {
      captions.insert(Plain(grid->text(0, column)));
    }
  }
  return captions;
}

std::string PageText(const fs::path& path) {
  std::ifstream stream(path, std::ios::binary);
  return std::regex_replace(std::string(std::istreambuf_iterator<char>(stream), {}),
                            std::regex("&amp;"), "&");
}

class HelpTest : public ::testing::Test {
 protected:
  void SetUp() override { rig_.Start(); }

  template <typename Visit>
  void ForEachForm(const Visit& visit) {
    for (const std::string& name : rig_.navigator().Names()) {
      if (name == forms::form_names::kSplash1) continue;  // it goes by itself
      rig_.navigator().Show(name);
      visit(rig_.Get<forms::Form>(name));
    }
  }

  testing::ProgramRig rig_;
};

TEST_F(HelpTest, EveryScreenPanelAndHelpEntryHasItsPage) {
  std::map<int, std::string> asked;
  ForEachForm([&](forms::Form& form) {
    // A screen without a page of its own has the overview.
    if (form.help_context() != 0) asked[form.help_context()] = form.name();
    for (forms::Control* control : form.AllControls()) {
      auto* panel = dynamic_cast<forms::Panel*>(control);
      if (panel && panel->help_context() != 0) asked[panel->help_context()] = control->name();
    }
    forms::MenuItem* help = form.menus().Find("mH");
    if (!help) return;
    for (const auto& entry : help->items()) {
      if (entry->name() == "mHI") entry->Click();
    }
    for (int context : rig_.help.shown) asked[context] = form.name() + "'s Help menu";
  });
  EXPECT_GT(asked.size(), 15u) << "of the screens";
  for (const auto& [context, who] : asked) {
    EXPECT_TRUE(fs::exists(kPages / (std::to_string(context) + ".html"))) << context << " " << who;
  }
}

TEST_F(HelpTest, EveryWordInBoldStandsOnAScreen) {
  // The buttons of boxes, and captions that come with a state of their screen.
  std::set<std::string> known{"Yes",
                              "No",
                              "Cancel",
                              "OK",
                              "New Worksheet",
                              "Compliance Status",
                              "All Safeguards",
                              "Normal",
                              "Restore Files"};
  ForEachForm([&](forms::Form& form) { known.merge(CaptionsOf(form)); });
  for (const auto& entry : fs::directory_iterator(kPages)) {
    static const std::regex kBold("<b>([^<]*)</b>");
    const std::string html = PageText(entry.path());
    for (std::sregex_iterator bold(html.begin(), html.end(), kBold), end; bold != end; ++bold) {
      std::string words = std::regex_replace(bold->str(1), std::regex("\\s+"), " ");
      EXPECT_TRUE(known.contains(words)) << entry.path().filename() << ": " << words;
    }
  }
}

}  // namespace
}  // namespace tarnwell

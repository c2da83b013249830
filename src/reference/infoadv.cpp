#include "reference/infoadv.h"

#include <array>
#include <string>
#include <string_view>

#include "forms/form_names.h"
#include "parts/backup_menu.h"
#include "parts/help_menu.h"
#include "reference/information_text.h"
#include "reference/web_site.h"
#include "storage/file_names.h"

namespace tarnwell::reference {
namespace {

constexpr int kAdvisorHelp = 3066;
constexpr const char* kAdvisorTitle = "Information Advisor";
constexpr std::size_t kLongestEntry = 2000;  // characters

struct SideText {
  const char* caption;
  const char* tool_tip;
};
constexpr std::array<SideText, InfoAdv::kSides> kSideTexts{{
    {"Getting Started", "  Getting Started  "},
    {"Federal Goverment Websites", "  Federal Goverment Websites  "},
    {"State Websites", "  State Websites  "},
}};

constexpr std::array<const char*, kFederalLinkCount> kFederalCaptions{
    "U.S. Small Business Administration (SBA)",
    " IRS - Information && Regulations",
    "Business USA - Starting && Running",
    "Business Information for Veterans",
    "OSHA - Resouces && Information (DOL)",
    "Family && Medical Leave Act (FMLA)",
    "Small Business Resource Center"};

constexpr std::array<const char*, kStatePlaces> kStateCaptions{
    "State Government Website", "Small Business Resource (SBA)",
    "Additional Document 1 (Internet/PDF)", "Additional Document 2 (Internet/PDF)"};

constexpr std::string_view kDistrict = "D. C.";

// Of a label of the table, in which an ampersand is no mnemonic's mark.
std::string AsCaption(std::string_view label) {
  std::string caption;
  for (const char letter : label) caption.append(letter == '&' ? 2 : 1, letter);
  return caption;
}

}  // namespace

InfoAdv::InfoAdv(forms::Context& context)
    : MainScreen(
          context, forms::form_names::kInfoAdv, kAdvisorTitle, parts::kInformationAdvisor,
          {"&Company Data", "&Employee Data", "&Tools and Program Information", "&Exit Program"}),
      copy_note(copy_and_paste, "Label2",
                "(Copy and Paste Web Address from Info on left to View Web Site or PDF)",
                forms::LabelRole::kNote),
      address(copy_and_paste, "Text1",
              {.max_length = kLongestEntry, .spoken_name = "Web address to view"}),
      note(*this, "Label3",
           "[NOTE: Efforts were made to insure web addresses were correct - but Government "
           "Agencies, often change their addresses without notifying other agencies so some web "
           "addresses may not work!]",
           forms::LabelRole::kNote) {
  for (const std::string_view name : kStates) {
    state.Add(states, "SSOption1(" + std::to_string(state.size()) + ")", name);
  }
  for (forms::Panel* panel : {&federal, &states}) {
    panel->SetVisible(false);
    panel->Cover({&text_panel});
  }
  ConnectCommands();
  parts::AddBackupEntries(menus().AddSubmenu("mU", "&Utilities"), context_,
                          {.set = parts::kDocumentsSet});
  SetHelpContext(kAdvisorHelp);
  parts::AddHelpMenu(*this, context_, {{"&Information Advisor", kAdvisorHelp}});
}

void InfoAdv::ConnectCommands() {
  for (std::size_t i = 0; i < sides.size(); ++i) {
    sides[i].SetCaption(kSideTexts[i].caption);
    sides[i].SetToolTip(kSideTexts[i].tool_tip);
    sides[i].on_click = [this, i] { Choose(static_cast<Side>(i)); };
  }
  state.on_pick = [this](int index) { ShowState(static_cast<std::size_t>(index)); };
  const auto open = [this](const std::string& site) { OpenWebSite(*this, context_, site); };
  federal_sites.on_open = state_sites.on_open = open;
  federal_sites.on_address = state_sites.on_address = [this](const std::string& site) {
    address.SetText(site);
    address.Focus();
  };
  display.on_click =
      address.on_enter = [this] { OpenTypedAddress(*this, context_, address.text()); };
  clear.on_click = [this] {
    address.SetText({});
    address.Focus();
  };
}

void InfoAdv::Load() {
  federal_links_ = ReadFederalLinks(context_.folder);
  state_links_ = ReadStateLinks(context_.folder);
  ShowFederal();
  for (std::size_t place = 0; place < kStatePlaces; ++place) {
    state_sites.Show(place, kStateCaptions[place], {});
  }
  state_panel.SetVisible(false);
  Choose(kGettingStarted);
  sides[kGettingStarted].Focus();
}

void InfoAdv::Choose(Side shown) {
  for (std::size_t i = 0; i < sides.size(); ++i) sides[i].SetSelected(i == shown);
  SetCaption(std::string(kAdvisorTitle) + " - " + kSideTexts[shown].caption);
  federal.SetVisible(shown == kFederal);
  states.SetVisible(shown == kState);
  std::string told = shown == kFederal ? federal_links_.trouble : state_links_.trouble;
  if (shown == kGettingStarted) {
    const forms::Hourglass hourglass(context_.window);
    told = ShowInformationText(context_.folder, storage::file_names::kGettingStarted, text);
  }
  trouble.SetCaption(told);
  trouble.SetVisible(!told.empty());
}

void InfoAdv::ShowFederal() {
  for (std::size_t i = 0; i < kFederalLinkCount; ++i) {
    federal_sites.Show(i, kFederalCaptions[i], federal_links_.rows[i].address);
  }
}

void InfoAdv::ShowState(std::size_t index) {
  const std::string_view name = kStates[index];
  state_panel.SetCaption(name == kDistrict ? "District of Columbia"
                                           : "State Of " + std::string(name));
  for (std::size_t place = 0; place < kStatePlaces; ++place) {
    const auto& [label, site] = state_links_.rows[index][place];
    state_sites.Show(place, label.empty() ? kStateCaptions[place] : AsCaption(label), site);
  }
  state_panel.SetVisible(true);
}

}  // namespace tarnwell::reference

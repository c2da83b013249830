#include "record_book/cell_links.h"

#include <algorithm>
#include <vector>

#include "text/letters.h"

namespace tarnwell::record_book {
namespace {

constexpr const char* kMailTitle = "E-mail Option";
constexpr const char* kWebTitle = "Web Address Launcher Option";
constexpr std::size_t kAddressStart = 4;  // characters that tell a web address

struct Link {
  CellUse use;
  const char* name;
  const char* file;
  const char* tool_tip;
};
constexpr Link kLinks[] = {
    {CellUse::kDial, "Image2(0)", "phone.svg", "Dial the Selected Number"},
    {CellUse::kDialBusiness, "Image2(1)", "phone.svg", "Dial the Selected Number"},
    {CellUse::kOpenWeb, "Image5", "web.svg", "Open the Selected Web Address"},
    {CellUse::kWriteMail, "Image6", "mail.svg", "Write to the Selected E-mail Address"},
};

}  // namespace

CellLinks::CellLinks(forms::Panel& parent, forms::Context& context, const forms::Grid& grid,
                     std::span<const DisplayOption> options)
    : dialing(parent, "Label3", "Dialing..."),
      dialer(parent.form(), context),
      form_(parent.form()),
      context_(context),
      grid_(grid) {
  dialing.SetVisible(false);
  for (const auto& [use, name, file, tool_tip] : kLinks) {
    if (std::ranges::find(options, use, &DisplayOption::use) == options.end()) continue;
    auto& picture = pictures[use] = std::make_unique<forms::Picture>(parent, name, file);
    picture->SetToolTip(tool_tip);
    picture->SetSpokenName(tool_tip);
    picture->on_click = [this, clicked = use] { Use(clicked); };
  }
}

void CellLinks::Show(CellUse use) {
  for (auto& [its_use, picture] : pictures) picture->SetVisible(its_use == use);
}

void CellLinks::AddTo(forms::MenuItem& menu) {
  const auto add = [&](const char* name, const char* caption, std::vector<CellUse> uses) {
    std::vector<forms::Control*> with;
    for (const CellUse use : uses) {
      if (pictures.contains(use)) with.push_back(pictures[use].get());
    }
    if (with.empty()) return;
    menu.AddEntry(name, caption,
                  {[with] {
                     for (forms::Control* picture : with) {
                       static_cast<forms::Picture*>(picture)->Click();
                     }
                   },
                   with});
  };
  add("mODial", "Dial the Selected &Number", {CellUse::kDial, CellUse::kDialBusiness});
  add("mOWeb", "Open the Selected &Web Address", {CellUse::kOpenWeb});
  add("mOMail", "Write to the Selected E-&mail Address", {CellUse::kWriteMail});
}

std::string CellLinks::Cell() const {
  const auto [row, column] = grid_.current();
  return row == 0 ? std::string() : text::Trim(grid_.text(row, column));
}

void CellLinks::Tell(const char* title, const char* text) {
  form_.Message({title, text, forms::Icon::kInformation});
}

void CellLinks::Use(CellUse use) {
  if (use == CellUse::kOpenWeb) return OpenWeb();
  if (use == CellUse::kWriteMail) return WriteMail();
  dialer.Dial(Cell(), dialing);
}

void CellLinks::OpenWeb() {
  const std::string address = Cell();
  const std::string start = text::UpperCase(text::Left(address, kAddressStart));
  if (start != "HTTP" && start != "WWW.") {
    return Tell(kWebTitle, "First, Select(Highlight) a valid web address on the Grid!");
  }
  form_.SetStatus("Launching Web Site");
  const bool is_open = context_.launcher.OpenWeb(address);
  form_.SetStatus(form_.caption());
  if (!is_open) Tell(kWebTitle, "No program on this computer could open this address!");
}

void CellLinks::WriteMail() {
  const std::string address = Cell();
  if (address.find('@') == std::string::npos) {
    return Tell(kMailTitle, "First, Select(Highlight) a valid e-mail address on the Grid!");
  }
  if (!context_.launcher.WriteMail(address)) {
    Tell(kMailTitle, "No program on this computer could write to this address!");
  }
}

}  // namespace tarnwell::record_book

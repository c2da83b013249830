#include "reference/web_site.h"

#include <algorithm>
#include <array>
#include <string>

#include "text/letters.h"

namespace tarnwell::reference {
namespace {

constexpr const char* kTitle = "Web Site";
constexpr std::array<std::string_view, 3> kStarts{"https://", "http://", "www."};

bool BeginsAsAddress(std::string_view text) {
  return std::ranges::any_of(kStarts, [=](std::string_view start) {
    return text::EqualIgnoringCase(text::Left(text, start.size()), start);
  });
}

}  // namespace

void OpenWebSite(forms::Form& form, forms::Context& context, std::string_view address) {
  const forms::Hourglass hourglass(context.window);
  if (context.launcher.OpenWeb(address)) return;
  form.Message({kTitle,
                "No program on this computer could open this address:\n" + std::string(address),
                forms::Icon::kExclamation});
}

void OpenTypedAddress(forms::Form& form, forms::Context& context, std::string_view typed) {
  const std::string address = text::Trim(typed);
  if (address.empty()) return;
  if (BeginsAsAddress(address)) return OpenWebSite(form, context, address);
  form.Message(
      {kTitle, "A web address begins with https://, http:// or www.", forms::Icon::kExclamation});
}

}  // namespace tarnwell::reference

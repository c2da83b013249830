#include "print/print_pages.h"

#include <string>
#include <string_view>

#include "forms/message.h"

namespace tarnwell::print {
namespace {

void TellNotPrinted(forms::Context& context, std::string_view reason, std::string_view holds) {
  forms::ShowMessage(
      context,
      {"Not Printed",
       std::string("The pages could not be printed: ").append(reason).append(".\n").append(holds),
       forms::Icon::kCritical});
}

}  // namespace

void PrintPages(forms::Context& context, const forms::Document& document) {
  switch (context.pages.Print(document)) {
    case forms::PrintResult::kDone:
    case forms::PrintResult::kCancelled:
      return;
    case forms::PrintResult::kNotStarted:
      return TellNotPrinted(context, "the printer, or the file in its place, can't be opened",
                            "Nothing was printed.");
    case forms::PrintResult::kBrokenOff:
      return TellNotPrinted(context, "the printer or the disk reported an error",
                            "Some pages may be missing.");
  }
}

}  // namespace tarnwell::print

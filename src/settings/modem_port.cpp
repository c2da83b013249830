#include "settings/modem_port.h"

#include "settings/files.h"
#include "text/leading_number.h"

namespace tarnwell::settings {
namespace {

constexpr RecordPlace kModemPort{storage::file_names::kGColor1, 25};

}  // namespace

int ReadModemPort(storage::ProgramFolder& folder) {
  const double port = text::LeadingNumber(ReadText(folder, kModemPort));
  return port >= kFirstPort && port <= kLastPort ? static_cast<int>(port) : kFirstPort;
}

storage::Outcome WriteModemPort(storage::ProgramFolder& folder, int port) {
  return WriteText(folder, kModemPort, std::to_string(port));
}

}  // namespace tarnwell::settings

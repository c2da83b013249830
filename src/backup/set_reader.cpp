#include "backup/set_reader.h"

#include "backup/document_reader.h"
#include "backup/plain_reader.h"
#include "backup/record_reader.h"
#include "backup/vehicle_reader.h"

namespace tarnwell::backup {

std::unique_ptr<SetReader> ReaderOf(const BackupSet& set, int year, storage::ProgramFolder& folder,
                                    Attendant& attendant) {
  switch (set.kind) {
    case SetKind::kDocuments:
      return std::make_unique<DocumentReader>(set, year, folder, attendant);
    case SetKind::kRecords:
      return std::make_unique<RecordReader>(set, year, folder, attendant);
    case SetKind::kVehicles:
      return std::make_unique<VehicleReader>(set, year, folder, attendant);
    case SetKind::kPlain:
      break;
  }
  return std::make_unique<PlainReader>(set, year, folder, attendant);
}

Step SetReader::Take(Disk& disk, const std::string& form, const std::string& live,
                     storage::Replacement& made) {
  const auto source = disk.Open(form);
  if (!source) return Step::kBadSource;
  const auto target = made.Make(live);
  return target ? CopyFile(*source, *target, attendant_) : Step::kRefused;
}

}  // namespace tarnwell::backup

#pragma once

#include <map>
#include <string>
#include <vector>

#include "backup/held_documents.h"
#include "backup/set_reader.h"

namespace tarnwell::backup {

class DocumentReader : public SetReader {
 public:
  using SetReader::SetReader;

  std::vector<std::string> Check(Disk& disk, const DiskInfo& info) override;
  int total(const DiskInfo& first) const override;
  Step TakeDisk(Disk& disk, const DiskInfo& info, storage::Replacement& made) override;
  Step Finish(storage::Replacement& made) override;

 private:
  // The documents that the lists taken so far name.
  std::vector<DocumentFile> HeldDocuments() const;
  Step TakeLists(Disk& disk, storage::Replacement& made);
  Step TakeFile(Disk& disk, const DocumentFile& file, storage::Replacement& made);

  std::map<std::string, std::string> lists_;  // content by the file
  std::map<std::string, std::string> taken_;  // the name on the disk by the program's
};

}  // namespace tarnwell::backup

#pragma once

#include <vector>

#include "backup/held_documents.h"
#include "backup/set_writer.h"

namespace tarnwell::backup {

struct DocumentItem {
  DocumentFile file;
  int index;  // in the set: 0 for the fixed files, the last one for documents on lists
};

// Those that belong to the set by the program's own lists, in its order. They needn't be there.
std::vector<DocumentItem> LiveDocuments(storage::ProgramFolder& folder);
// The files of the program that have a document's extension but no place in the set.
std::vector<std::string> OtherDocuments(storage::ProgramFolder& folder,
                                        const std::vector<DocumentItem>& of_set);

// The company's documents, one file after the other.
class DocumentWriter : public SetWriter {
 public:
  DocumentWriter(storage::ProgramFolder& folder, Attendant& attendant);

  int total() const override;
  int done() const override;
  void StartDisk(Disk& disk, int number) override;
  Step PutNext() override;
  Step FinishDisk() override;
  void TakeBack() override;
  int position() const override;
  int count() const override { return count_; }

 private:
  Step Put(const DocumentItem& item, storage::File& source);

  storage::ProgramFolder& folder_;
  Attendant& attendant_;
  std::vector<DocumentItem> items_;
  std::size_t next_ = 0;
  std::size_t first_ = 0;  // of this disk
  Disk* disk_ = nullptr;
  int count_ = 0;
};

}  // namespace tarnwell::backup

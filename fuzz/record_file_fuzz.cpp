// Any bytes as a record file: every form reads without harm, and what was read, written to another
// file and read again is the same.

#include <cstdlib>

#include "memory_file_system.h"
#include "storage/record_file.h"
#include "storage/structure.h"

namespace tarnwell::storage {
namespace {

void Expect(bool holds) {
  if (!holds) std::abort();
}

void ReadWriteRead(RecordFile& file, RecordFile& copy, int record, std::size_t length) {
  const std::string text = file.GetText(record);
  Expect(text.empty() || text.size() + 2 <= length);
  Expect(copy.PutText(record, text) == (length >= 2));
  Expect(copy.GetText(record) == text);

  const TaggedValue value = file.GetTagged(record);
  Expect(copy.PutTagged(record, value) == (length >= 2));
  Expect(copy.GetTagged(record) == value);

  const std::int16_t integer = file.GetInteger(record);
  Expect(copy.PutInteger(record, integer) == (length >= 2));
  Expect(copy.GetInteger(record) == integer || length < 2);

  const std::string bytes = file.GetStructure(record, length);
  Expect(bytes.size() == length);
  Expect(copy.PutStructure(record, bytes));
  Expect(copy.GetStructure(record, length) == bytes);
}

void ReadFields(std::string_view bytes) {
  StructureReader reader(bytes);
  const auto number = reader.Double();
  const auto text = reader.Text();
  const auto small = reader.Float();
  const auto fixed = reader.FixedText(7);
  StructureWriter writer;
  writer.Double(number).Text(text).Float(small).FixedText(fixed, 7);
  StructureReader again(writer.bytes());
  Expect(again.Double() == number);
  Expect(again.Text() == text);
  Expect(again.Float() == small);
  Expect(again.FixedText(7).starts_with(fixed));
}

void Check(std::string_view data) {
  if (data.empty()) return;
  const auto length = static_cast<std::size_t>(static_cast<unsigned char>(data[0])) + 1;
  const std::string content(data.substr(1));
  fuzz::MemoryFileSystem files;
  files.contents["memory/a.fil"] = std::make_shared<std::string>(content);
  ProgramFolder folder(files, "memory");
  RecordFile file(folder, "A.Fil", static_cast<int>(length));
  RecordFile copy(folder, "copy.fil", static_cast<int>(length));

  int next = 1;
  std::string scanned;
  file.Scan(1, [&](int record, std::string_view bytes) {
    Expect(record == next++ && bytes.size() == length);
    if (record <= 64) ReadWriteRead(file, copy, record, length);
    scanned += bytes;
    return true;
  });
  Expect(scanned.starts_with(content) && scanned.size() < content.size() + length);
  ReadWriteRead(file, copy, next + 1, length);  // past the end
  ReadFields(content);
}

}  // namespace
}  // namespace tarnwell::storage

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
  tarnwell::storage::Check({data, size});
  return 0;
}

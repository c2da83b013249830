// Any bytes as a sequential file: reading ends, and what was read, written and read again is the
// same up to the first double quote in a value, which only an unquoted run can hold.

#include <cstdlib>
#include <string>
#include <vector>

#include "storage/sequential_file.h"
#include "text/leading_number.h"

namespace tarnwell::storage {
namespace {

void Expect(bool holds) {
  if (!holds) std::abort();
}

std::vector<std::string> ReadAll(std::string content) {
  std::vector<std::string> values;
  const std::size_t most = content.size();
  for (SequentialReader reader(std::move(content)); !reader.AtEnd();) {
    values.push_back(reader.Next());
    Expect(values.size() <= most);
  }
  return values;
}

void Check(const std::string& content) {
  std::vector<std::string> values = ReadAll(content);
  SequentialWriter writer;
  for (const std::string& value : values) writer.WriteText(value);
  for (std::string& value : values) value = value.substr(0, value.find('"'));
  Expect(ReadAll(writer.content()) == values);

  // The same values as numbers, each between two texts on one line.
  SequentialWriter numbers;
  for (const std::string& value : values)
    numbers.WriteLine({value, text::LeadingNumber(value), ""});
  const std::vector<std::string> again = ReadAll(numbers.content());
  Expect(again.size() == 3 * values.size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    Expect(again[3 * i] == values[i] && again[3 * i + 2].empty());
    Expect(text::LeadingNumber(again[3 * i + 1]) == text::LeadingNumber(values[i]));
  }
}

}  // namespace
}  // namespace tarnwell::storage

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
  tarnwell::storage::Check({data, size});
  return 0;
}

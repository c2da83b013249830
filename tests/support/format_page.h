// The worked example of a page of docs/formats/, so that a test can hold the code to it.

#pragma once

#include <cstdint>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

namespace tarnwell::testing {

struct FormatExample {
  std::uint64_t size = 0;                     // of the whole file
  std::map<std::uint64_t, std::string> runs;  // offset to the bytes that stand there
};

// Reads the page's one ```hex block: "size N", then lines of "offset: byte byte ...", offsets and
// bytes in hexadecimal. Without a block or with one that can't be read, it has no runs.
inline FormatExample ReadFormatExample(const std::string& page) {
  std::ifstream file(std::string(TARNWELL_SOURCE_DIR "/docs/formats/") + page);
  FormatExample example;
  std::string line;
  while (std::getline(file, line) && line != "```hex") {
  }
  std::string word;
  file >> word >> example.size >> std::ws;
  if (word != "size") return {};
  while (std::getline(file, line) && line != "```") {
    std::istringstream words(line);
    std::uint64_t offset = 0;
    char colon = 0;
    words >> std::hex >> offset >> colon;
    std::string& bytes = example.runs[offset];
    for (unsigned byte = 0; words >> byte;) bytes += static_cast<char>(byte);
    if (colon != ':' || !words.eof() || bytes.empty()) return {};
  }
  return example;
}

// The example as a file: its runs, zero bytes everywhere else.
inline std::string FileOf(const FormatExample& example) {
  std::string content(example.size, '\0');
  for (const auto& [offset, bytes] : example.runs) content.replace(offset, bytes.size(), bytes);
  return content;
}

}  // namespace tarnwell::testing

// tarnwell-dump FILE: prints a data file of the program in words.

#include <filesystem>
#include <iostream>
#include <string>

#include "storage/program_folder.h"
#include "text/code_page_1252.h"
#include "tools/file_kinds.h"
#include "tools/print_file.h"

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "usage: tarnwell-dump FILE\n";
    return 2;
  }
  const std::filesystem::path path(arguments[1]);
  const std::string name = tarnwell::text::FromUtf8(tarnwell::text::Utf8(path.filename().string()));
  const std::string parent = path.parent_path().string();
  tarnwell::storage::ProgramFolder folder(tarnwell::storage::RealFileSystem(),
                                          parent.empty() ? "." : parent);
  if (!folder.Exists(name)) {
    std::cerr << "tarnwell-dump: no file " << arguments[1] << '\n';
    return 1;
  }
  const auto* kind = tarnwell::tools::FindFileKind(name);
  if (!kind) {
    std::cerr << "tarnwell-dump: not a kind of file that the program writes\n";
    return 1;
  }
  tarnwell::tools::PrintFile(folder, name, *kind, std::cout);
  return std::cout.flush() ? 0 : 1;
}

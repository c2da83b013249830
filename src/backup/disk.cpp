#include "backup/disk.h"

#include <algorithm>
#include <utility>

#include "storage/file_names.h"
#include "storage/program_folder.h"
#include "text/code_page_1252.h"

namespace tarnwell::backup {

std::string WithoutSlash(std::string path) {
  while (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path;
}

Disk::Disk(storage::FileSystem& files, std::string_view path)
    : files_(files), path_(WithoutSlash(text::ToUtf8(path).bytes())), names_(files, path_) {}

std::unique_ptr<storage::File> Disk::Open(std::string_view name) {
  const auto path = storage::IsPlainFileName(name) ? names_.Locate(name) : std::nullopt;
  return path ? files_.Open(*path, storage::OpenMode::kRead) : nullptr;
}

bool Disk::HoldsBytes(std::string_view name) {
  const auto file = Open(name);
  return file && file->Size().value_or(0) > 0;
}

std::unique_ptr<storage::File> Disk::OpenToWrite(std::string_view name) {
  const auto path = storage::IsPlainFileName(name) ? names_.Locate(name) : std::nullopt;
  return path ? files_.Open(*path, storage::OpenMode::kReadWrite) : nullptr;
}

std::unique_ptr<storage::File> Disk::Make(std::string_view name) {
  if (!storage::IsPlainFileName(name) || !Remove(name)) return nullptr;
  auto file =
      files_.Open(path_ + "/" + text::ToUtf8(name).bytes(), storage::OpenMode::kCreateFresh);
  if (!file) return nullptr;
  names_.Learn(name);
  put_.emplace_back(name);
  return file;
}

bool Disk::Remove(std::string_view name) {
  const auto path = names_.Locate(name);
  if (!path) return names_.is_listed();
  if (!files_.Remove(*path)) return false;
  names_.Forget(name);
  return true;
}

bool Disk::RemoveAll(const std::function<bool(std::string_view name)>& fits) {
  const auto names = Names();
  if (!names) return false;
  bool all = true;
  for (const std::string& name : *names) {
    if (!fits(name) || Remove(name)) continue;
    // A folder of such a name is no file of a set.
    all = all && !Open(name) && fault() == storage::Fault::kNotPlain;
  }
  return all;
}

std::optional<std::vector<std::string>> Disk::Names() {
  const auto listed = files_.List(path_);
  if (!listed) return std::nullopt;
  std::vector<std::string> names;
  for (const std::string& on_disk : *listed) {
    const std::string name = text::FromUtf8(text::Utf8(on_disk));
    if (text::ToUtf8(name).bytes() == on_disk) names.push_back(name);
  }
  std::ranges::sort(names);
  return names;
}

bool Disk::RemovePut() {
  bool all = true;
  for (const std::string& name : std::exchange(put_, {})) all = Remove(name) && all;
  return all && Flush();
}

bool Disk::IsWritable() {
  const std::string path = path_ + "/" + std::string(storage::file_names::kSavePrefix) + "test";
  files_.Remove(path);
  const auto file = files_.Open(path, storage::OpenMode::kCreateFresh);
  const bool is_written = file && file->WriteAt(0, "T") && file->Flush();
  const storage::Fault fault = is_written ? storage::Fault::kNone : files_.fault();
  if (file) file->Close();
  files_.Remove(path);
  return is_written || fault == storage::Fault::kFull;
}

}  // namespace tarnwell::backup

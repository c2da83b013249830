#include "reliability/repeated_save.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "storage/file_names.h"
#include "storage/program_folder.h"
#include "storage/replacement.h"
#include "tools/file_kinds.h"

namespace tarnwell::testing {
namespace {

constexpr int kPlacesOfShortRun = 40;

void StartNext(const std::string& path) {
  storage::ProgramFolder folder(storage::RealFileSystem(), path);
  folder.Recover();
  storage::RecoverReplacement(folder);
}

// The records of a file, or the file as one.
std::size_t PieceOf(const std::string& name) {
  const tools::FileKind* kind = tools::FindFileKind(name);
  return kind && kind->record_length > 0 ? static_cast<std::size_t>(kind->record_length)
                                         : std::string::npos;
}

// Without the zero bytes at its end, as which records behind the end of a file are read.
std::string_view Piece(std::string_view content, std::size_t place, std::size_t size) {
  const std::string_view piece = content.substr(std::min(place, content.size()), size);
  return piece.substr(0, piece.find_last_not_of('\0') + 1);
}

}  // namespace

bool IsLongRun() { return std::getenv("TARNWELL_LONG") != nullptr; }

RepeatedSave::RepeatedSave(const TemporaryFolder& folder, std::function<int()> work, Step step)
    : folder_(folder), work_(std::move(work)), step_(step), old_(Read()) {
  EXPECT_EQ(RunTraced(work_, {}).result, kSaved);
  StartNext(folder_.path());
  new_ = Read();
  EXPECT_NE(old_, new_);
}

// An empty file is as good as none: to read is enough to make one.
RepeatedSave::Files RepeatedSave::Read() const {
  Files files;
  for (const std::string& name : folder_.Names()) {
    const std::string content = folder_.Read(name);
    if (!content.empty()) files[name] = content;
  }
  return files;
}

void RepeatedSave::PutBack() const {
  for (const std::string& name : folder_.Names()) folder_.Remove(name);
  for (const auto& [name, content] : old_) folder_.Write(name, content);
}

int RepeatedSave::Kill() const { return Everywhere({.kind = Disturbance::Kind::kKill}); }

int RepeatedSave::Tear() const { return Everywhere({.kind = Disturbance::Kind::kTear}); }

int RepeatedSave::Refuse(int error) const {
  return Everywhere({.kind = Disturbance::Kind::kRefuse, .error = error}) +
         Everywhere({.kind = Disturbance::Kind::kRefuseOnward, .error = error});
}

int RepeatedSave::Fill() const {
  PutBack();
  const std::uint64_t size = RunTraced(work_, {}).written;
  const std::uint64_t stride = IsLongRun() ? 1 : size / kPlacesOfShortRun + 1;
  int met = 0;
  for (std::uint64_t room = 0; room < size; room += stride) met += Run({.room = room}).is_met;
  return met;
}

int RepeatedSave::Everywhere(Disturbance disturbance) const {
  disturbance.call = 1 << 20;  // counts without meeting
  PutBack();
  const int calls = RunTraced(work_, disturbance).calls;
  const int stride = IsLongRun() ? 1 : calls / kPlacesOfShortRun + 1;
  int met = 0;
  for (disturbance.call = 1; disturbance.call <= calls; disturbance.call += stride) {
    met += Run(disturbance).is_met;
  }
  return met;
}

TracedRun RepeatedSave::Run(const Disturbance& disturbance) const {
  PutBack();
  const TracedRun run = RunTraced(work_, disturbance);
  StartNext(folder_.path());
  const Files left = Read();
  const auto where = [&] {
    return "at " + std::to_string(disturbance.call) + ", room " + std::to_string(disturbance.room);
  };
  EXPECT_TRUE(IsOldOrNew(left)) << where();
  EXPECT_TRUE(run.result == kSaved || run.result == kNotSaved || run.result == TracedRun::kKilled)
      << run.result << where();
  EXPECT_TRUE(run.result != kSaved || left == new_) << "called saved and isn't, " << where();
  for (const auto& [name, content] : left) {
    EXPECT_FALSE(name.starts_with(storage::file_names::kOwnPrefix)) << name << where();
  }
  return run;
}

bool RepeatedSave::IsOldOrNew(const Files& files) const {
  if (step_ == Step::kWhole) return files == old_ || files == new_;
  Files all = old_;
  all.insert(new_.begin(), new_.end());
  all.insert(files.begin(), files.end());
  const auto in = [](const Files& some, const std::string& name) {
    const auto found = some.find(name);
    return found == some.end() ? std::string() : found->second;
  };
  for (const auto& [name, ignored] : all) {
    const std::string left = in(files, name);
    const std::string before = in(old_, name);
    const std::string after = in(new_, name);
    const std::size_t size = PieceOf(name);
    const std::size_t end = std::max({left.size(), before.size(), after.size()});
    for (std::size_t place = 0; place < end; place += std::min(size, end)) {
      const std::string_view piece = Piece(left, place, size);
      if (piece != Piece(before, place, size) && piece != Piece(after, place, size)) return false;
    }
  }
  return true;
}

}  // namespace tarnwell::testing

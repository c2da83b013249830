// A save that is made again and again on the same files, each time disturbed at another place.

#pragma once

#include <functional>
#include <map>
#include <string>

#include "reliability/traced_process.h"
#include "support/temporary_folder.h"

namespace tarnwell::testing {

// What a disturbed save may leave behind the next start.
enum class Step {
  kWhole,    // all of the old files or all of the new ones
  kInTurns,  // each file, and of a file of records each record, old or new
};

class RepeatedSave {
 public:
  enum Told : int { kSaved = 0, kNotSaved = 1 };

  // `work` makes the save on what is in the folder, in a child, and gives what a person would be
  // told. It is made once at once, undisturbed.
  RepeatedSave(const TemporaryFolder& folder, std::function<int()> work, Step step);

  // Each finds a place for its disturbance in every call, or in every write, or in every byte that
  // is written; in a short run (see IsLongRun) in some forty of them. Gives how many it met.
  int Kill() const;
  int Tear() const;
  int Refuse(int error) const;
  int Fill() const;

 private:
  using Files = std::map<std::string, std::string>;

  Files Read() const;
  void PutBack() const;
  int Everywhere(Disturbance disturbance) const;
  TracedRun Run(const Disturbance& disturbance) const;
  bool IsOldOrNew(const Files& files) const;

  const TemporaryFolder& folder_;
  std::function<int()> work_;
  Step step_;
  Files old_;
  Files new_;
};

// TARNWELL_LONG is set: `tools/reliability` does so.
bool IsLongRun();

}  // namespace tarnwell::testing

#include "desktop/widgets/patient_reading.h"

#include <future>
#include <memory>
#include <mutex>
#include <set>
#include <thread>
#include <utility>

namespace tarnwell::desktop {
namespace {

// The folders from which an answer is missing. Never destroyed: a thread may come back from one
// when the program is about to end.
class SilentFolders {
 public:
  static SilentFolders& All() {
    static auto& all = *new SilentFolders;
    return all;
  }
  void Add(const std::string& folder) {
    const std::scoped_lock lock(mutex_);
    folders_.insert(folder);
  }
  void Remove(const std::string& folder) {
    const std::scoped_lock lock(mutex_);
    if (const auto found = folders_.find(folder); found != folders_.end()) folders_.erase(found);
  }
  bool Has(const std::string& folder) {
    const std::scoped_lock lock(mutex_);
    return folders_.contains(folder);
  }

 private:
  std::mutex mutex_;
  std::multiset<std::string> folders_;
};

}  // namespace

FileRead ReadPatiently(const std::string& folder, const std::function<FileRead()>& read,
                       std::chrono::milliseconds patience) {
  SilentFolders& silent = SilentFolders::All();
  if (silent.Has(folder)) return {{}, storage::Fault::kNoAnswer};
  silent.Add(folder);
  auto answer = std::make_shared<std::promise<FileRead>>();
  std::future<FileRead> awaited = answer->get_future();
  std::thread([&silent, folder, read, answer] {
    FileRead done = read();
    silent.Remove(folder);
    answer->set_value(std::move(done));
  }).detach();
  if (awaited.wait_for(patience) == std::future_status::ready) return awaited.get();
  return {{}, storage::Fault::kNoAnswer};
}

}  // namespace tarnwell::desktop

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <limits>
#include <utility>

#include "storage/file_system.h"
#include "storage/posix_fault.h"

namespace tarnwell::storage {
namespace {

// Repeats a system call that a signal broke off.
template <typename Call>
auto Retry(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

int OpenDescriptor(const std::string& path, int flags) {
  return Retry([&] { return ::open(path.c_str(), flags | O_CLOEXEC, 0666); });
}

// A descriptor is gone after close, even if a signal broke the call off.
bool CloseDescriptor(int descriptor) { return ::close(descriptor) == 0 || errno == EINTR; }

bool IsPlainFile(int descriptor) {
  struct stat status;
  return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

class PosixFile : public File {
 public:
  PosixFile(int descriptor, Fault& fault) : descriptor_(descriptor), fault_(fault) {}
  ~PosixFile() override { Close(); }
  PosixFile(const PosixFile&) = delete;
  PosixFile& operator=(const PosixFile&) = delete;

  std::ptrdiff_t ReadAt(std::uint64_t offset, std::span<char> buffer) override {
    std::size_t done = 0;
    while (done < buffer.size()) {
      const std::uint64_t place = offset + done;
      if (place > kLastOffset) break;
      const ssize_t count = Retry([&] {
        return ::pread(descriptor_, buffer.data() + done, buffer.size() - done,
                       static_cast<off_t>(place));
      });
      if (count < 0) {
        fault_ = FaultOf(errno);
        return -1;
      }
      if (count == 0) break;
      done += static_cast<std::size_t>(count);
    }
    return static_cast<std::ptrdiff_t>(done);
  }

  bool WriteAt(std::uint64_t offset, std::string_view bytes) override {
    while (!bytes.empty()) {
      if (offset > kLastOffset) return Failed(EFBIG);
      const ssize_t count = Retry([&] {
        return ::pwrite(descriptor_, bytes.data(), bytes.size(), static_cast<off_t>(offset));
      });
      if (count <= 0) return Failed(count == 0 ? ENOSPC : errno);
      bytes.remove_prefix(static_cast<std::size_t>(count));
      offset += static_cast<std::uint64_t>(count);
    }
    return true;
  }

  std::optional<std::uint64_t> Size() override {
    struct stat status;
    if (::fstat(descriptor_, &status) != 0) {
      fault_ = FaultOf(errno);
      return std::nullopt;
    }
    return static_cast<std::uint64_t>(status.st_size);
  }

  bool Flush() override {
    return Retry([&] { return ::fdatasync(descriptor_); }) == 0 || Failed(errno);
  }

  bool Close() override {
    if (descriptor_ == kClosed) return true;
    return CloseDescriptor(std::exchange(descriptor_, kClosed)) || Failed(errno);
  }

 private:
  bool Failed(int error) {
    fault_ = FaultOf(error);
    return false;
  }

  static constexpr int kClosed = -1;
  static constexpr auto kLastOffset = static_cast<std::uint64_t>(std::numeric_limits<off_t>::max());

  int descriptor_;
  Fault& fault_;
};

int FlagsOf(OpenMode mode) {
  switch (mode) {
    case OpenMode::kRead:
      return O_RDONLY;
    case OpenMode::kReadWrite:
      return O_RDWR;
    case OpenMode::kCreate:
      return O_RDWR | O_CREAT;
    case OpenMode::kCreateFresh:
      return O_RDWR | O_CREAT | O_EXCL;
  }
  return O_RDONLY;
}

class PosixFileSystem : public FileSystem {
 public:
  // A pipe or a device is opened without waiting, so that it can be refused.
  std::unique_ptr<File> Open(const std::string& path, OpenMode mode) override {
    const int descriptor = OpenDescriptor(path, FlagsOf(mode) | O_NOFOLLOW | O_NONBLOCK);
    if (descriptor < 0) {
      Failed(errno);
      return nullptr;
    }
    if (IsPlainFile(descriptor)) return std::make_unique<PosixFile>(descriptor, fault_);
    CloseDescriptor(descriptor);
    fault_ = Fault::kNotPlain;
    return nullptr;
  }

  bool Exists(const std::string& path) override {
    struct stat status;
    return ::lstat(path.c_str(), &status) == 0 || Failed(errno);
  }

  bool Rename(const std::string& from, const std::string& to) override {
    return std::rename(from.c_str(), to.c_str()) == 0 || Failed(errno);
  }

  bool Remove(const std::string& path) override {
    return ::unlink(path.c_str()) == 0 || errno == ENOENT || Failed(errno);
  }

  void CopyPermissions(const std::string& from, const std::string& to) override {
    struct stat status;
    if (::stat(from.c_str(), &status) == 0) (void)::chmod(to.c_str(), status.st_mode & 0777);
  }

  bool FlushFolder(const std::string& path) override {
    const int descriptor = OpenDescriptor(path, O_RDONLY | O_DIRECTORY);
    if (descriptor < 0) return Failed(errno);
    // Some file systems of the network know no flush of a folder and have nothing to flush.
    const bool is_flushed = Retry([&] { return ::fsync(descriptor); }) == 0 || errno == EINVAL ||
                            errno == ENOTSUP || Failed(errno);
    return CloseDescriptor(descriptor) && is_flushed;
  }

  bool MakeFolder(const std::string& path) override {
    for (auto slash = path.find('/', 1); slash != std::string::npos;
         slash = path.find('/', slash + 1)) {
      ::mkdir(path.substr(0, slash).c_str(), 0777);  // the last call tells whether it all worked
    }
    if (::mkdir(path.c_str(), 0777) == 0) return true;
    const int error = errno;
    struct stat status;
    return (::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode)) || Failed(error);
  }

  std::optional<std::vector<std::string>> List(const std::string& folder) override {
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(::opendir(folder.c_str()), ::closedir);
    if (!stream) {
      Failed(errno);
      return std::nullopt;
    }
    std::vector<std::string> names;
    for (;;) {
      errno = 0;  // the end of the folder and a failure look alike but for this
      const dirent* entry = ::readdir(stream.get());
      if (!entry) break;
      const std::string_view name = entry->d_name;
      if (name != "." && name != "..") names.emplace_back(name);
    }
    if (errno == 0) return names;
    Failed(errno);
    return std::nullopt;
  }

  Fault fault() const override { return fault_; }

 private:
  bool Failed(int error) {
    fault_ = FaultOf(error);
    return false;
  }

  Fault fault_ = Fault::kNone;
};

}  // namespace

FileSystem& RealFileSystem() {
  static PosixFileSystem files;
  return files;
}

}  // namespace tarnwell::storage

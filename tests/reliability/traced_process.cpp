#include "reliability/traced_process.h"

#include <signal.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>

namespace tarnwell::testing {

#ifdef __x86_64__

namespace {

using Kind = Disturbance::Kind;

constexpr int kNotTraced = 100;
constexpr int kCallStop = SIGTRAP | 0x80;
constexpr std::uint64_t kPage = 4096;
constexpr long kNoCall = -1;

long TellTracer(int request) { return ::ptrace(static_cast<__ptrace_request>(request), 0, 0, 0); }

bool IsWrite(std::uint64_t call) { return call == SYS_write || call == SYS_pwrite64; }

bool IsAboutFiles(std::uint64_t call) {
  static constexpr std::uint64_t kCalls[] = {
      SYS_open,     SYS_openat,    SYS_read,      SYS_pread64,    SYS_write,      SYS_pwrite64,
      SYS_close,    SYS_fsync,     SYS_fdatasync, SYS_rename,     SYS_unlink,     SYS_mkdir,
      SYS_stat,     SYS_lstat,     SYS_fstat,     SYS_newfstatat, SYS_getdents64, SYS_chmod,
      SYS_renameat, SYS_renameat2, SYS_unlinkat,  SYS_access,     SYS_ftruncate};
  return std::ranges::find(kCalls, call) != std::end(kCalls);
}

// Bytes of a write that end where a page does, `most` or fewer; all of them where they fit. The
// machine takes a page whole or not at all.
std::uint64_t WholePages(const __ptrace_syscall_info& info, std::uint64_t most) {
  const std::uint64_t size = info.entry.args[2];
  if (size <= most) return size;
  const std::uint64_t offset = info.entry.nr == SYS_pwrite64 ? info.entry.args[3] : 0;
  const std::uint64_t end = (offset + most) / kPage * kPage;
  return end > offset ? end - offset : 0;
}

// Bytes of a write in the first page that it touches; all of them where there is only one.
std::uint64_t FirstPage(const __ptrace_syscall_info& info) {
  return WholePages(info, kPage - (info.entry.nr == SYS_pwrite64 ? info.entry.args[3] % kPage : 0));
}

class Tracer {
 public:
  Tracer(pid_t id, const Disturbance& disturbance) : id_(id), disturbance_(disturbance) {}

  TracedRun Run() {
    int status = 0;
    ::waitpid(id_, &status, 0);
    Ask(PTRACE_SETOPTIONS, 0, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    for (long signal = 0;;) {
      Ask(PTRACE_SYSCALL, 0, signal);
      ::waitpid(id_, &status, 0);
      if (!WIFSTOPPED(status)) return Ended(status);
      signal = WSTOPSIG(status) == kCallStop ? 0 : WSTOPSIG(status);
      if (signal == 0) Stopped();
    }
  }

 private:
  void Ask(int request, std::size_t place, long value) {
    ::ptrace(static_cast<__ptrace_request>(request), id_, place, value);
  }
  void Set(std::size_t place, std::uint64_t value) {
    Ask(PTRACE_POKEUSER, place, static_cast<long>(value));
  }
  void Kill() {
    ::kill(id_, SIGKILL);
    was_killed_ = true;
  }

  TracedRun Ended(int status) {
    run_.result = WIFEXITED(status) ? WEXITSTATUS(status)
                  : was_killed_     ? TracedRun::kKilled
                                    : TracedRun::kCrashed;
    return run_;
  }

  void Stopped() {
    __ptrace_syscall_info info{};
    Ask(PTRACE_GET_SYSCALL_INFO, sizeof info, reinterpret_cast<long>(&info));
    if (info.op == PTRACE_SYSCALL_INFO_ENTRY) return Entered(info);
    if (refused_with_ != 0)
      Set(offsetof(user_regs_struct, rax), -static_cast<std::uint64_t>(refused_with_));
    refused_with_ = 0;
    if (ends_behind_) Kill();
  }

  void Entered(const __ptrace_syscall_info& info) {
    if (IsWrite(info.entry.nr)) LimitWrite(info);
    if (!CanMeet(info)) return;
    ++run_.calls;
    const bool goes_on = disturbance_.kind == Kind::kRefuseOnward;
    if (goes_on ? run_.calls < disturbance_.call : run_.calls != disturbance_.call) return;
    run_.is_met = true;
    if (disturbance_.kind == Kind::kKill) return Kill();
    if (disturbance_.kind != Kind::kTear) return Refuse(disturbance_.error);
    Set(offsetof(user_regs_struct, rdx), FirstPage(info));
    ends_behind_ = true;
  }

  bool CanMeet(const __ptrace_syscall_info& info) const {
    switch (disturbance_.kind) {
      case Kind::kNone:
        return false;
      case Kind::kKill:
        return true;
      case Kind::kTear:
        return IsWrite(info.entry.nr) && FirstPage(info) < info.entry.args[2];
      default:
        return IsAboutFiles(info.entry.nr);
    }
  }

  void LimitWrite(const __ptrace_syscall_info& info) {
    const std::uint64_t size = info.entry.args[2];
    run_.written += size;
    const std::uint64_t fits = WholePages(info, disturbance_.room);
    disturbance_.room = fits == size ? disturbance_.room - size : 0;
    if (fits == size) return;
    run_.is_met = true;
    if (fits == 0) return Refuse(ENOSPC);
    Set(offsetof(user_regs_struct, rdx), fits);
  }

  // The machine is asked for a call that there isn't; its answer is put in the place of that.
  void Refuse(int error) {
    Set(offsetof(user_regs_struct, orig_rax), static_cast<std::uint64_t>(kNoCall));
    refused_with_ = error;
  }

  pid_t id_;
  Disturbance disturbance_;
  TracedRun run_;
  int refused_with_ = 0;
  bool ends_behind_ = false;
  bool was_killed_ = false;
};

}  // namespace

TracedRun RunTraced(const std::function<int()>& work, const Disturbance& disturbance) {
  const pid_t id = ::fork();
  if (id == 0) {
    if (TellTracer(PTRACE_TRACEME) != 0) ::_exit(kNotTraced);
    ::raise(SIGSTOP);
    ::_exit(work());
  }
  return Tracer(id, disturbance).Run();
}

bool CanTrace() {
  static const bool can = [] {
    const auto close_nothing = [] { return ::close(-1) == -1 && errno == ENOSPC ? 0 : 1; };
    return RunTraced(close_nothing, {.kind = Kind::kRefuseOnward, .call = 1, .error = ENOSPC})
               .result == 0;
  }();
  return can;
}

#else

TracedRun RunTraced(const std::function<int()>& work, const Disturbance&) { return {work()}; }

bool CanTrace() { return false; }

#endif

}  // namespace tarnwell::testing

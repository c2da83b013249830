#pragma once

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>

namespace tarnwell::testing {

// A child process that runs `work` and ends without running any destructor.
class ChildProcess {
 public:
  explicit ChildProcess(const std::function<void()>& work) : id_(::fork()) {
    if (id_ == 0) {
      work();
      ::_exit(0);
    }
  }
  ~ChildProcess() {
    if (id_ > 0) Kill();
  }
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  void Kill() {
    ::kill(id_, SIGKILL);
    Wait();
  }
  // The child's exit code, -1 if it was killed.
  int Wait() {
    int status = 0;
    ::waitpid(id_, &status, 0);
    id_ = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  pid_t id_;
};

}  // namespace tarnwell::testing

#pragma once

#include <functional>
#include <map>
#include <memory>
#include <utility>

namespace tarnwell::forms {

// Listens as long as it lives. Outliving the notifier is harmless.
class Subscription {
 public:
  Subscription() = default;

 private:
  friend class Notifier;
  explicit Subscription(std::shared_ptr<void> token) : token_(std::move(token)) {}
  std::shared_ptr<void> token_;
};

// Calls its listeners in the order in which they came. A listener may end itself or others, and may
// add new ones, which are called from the next time on.
class Notifier {
 public:
  using Listener = std::function<void()>;

  [[nodiscard]] Subscription Subscribe(Listener listener);
  void Notify();

 private:
  std::map<int, std::weak_ptr<Listener>> listeners_;
  int next_ = 0;
};

}  // namespace tarnwell::forms

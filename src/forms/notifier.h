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

  // The notifier is still there, and with it the object that it belongs to.
  bool Connected() const { return !notifier_.expired(); }

 private:
  friend class Notifier;
  Subscription(std::shared_ptr<void> token, std::weak_ptr<const bool> notifier)
      : token_(std::move(token)), notifier_(std::move(notifier)) {}
  std::shared_ptr<void> token_;
  std::weak_ptr<const bool> notifier_;
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
  std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true);
};

}  // namespace tarnwell::forms

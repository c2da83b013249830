#include "forms/notifier.h"

#include <vector>

namespace tarnwell::forms {

Subscription Notifier::Subscribe(Listener listener) {
  auto token = std::make_shared<Listener>(std::move(listener));
  listeners_[next_++] = token;
  return Subscription(token, alive_);
}

void Notifier::Notify() {
  std::erase_if(listeners_, [](const auto& entry) { return entry.second.expired(); });
  std::vector<std::weak_ptr<Listener>> present;
  for (const auto& [order, listener] : listeners_) present.push_back(listener);
  for (const auto& weak : present) {
    if (auto listener = weak.lock()) (*listener)();
  }
}

}  // namespace tarnwell::forms

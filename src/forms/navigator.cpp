#include "forms/navigator.h"

#include <algorithm>

namespace tarnwell::forms {

void Navigator::Register(std::string_view name, Factory factory) {
  factories_[std::string(name)] = std::move(factory);
}

std::vector<std::string> Navigator::Names() const {
  std::vector<std::string> names;
  for (const auto& [name, factory] : factories_) names.push_back(name);
  return names;
}

Form* Navigator::Find(std::string_view name) const {
  const auto found =
      std::ranges::find_if(stack_, [&](const auto& form) { return form->name() == name; });
  return found == stack_.end() ? nullptr : found->get();
}

void Navigator::Show(std::string_view name) {
  if (ended_) return;
  if (Form* loaded = Find(name)) {
    const auto place = std::ranges::find(stack_, loaded, &std::unique_ptr<Form>::get);
    std::rotate(place, place + 1, stack_.end());
    Raise();
  } else {
    Push(name, false);
  }
}

void Navigator::ShowModal(std::string_view name, const Preparation& prepare) {
  if (ended_ || Find(name)) return;
  if (const Form* form = Push(name, true, prepare)) {
    const auto is_loaded = [&] {
      return std::ranges::find(stack_, form, &std::unique_ptr<Form>::get) != stack_.end();
    };
    context_->loop.RunUntil([&] { return ended_ || !is_loaded(); });
  }
}

Form* Navigator::Push(std::string_view name, bool modal, const Preparation& prepare) {
  const auto factory = factories_.find(name);
  if (factory == factories_.end()) return nullptr;
  std::unique_ptr<Form> form = factory->second(*context_);
  Form* loaded = form.get();
  if (prepare) prepare(*loaded);
  if (top()) top()->on_top_ = false;
  stack_.push_back(std::move(form));
  loaded->on_top_ = true;
  if (observer_) observer_->FormLoaded(*loaded, modal);
  loaded->Load();
  // Loading may have ended the program or put another form on top.
  if (!ended_ && top() == loaded) Raise();
  return loaded;
}

void Navigator::Raise() {
  for (auto& form : stack_) form->on_top_ = form.get() == top();
  Form* raised = top();
  if (!raised) return;
  if (observer_) observer_->FormRaised(*raised);
  raised->Activate();
}

void Navigator::Unload(Form& form) {
  const auto place = std::ranges::find(stack_, &form, &std::unique_ptr<Form>::get);
  if (place == stack_.end() || ended_) return;
  form.Unload();
  if (ended_) return;
  form.on_top_ = false;
  const bool was_top = top() == &form;
  unloaded_.push_back(std::move(*std::ranges::find(stack_, &form, &std::unique_ptr<Form>::get)));
  std::erase(stack_, nullptr);
  if (observer_) observer_->FormUnloaded(form);
  if (was_top) Raise();
}

bool Navigator::Close(Form& form, UnloadCause cause) {
  if (form.busy() || !form.QueryUnload(cause)) return false;
  Unload(form);
  return true;
}

void Navigator::EndProgram() {
  if (ended_) return;
  ended_ = true;
  // A click that is still under way does nothing any more.
  for (auto& form : stack_) form->on_top_ = false;
  if (observer_) observer_->ProgramEnded();
}

}  // namespace tarnwell::forms

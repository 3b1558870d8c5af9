#include "model/unhurried_store.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace veyruna::model {

UnhurriedStore::UnhurriedStore(std::shared_ptr<SettingsStore> store) : store_(std::move(store)) {
  pause_.setSingleShot(true);
  pause_.setInterval(std::chrono::seconds(1));
  pause_.callOnTimeout([this] { handOn(); });
}

UnhurriedStore::~UnhurriedStore() {
  handOn();
}

QVariant UnhurriedStore::stored(const QString& key) const {
  for (const Group& group : waiting_) {
    for (const auto& [waitingKey, value] : group) {
      if (waitingKey == key) {
        return value;
      }
    }
  }
  return store_->stored(key);
}

void UnhurriedStore::store(const Group& group) {
  if (!isHeld_ || group.empty()) {
    store_->store(group);
    return;
  }
  std::erase_if(waiting_, [&group](const Group& waiting) {
    return waiting.front().first == group.front().first;
  });
  waiting_.push_back(group);
  if (!pause_.isActive()) {
    pause_.start();
  }
}

void UnhurriedStore::letGo() {
  isHeld_ = false;
  pause_.stop();
  handOn();
}

void UnhurriedStore::handOn() {
  for (const Group& group : std::exchange(waiting_, {})) {
    store_->store(group);
  }
}

}  // namespace veyruna::model

#include "tests/power/disk_without_power.h"

#include <algorithm>
#include <array>

namespace veyruna::tests {

namespace {

using Kind = Change::Kind;

}  // namespace

DiskWithoutPower::DiskWithoutPower(const Files& before) {
  int number = 0;
  for (const auto& [name, content] : before) {
    contents_[++number] = {.onDisk = content, .written = content};
    onDisk_[name] = number;
  }
}

void DiskWithoutPower::apply(const Change& change) {
  Content& content = contents_[change.file];
  switch (change.kind) {
    case Kind::write: {
      const auto offset = static_cast<std::size_t>(change.offset);
      content.written.resize(std::max(content.written.size(), offset + change.bytes.size()));
      content.written.replace(offset, change.bytes.size(), change.bytes);
      return;
    }
    case Kind::resize:
      content.written.resize(static_cast<std::size_t>(change.offset));
      return;
    case Kind::sync:
      content.onDisk = content.written;
      return;
    case Kind::syncFolder:
      for (const Change& name : waiting_) {
        DiskWithoutPower::change(onDisk_, name);
      }
      waiting_.clear();
      return;
    case Kind::create:
      content = {};
      if (change.name.empty()) {
        return;
      }
      break;
    case Kind::name:
    case Kind::rename:
    case Kind::unname:
      break;
  }
  waiting_.push_back(change);
}

void DiskWithoutPower::change(Names& names, const Change& change) {
  if (change.kind == Kind::rename) {
    names[change.name] = names.at(change.from);
    names.erase(change.from);
  } else if (change.kind == Kind::unname) {
    names.erase(change.name);
  } else {
    names[change.name] = change.file;
  }
}

Files DiskWithoutPower::under(const Names& names, std::string (*left)(const Content&)) const {
  Files files;
  for (const auto& [name, number] : names) {
    files[name] = left(contents_.at(number));
  }
  return files;
}

std::vector<Files> DiskWithoutPower::mayBeFound() const {
  using Left = std::string (*)(const Content&);
  constexpr std::array<Left, 4> all = {
      [](const Content& content) { return content.written; },
      [](const Content& content) { return content.onDisk; },
      [](const Content& content) {
        const bool isSynced = content.written == content.onDisk;
        return isSynced ? content.onDisk : content.written.substr(0, content.written.size() / 2);
      },
      [](const Content& content) {
        const bool isSynced = content.written == content.onDisk;
        return isSynced ? content.onDisk : std::string(content.written.size(), '\0');
      }};
  std::vector<Files> found;
  Names names = onDisk_;
  for (std::size_t made = 0;; ++made) {
    for (const Left left : all) {
      found.push_back(under(names, left));
    }
    if (made == waiting_.size()) {
      break;
    }
    change(names, waiting_[made]);
  }
  std::ranges::sort(found);
  found.erase(std::unique(found.begin(), found.end()), found.end());
  return found;
}

Files DiskWithoutPower::whole() const {
  Names names = onDisk_;
  for (const Change& made : waiting_) {
    change(names, made);
  }
  return under(names, [](const Content& content) { return content.written; });
}

}  // namespace veyruna::tests

#include "model/KeyTable.h"

#include <utility>

namespace tervix {

void KeyTable::reserve(std::size_t count) {
  constexpr std::size_t kSmallest = 8;
  std::size_t size = entries_.empty() ? kSmallest : entries_.size();
  while (size / 3 * 2 < count)
    size *= 2;
  if (size != entries_.size())
    rehash(size);
}

void KeyTable::rehash(std::size_t size) {
  const std::vector<Entry> former = std::exchange(entries_, std::vector<Entry>(size));
  for (const Entry& entry : former)
    if (entry.place.cell != nullptr)
      entries_[slotOf(entry.hash)] = entry;
}

void KeyTable::insert(std::uint64_t hash, const Place& place) {
  reserve(used_ + 1);
  Entry& entry = entries_[slotOf(hash)];
  if (entry.place.cell == nullptr) {
    entry = {hash, place};
    ++used_;
    return;
  }
  others_[hash].insert(place < entry.place ? std::exchange(entry.place, place) : place);
}

void KeyTable::erase(std::uint64_t hash, const Place& place) {
  if (entries_.empty())
    return;
  const std::size_t slot = slotOf(hash);
  const auto found = others_.find(hash);
  if (found == others_.end()) {
    if (entries_[slot].place == place)
      vacate(slot);
    return;
  }
  std::set<Place>& others = found->second;
  if (entries_[slot].place == place)
    entries_[slot].place = others.extract(others.begin()).value();
  else
    others.erase(place);
  if (others.empty())
    others_.erase(found);
}

// What a probe could miss behind the free slot moves up into it.
void KeyTable::vacate(std::size_t slot) {
  --used_;
  for (std::size_t other = next(slot); entries_[other].place.cell != nullptr; other = next(other)) {
    const std::size_t mask = entries_.size() - 1;
    const std::size_t wanted = entries_[other].hash & mask;
    if (((other - wanted) & mask) < ((other - slot) & mask))
      continue;
    entries_[slot] = entries_[other];
    slot = other;
  }
  entries_[slot] = Entry();
}

} // namespace tervix

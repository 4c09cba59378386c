#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <vector>

#include "model/NodeCell.h"

namespace tervix {

// Where a node stands in a list, or in the lists that the nodes of a list hold in turn: then
// outer is the order of the node that holds the inner list.
struct Place {
  long long outer = 0;
  const NodeCell* cell = nullptr;

  bool operator==(const Place& other) const { return cell == other.cell && outer == other.outer; }
  bool operator<(const Place& other) const {
    return outer != other.outer ? outer < other.outer : cell->order < other.cell->order;
  }
};

// Places by the hash of a key, those of one hash in order. An open table: most keys are unique,
// and then a look-up touches one entry.
class KeyTable {
public:
  void insert(std::uint64_t hash, const Place& place);
  void erase(std::uint64_t hash, const Place& place);
  void reserve(std::size_t count);

  // The first place of that hash whose node matches.
  template <class Matches> const NodeCell* first(std::uint64_t hash, Matches matches) const {
    if (entries_.empty())
      return nullptr;
    const Place& front = entries_[slotOf(hash)].place;
    if (front.cell == nullptr || matches(*front.cell->node))
      return front.cell;
    const auto found = others_.find(hash);
    if (found == others_.end())
      return nullptr;
    for (const Place& place : found->second)
      if (matches(*place.cell->node))
        return place.cell;
    return nullptr;
  }

private:
  struct Entry {
    std::uint64_t hash = 0;
    Place place;
  };

  std::size_t next(std::size_t slot) const { return (slot + 1) & (entries_.size() - 1); }
  // The slot of a hash, or the free one where it would go.
  std::size_t slotOf(std::uint64_t hash) const {
    std::size_t slot = hash & (entries_.size() - 1);
    while (entries_[slot].place.cell != nullptr && entries_[slot].hash != hash)
      slot = next(slot);
    return slot;
  }
  void rehash(std::size_t size);
  void vacate(std::size_t slot);

  std::vector<Entry> entries_; // a power of two of them, a third free at least
  std::size_t used_ = 0;
  std::map<std::uint64_t, std::set<Place>> others_; // behind the first of a hash
};

} // namespace tervix

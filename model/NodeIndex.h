#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "model/KeyTable.h"

namespace tervix {

// What a node is looked up by. Marker keys are those of profiles.
enum class NodeKey { kName, kPath, kMarkerKey };
constexpr std::array<NodeKey, 3> kNodeKeys = {NodeKey::kName, NodeKey::kPath, NodeKey::kMarkerKey};

const std::string& keyText(const CTervixNode& node, NodeKey key);
// Whether two texts are one key: names and marker keys but for case, paths also but for the kind
// of their separators.
bool isSameKey(NodeKey key, std::string_view a, std::string_view b);

// The first match in list order among the nodes of a list, and among the profiles that the
// schematics of a list hold, at the cost of a hash table. Each table is made when it is first
// asked for; from then on it is told by NodeListing of every node that comes, goes or changes a
// key. An unset name or path is never found.
class NodeIndex {
public:
  explicit NodeIndex(const CTervixNodeList& list) : list_(list) {}

  const NodeCell* find(NodeKey key, std::string_view text);
  // The same for profiles; one that is refused is passed over.
  template <class Accepts>
  const NodeCell* findProfile(NodeKey key, std::string_view text, Accepts accepts) {
    return profileTable(key).first(hashOf(key, text), [&](const CTervixNode& node) {
      return isSameKey(key, keyText(node, key), text) && accepts(node);
    });
  }

  void enter(const NodeCell& cell, NodeKey key);
  void leave(const NodeCell& cell, NodeKey key);
  void enterProfile(const NodeCell& schematic, const NodeCell& profile, NodeKey key);
  void leaveProfile(const NodeCell& schematic, const NodeCell& profile, NodeKey key);
  // All profiles of a schematic that comes or goes.
  void enterProfilesOf(const NodeCell& schematic);
  void leaveProfilesOf(const NodeCell& schematic);

private:
  using Tables = std::array<std::optional<KeyTable>, kNodeKeys.size()>;

  static std::uint64_t hashOf(NodeKey key, std::string_view text);
  static std::optional<KeyTable>& tableOf(Tables& tables, NodeKey key) {
    return tables.at(static_cast<std::size_t>(key));
  }
  KeyTable& ownTable(NodeKey key);
  KeyTable& profileTable(NodeKey key);

  const CTervixNodeList& list_;
  Tables own_;
  Tables profiles_;
};

} // namespace tervix

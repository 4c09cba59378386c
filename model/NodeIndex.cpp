#include "model/NodeIndex.h"

#include "foundation/Text.h"
#include "model/NodeAccess.h"
#include "model/TreeWalk.h"

namespace tervix {
namespace {

bool canBeFound(NodeKey key, const std::string& text) {
  return key == NodeKey::kMarkerKey || !text.empty();
}

} // namespace

const std::string& keyText(const CTervixNode& node, NodeKey key) {
  switch (key) {
  case NodeKey::kName:
    return NodeAccess::name(node);
  case NodeKey::kPath:
    return NodeAccess::path(node);
  case NodeKey::kMarkerKey:
    break;
  }
  return NodeAccess::markerKey(static_cast<const CTervixProfile&>(node));
}

bool isSameKey(NodeKey key, std::string_view a, std::string_view b) {
  return key == NodeKey::kPath ? equalsAsPath(a, b) : equalsIgnoringCase(a, b);
}

std::uint64_t NodeIndex::hashOf(NodeKey key, std::string_view text) {
  return key == NodeKey::kPath ? hashAsPath(text) : hashIgnoringCase(text);
}

KeyTable& NodeIndex::ownTable(NodeKey key) {
  std::optional<KeyTable>& table = tableOf(own_, key);
  if (!table) {
    table.emplace();
    for (const NodeCell& cell : TreeWalk::cellsOf(list_))
      enter(cell, key);
  }
  return *table;
}

KeyTable& NodeIndex::profileTable(NodeKey key) {
  std::optional<KeyTable>& table = tableOf(profiles_, key);
  if (!table) {
    table.emplace();
    for (const NodeCell& schematic : TreeWalk::cellsOf(list_))
      if (schematic.isAlive())
        for (const NodeCell& profile : TreeWalk::cellsOfProfiles(schematic))
          enterProfile(schematic, profile, key);
  }
  return *table;
}

const NodeCell* NodeIndex::find(NodeKey key, std::string_view text) {
  return ownTable(key).first(hashOf(key, text), [&](const CTervixNode& node) {
    return isSameKey(key, keyText(node, key), text);
  });
}

void NodeIndex::enter(const NodeCell& cell, NodeKey key) {
  std::optional<KeyTable>& table = tableOf(own_, key);
  if (!table || !cell.isAlive())
    return;
  const std::string& text = keyText(*cell.node, key);
  if (canBeFound(key, text))
    table->insert(hashOf(key, text), {0, &cell});
}

void NodeIndex::leave(const NodeCell& cell, NodeKey key) {
  if (std::optional<KeyTable>& table = tableOf(own_, key); table && cell.isAlive())
    table->erase(hashOf(key, keyText(*cell.node, key)), {0, &cell});
}

void NodeIndex::enterProfile(const NodeCell& schematic, const NodeCell& profile, NodeKey key) {
  std::optional<KeyTable>& table = tableOf(profiles_, key);
  if (!table || !profile.isAlive())
    return;
  const std::string& text = keyText(*profile.node, key);
  if (canBeFound(key, text))
    table->insert(hashOf(key, text), {schematic.order, &profile});
}

void NodeIndex::leaveProfile(const NodeCell& schematic, const NodeCell& profile, NodeKey key) {
  if (std::optional<KeyTable>& table = tableOf(profiles_, key); table && profile.isAlive())
    table->erase(hashOf(key, keyText(*profile.node, key)), {schematic.order, &profile});
}

void NodeIndex::enterProfilesOf(const NodeCell& schematic) {
  for (const NodeKey key : kNodeKeys)
    if (tableOf(profiles_, key))
      for (const NodeCell& profile : TreeWalk::cellsOfProfiles(schematic))
        enterProfile(schematic, profile, key);
}

void NodeIndex::leaveProfilesOf(const NodeCell& schematic) {
  for (const NodeKey key : kNodeKeys)
    if (tableOf(profiles_, key))
      for (const NodeCell& profile : TreeWalk::cellsOfProfiles(schematic))
        leaveProfile(schematic, profile, key);
}

} // namespace tervix

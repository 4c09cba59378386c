#pragma once

#include "CTervixNodeList.h"
#include "CTervixProfile.h"
#include "CTervixProject.h"
#include "CTervixSchematic.h"
#include "model/NodeListing.h"

// The library's own walk over nodes. It leaves the cursors of the lists where they are: a client
// may be in the midst of its own iteration.
class TreeWalk {
public:
  using Cells = std::list<tervix::NodeCell>;

  // A list's nodes as objects of the class that the list is known to hold.
  template <class Node> class Nodes {
  public:
    class Iterator {
    public:
      explicit Iterator(Cells::const_iterator cell) : cell_(cell) {}
      Node& operator*() const { return static_cast<Node&>(*cell_->node); }
      Iterator& operator++() {
        ++cell_;
        return *this;
      }
      bool operator!=(const Iterator& other) const { return cell_ != other.cell_; }

    private:
      Cells::const_iterator cell_;
    };

    explicit Nodes(const Cells& cells) : cells_(cells) {}
    Iterator begin() const { return Iterator(cells_.begin()); }
    Iterator end() const { return Iterator(cells_.end()); }

  private:
    const Cells& cells_;
  };

  static const Cells& cellsOf(const CTervixNodeList& list) { return list.nodes_; }
  // The profiles of a listed schematic.
  static const Cells& cellsOfProfiles(const tervix::NodeCell& schematic) {
    return static_cast<const CTervixSchematic&>(*schematic.node).profiles_.nodes_;
  }

  static Nodes<CTervixProfile> profilesOf(const CTervixSchematic& schematic) {
    return Nodes<CTervixProfile>(schematic.profiles_.nodes_);
  }
  static Nodes<CTervixSchematic> schematicsOf(const CTervixProject& project) {
    return Nodes<CTervixSchematic>(project.schematicList_.nodes_);
  }

  // Calls visit(schematic, profile) for every profile of the project, schematics in list order
  // and profiles in list order, until visit returns true. Whether it did.
  template <class Visit> static bool anyProfile(const CTervixProject& project, Visit visit) {
    for (CTervixSchematic& schematic : schematicsOf(project))
      for (CTervixProfile& profile : profilesOf(schematic))
        if (visit(schematic, profile))
          return true;
    return false;
  }

  // The first profile of that key which accepts(profile) takes, found by the index.
  struct Found {
    CTervixSchematic* schematic = nullptr;
    CTervixProfile* profile = nullptr;
  };
  template <class Accepts>
  static Found firstProfile(const CTervixProject& project, tervix::NodeKey key,
                            std::string_view text, Accepts accepts) {
    const tervix::NodeCell* cell = tervix::NodeListing::indexOf(project.schematicList_)
                                       .findProfile(key, text, [&](const CTervixNode& node) {
                                         return accepts(static_cast<const CTervixProfile&>(node));
                                       });
    if (cell == nullptr)
      return {};
    return {static_cast<CTervixSchematic*>(tervix::NodeListing::holderOf(*cell)),
            static_cast<CTervixProfile*>(cell->node)};
  }
  static Found firstProfile(const CTervixProject& project, tervix::NodeKey key,
                            std::string_view text) {
    return firstProfile(project, key, text, [](const CTervixProfile&) { return true; });
  }
};

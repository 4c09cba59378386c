#pragma once

#include <list>

#include "CTervixNodeList.h"
#include "CTervixProfile.h"
#include "CTervixProject.h"
#include "CTervixSchematic.h"

// The library's own walk over nodes. It leaves the cursors of the lists where they are: a client
// may be in the midst of its own iteration.
class TreeWalk {
public:
  // A list's nodes as objects of the class that the list is known to hold.
  template <class Node> class Nodes {
  public:
    class Iterator {
    public:
      explicit Iterator(std::list<CTervixNode*>::const_iterator cell) : cell_(cell) {}
      Node& operator*() const { return static_cast<Node&>(**cell_); }
      Iterator& operator++() {
        ++cell_;
        return *this;
      }
      bool operator!=(const Iterator& other) const { return cell_ != other.cell_; }

    private:
      std::list<CTervixNode*>::const_iterator cell_;
    };

    explicit Nodes(const std::list<CTervixNode*>& cells) : cells_(cells) {}
    Iterator begin() const { return Iterator(cells_.begin()); }
    Iterator end() const { return Iterator(cells_.end()); }

  private:
    const std::list<CTervixNode*>& cells_;
  };

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
};

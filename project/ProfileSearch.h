#pragma once

#include <string>

#include "CTervixProject.h"

namespace tervix {

// The first profile in tree order with that name, or with that path for its ".sim" file; null when
// there is none.
CTervixProfile* profileNamed(const CTervixProject& project, const std::string& name);
CTervixProfile* profileWithPath(const CTervixProject& project, const std::string& simPath);

// Finds profiles by the paths of their ".sim" files, also by those that a recorded rename explains.
class SimPathSearch {
public:
  explicit SimPathSearch(const CTervixProject& project);
  // simPath is rewritten as simProfileExists says.
  CTervixProfile* find(std::string& simPath) const;

private:
  CTervixProfile* findRenamed(std::string& simPath) const;
  std::size_t placeOfChanged(const std::string& text, std::size_t from) const;

  const CTervixProject& project_;
  // How the rename shows in a path: the piece with the new name, and what it stands for. Both are
  // empty for a record that does not show in the paths of profiles.
  std::string changedPiece_;
  std::string formerPiece_;
  bool ignoresCase_ = false;
};

} // namespace tervix

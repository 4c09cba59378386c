#pragma once

#include <string>

namespace tervix::tool {

// Whole files, read and written with every error told: each throws a Failure that names the file.

std::string contentOf(const std::string& path);
bool haveSameContent(const std::string& a, const std::string& b);

// Makes a file; one that is there already is refused.
void writeNewFile(const std::string& path, const std::string& content);
// Replaces a file in one step, keeping its permissions and following a link; the old content is
// there until the new one is whole.
void writeFile(const std::string& path, const std::string& content);
// Makes a file or replaces one, in one step as well.
void writeWholeFile(const std::string& path, const std::string& content);
// The copy is compared with its source; a new one that is not the same does not stay.
void copyFile(const std::string& source, const std::string& target);

// The two halves of a replacement. What is to take the place of a file is written under a name of
// its own, on the disk before this returns; taking the place needs no more room.
std::string nameBeside(const std::string& path);
void stageFile(const std::string& path, const std::string& staged, const std::string& content);
void putInPlace(const std::string& staged, const std::string& path);

// Whether the name is in use, also by a link that leads nowhere.
bool isThere(const std::string& path);
// Whether the one file is as the other, or the beginning of it: a copy that was interrupted.
bool isBeginningOf(const std::string& path, const std::string& whole);

} // namespace tervix::tool

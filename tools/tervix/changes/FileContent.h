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
void copyFile(const std::string& source, const std::string& target);

} // namespace tervix::tool

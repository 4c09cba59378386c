#pragma once

#include <string>
#include <string_view>

namespace tervix::tool {

// Throws a Failure for a name that a design, schematic, profile or project cannot have: an empty
// one, one with a separator, a dot or a control character, or one that some file system cannot
// hold. what is the thing to be named, such as "profile".
void requireUsableName(const std::string& name, const char* what);

// Why a file or folder of that name cannot be on Windows; null when it can.
const char* reasonAgainstOnWindows(const std::string& fileName);

// Whether two names are the same to a file system that ignores case.
bool isSameName(std::string_view a, std::string_view b);
// Below, at or above 0 as a comes before b, is the same name, or comes after it.
int compareNames(std::string_view a, std::string_view b);
// In lower case, as far as isSameName goes.
std::string lowered(std::string_view text);

} // namespace tervix::tool

#pragma once

#include <cstddef>
#include <ostream>
#include <vector>

#include "tools/tervix/Style.h"
#include "tools/tervix/check/Finding.h"

namespace tervix::tool {

// How many findings of a severity there are.
std::size_t countOf(const std::vector<Finding>& findings, Severity severity);

// The findings file by file, with a last line that counts them.
void printFindings(std::ostream& out, const std::vector<Finding>& findings, const Style& style);

} // namespace tervix::tool

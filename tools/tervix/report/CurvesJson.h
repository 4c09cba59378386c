#pragma once

#include <cstddef>

#include "tools/tervix/Json.h"
#include "tools/tervix/report/Curves.h"

namespace tervix::tool {

// A plot for the page. Numbers of curves are single-precision, in base64, counted from a base so
// that small changes of a large value are not lost, and times a factor so that no value is too
// large or too small.
Json jsonOf(const CurvePlot& plot);

// How much of a page the curves of a plot take, in bytes.
std::size_t sizeOf(const CurvePlot& plot);

} // namespace tervix::tool

#pragma once

#include <CLI/App.hpp>

namespace tervix::tool {

// `tervix report FILE -o PAGE`: writes a page that shows a project, its findings and its curves.
void addReportCommand(CLI::App& app);

} // namespace tervix::tool

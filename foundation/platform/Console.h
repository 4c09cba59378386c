#pragma once

namespace tervix::platform {

// Whether standard output is a terminal that shows colours, and nobody refused them by setting
// NO_COLOR. Also prepares a console that has to be told.
bool standardOutputTakesColour();

// Whether standard error is a terminal on which a line can be drawn anew. Also prepares a console
// that has to be told.
bool standardErrorTakesProgress();

} // namespace tervix::platform

#pragma once

namespace tervix::testing {

// Has the tests of this program that cannot hold on this system skipped, each with its reason.
// False when one of them is not there any more.
bool skipTests();

} // namespace tervix::testing

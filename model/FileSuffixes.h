#pragma once

#include <array>

namespace tervix {

// The suffixes of PROFILEFILE_TYPE, in its order.
constexpr std::array<const char*, 18> kProfileFileSuffixes = {
    "csd",   "dat",     "opt.dat", "mc.dat",   "sens.dat", "opt.csd", "mc.csd", "sens.csd", "out",
    "out.1", "opt.out", "mc.out",  "sens.out", "prb",      "mrk",     "1op",    "cir",      "mif"};

// The suffixes of SCHEMATICFILE_TYPE, in its order.
constexpr std::array<const char*, 11> kSchematicFileSuffixes = {
    "net",     "als",       "par",      "opt",       "aap",        "prp",
    "opt.log", "monte.log", "sens.log", "smoke.log", "default.mrk"};

} // namespace tervix

#ifndef ZEL_DSN_READER_H
#define ZEL_DSN_READER_H

// The design reader of the suite: what a ".dsn" file says. The library loads it when a design is
// read, as "ZelDsnReader.dll" and by the name getDsnInfo, so another reader can take its place.

#include <list>
#include <string>

#if defined(_WIN32)
#if defined(ZEL_DSN_READER_BUILDING)
#define ZEL_DSN_READER_API __declspec(dllexport)
#else
#define ZEL_DSN_READER_API __declspec(dllimport)
#endif
#else
#define ZEL_DSN_READER_API __attribute__((visibility("default")))
#endif

// Appends the names of the design's schematics and sets the name of its root schematic, empty
// when the design names none. Returns 0, or another value with both left as they were.
extern "C" ZEL_DSN_READER_API int getDsnInfo(const std::string& designPath,
                                             std::string& rootSchematic,
                                             std::list<std::string>& schematics);

#endif

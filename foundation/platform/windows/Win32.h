#pragma once

// The system's header, without the macros that collide with standard names.
//
// Where this system and POSIX make different promises:
// - A read-only file cannot be removed or replaced here; there the folder's permissions decide.
// - A folder never takes the place of another one, and a file that a program holds open without
//   sharing it can be neither opened, moved nor replaced.
// - Permissions are the read-only attribute. Access lists are those that a folder hands down to
//   its new files; "readable" is asked of the attributes, so only opening a file proves it.
// - A root folder lists no "." and "..".
// - Text ends its lines with "\r\n" on disk. A Ctrl-Z in it is a character, not its end, so that
//   rewriting a file loses nothing.

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#ifndef TERVIX_EXPORT_H
#define TERVIX_EXPORT_H

// TERVIX_API marks what the shared library exports, TERVIX_LOCAL a member of an exported class
// that it does not. TERVIX_STATIC, defined by the build of the library's own objects and of
// programs that link those objects, leaves both empty on Windows.

#if defined(_WIN32)
#if defined(TERVIX_STATIC)
#define TERVIX_API
#elif defined(TERVIX_BUILDING)
#define TERVIX_API __declspec(dllexport)
#else
#define TERVIX_API __declspec(dllimport)
#endif
#define TERVIX_LOCAL
#else
#define TERVIX_API __attribute__((visibility("default")))
#define TERVIX_LOCAL __attribute__((visibility("hidden")))
#endif

#endif

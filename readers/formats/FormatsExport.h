#ifndef TERVIX_FORMATS_EXPORT_H
#define TERVIX_FORMATS_EXPORT_H

#if defined(_WIN32)
#if defined(TERVIX_FORMATS_BUILDING)
#define TERVIX_FORMATS_API __declspec(dllexport)
#else
#define TERVIX_FORMATS_API __declspec(dllimport)
#endif
#else
#define TERVIX_FORMATS_API __attribute__((visibility("default")))
#endif

#endif

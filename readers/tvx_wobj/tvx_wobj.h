#ifndef TVX_WOBJ_H
#define TVX_WOBJ_H

// The project-file reader of the suite: what a ".tvp" file says. The library links it
// dynamically and knows nothing of the file's format, so another implementation of these four
// functions can take its place.
//
// Each function returns 0 for success and appends to or fills its outputs. An item that the file
// does not have is no failure: it gives an empty list or text.

#include <list>
#include <string>

#if defined(_WIN32)
#if defined(TVX_WOBJ_BUILDING)
#define TVX_WOBJ_API __declspec(dllexport)
#else
#define TVX_WOBJ_API __declspec(dllimport)
#endif
#else
#define TVX_WOBJ_API __attribute__((visibility("default")))
#endif

// The files listed under a section.
TVX_WOBJ_API int readProjectFiles(const std::string& projectFile, const char* section,
                                  std::list<std::string>& files, std::list<std::string>& second,
                                  bool flag);

// The files listed under an item of a section.
TVX_WOBJ_API int readProjectFiles(const std::string& projectFile, const char* section,
                                  const std::string& item, std::list<std::string>& files,
                                  std::list<std::string>& second, bool flag);

// The profile files registered in the project, and the display name of its active profile.
TVX_WOBJ_API int readSimProfiles(const std::string& projectFile, std::list<std::string>& profiles,
                                 std::list<std::string>& second, std::string& activeProfile,
                                 bool flag);

// One value.
TVX_WOBJ_API int readItemFromProject(const std::string& projectFile, const char* section,
                                     const char* item, std::string& value);

#endif

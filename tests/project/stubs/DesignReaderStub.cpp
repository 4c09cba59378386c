#include <list>
#include <string>

// A stand-in for the design reader, built several times: STUB_ENTRY is the name of its entry
// point, STUB_ENDING how that ends, STUB_EXPORT what lets others find it.

extern "C" STUB_EXPORT int STUB_ENTRY(const std::string& designPath, std::string& root,
                                      std::list<std::string>& schematics);

int STUB_ENTRY(const std::string& /*designPath*/, std::string& root,
               std::list<std::string>& schematics) {
  schematics.emplace_back("STUB");
  root = "STUB";
  STUB_ENDING;
}

#include <tvx_wobj.h>

// A stand-in for the project-file reader; STUB_ENDING is how each function ends.

int readProjectFiles(const std::string& /*projectFile*/, const char* /*section*/,
                     std::list<std::string>& files, std::list<std::string>& second, bool /*flag*/) {
  files.emplace_back("stub.dsn");
  second.emplace_back("unused");
  STUB_ENDING;
}

int readProjectFiles(const std::string& /*projectFile*/, const char* /*section*/,
                     const std::string& item, std::list<std::string>& files,
                     std::list<std::string>& second, bool /*flag*/) {
  files.push_back("stub of " + item);
  second.emplace_back("unused");
  STUB_ENDING;
}

int readSimProfiles(const std::string& /*projectFile*/, std::list<std::string>& /*profiles*/,
                    std::list<std::string>& second, std::string& activeProfile, bool /*flag*/) {
  activeProfile = "stub";
  second.emplace_back("unused");
  STUB_ENDING;
}

int readItemFromProject(const std::string& /*projectFile*/, const char* /*section*/,
                        const char* /*item*/, std::string& value) {
  value = "stub.out";
  STUB_ENDING;
}

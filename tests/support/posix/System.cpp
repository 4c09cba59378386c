#include "tests/support/System.h"

#include <array>
#include <cerrno>
#include <csignal>

#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace tervix::testing {
namespace {

class ResourceLimit {
public:
  ResourceLimit(__rlimit_resource resource, rlim_t limit) : resource_(resource) {
    EXPECT_EQ(getrlimit(resource_, &former_), 0);
    const rlimit lowered{limit, former_.rlim_max};
    EXPECT_EQ(setrlimit(resource_, &lowered), 0);
  }
  ~ResourceLimit() { EXPECT_EQ(setrlimit(resource_, &former_), 0); }
  ResourceLimit(const ResourceLimit&) = delete;
  ResourceLimit& operator=(const ResourceLimit&) = delete;

private:
  __rlimit_resource resource_;
  rlimit former_{};
};

} // namespace

bool makePipe(const std::string& path) {
  return mkfifo(path.c_str(), 0600) == 0;
}

bool makeSocket(const std::string& path) {
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  if (path.size() >= sizeof(address.sun_path))
    return false;
  path.copy(address.sun_path, path.size());
  const int file = socket(AF_UNIX, SOCK_STREAM, 0);
  const bool isMade = bind(file, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
  close(file);
  return isMade;
}

bool canBeAFileName(std::string_view name) {
  return name.find_first_of(std::string_view("/\0", 2)) == std::string_view::npos;
}

std::string inTextMode(const std::string& content) {
  return content;
}

std::string asText(std::string content) {
  return content;
}

std::string fullPath(const std::string& path) {
  return path;
}

std::string impossibleFolder() {
  return "/proc/new";
}

bool setModified(const std::string& file, std::time_t seconds) {
  const std::array<timespec, 2> times = {{{seconds, 0}, {seconds, 999999999}}};
  return utimensat(AT_FDCWD, file.c_str(), times.data(), 0) == 0;
}

std::uint64_t fileNumber(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
  return status.st_ino;
}

LoadedLibrary::LoadedLibrary(const std::string& path)
    : handle_(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)) {}

LoadedLibrary::~LoadedLibrary() {
  if (handle_ != nullptr)
    dlclose(handle_);
}

void* LoadedLibrary::symbol(const char* name) const {
  return handle_ == nullptr ? nullptr : dlsym(handle_, name);
}

struct FullDisk::Limit {
  explicit Limit(std::uint64_t bytes) : size(RLIMIT_FSIZE, bytes) {}
  ResourceLimit size;
  void (*formerHandler)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

FullDisk::FullDisk(std::uint64_t bytes) : limit_(std::make_unique<Limit>(bytes)) {}

FullDisk::~FullDisk() {
  std::signal(SIGXFSZ, limit_->formerHandler);
}

struct NoFreeDescriptor::Limit {
  ResourceLimit files{RLIMIT_NOFILE, 0};
};

NoFreeDescriptor::NoFreeDescriptor() : limit_(std::make_unique<Limit>()) {}
NoFreeDescriptor::~NoFreeDescriptor() = default;

UnprivilegedUser::UnprivilegedUser() : wasRoot_(geteuid() == 0) {
  constexpr uid_t kNobody = 65534;
  if (wasRoot_) {
    const bool changed = setresuid(kNobody, kNobody, 0) == 0;
    EXPECT_TRUE(changed || errno == EINVAL);
  }
}

UnprivilegedUser::~UnprivilegedUser() {
  if (!wasRoot_)
    return;
  EXPECT_EQ(setresuid(0, 0, 0), 0);
  // Leaving root made the process invisible to the leak checker.
  prctl(PR_SET_DUMPABLE, 1, 0, 0, 0);
}

bool UnprivilegedUser::isInForce() const {
  return geteuid() != 0;
}

} // namespace tervix::testing

// Reads during which one memory allocation fails, each in turn.

#include "DesignReader.h"
#include "ReaderFixture.h"

#include <cstdlib>
#include <functional>
#include <new>

namespace {

// How many allocations succeed before one fails; negative when none is to fail.
long allocationsLeft = -1;

void* allocate(std::size_t size) {
  if (allocationsLeft == 0) {
    allocationsLeft = -1;
    throw std::bad_alloc();
  }
  if (allocationsLeft > 0) {
    --allocationsLeft;
  }
  if (void* const memory = std::malloc(size == 0 ? 1 : size)) {
    return memory;
  }
  throw std::bad_alloc();
}

} // namespace

void* operator new(std::size_t size) {
  return allocate(size);
}
void* operator new[](std::size_t size) {
  return allocate(size);
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete[](void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace {

class OutOfMemoryTest : public ReaderFixture {
protected:
  // Returns how many reads failed before one needed no more than it got.
  int failEachAllocation(const std::function<int()>& read) {
    for (int failures = 0;; ++failures) {
      allocationsLeft = failures;
      const int status = read();
      const bool allocationFailed = allocationsLeft < 0;
      allocationsLeft = -1;
      if (!allocationFailed) {
        EXPECT_EQ(status, 0);
        return failures;
      }
      EXPECT_NE(status, 0) << failures;
      expectUntouchedOutputs();
      EXPECT_TRUE(tervix::formats::lastMistake());
      if (HasFailure()) {
        return failures;
      }
    }
  }
};

TEST_F(OutOfMemoryTest, ProjectReadsFailCleanly) {
  const std::string project = folder.write("a project with a name that needs memory.tvp",
                                           "[\"Simulation Profiles\"]\n"
                                           "Files = [\"a file name that is not a short one\"]\n"
                                           "Active = \"a profile name that is not a short one\"\n");
  EXPECT_GT(failEachAllocation([&] { return readProfiles(project); }), 10);
  EXPECT_EQ(files.size(), 2U);
  EXPECT_EQ(text, "a profile name that is not a short one");
}

TEST_F(OutOfMemoryTest, DesignReadsFailCleanly) {
  const std::string design = folder.write("a design with a name that needs memory.dsn",
                                          "[Design]\nSchematics = [\"TOP\", \"BIAS\"]\n");
  const DesignReader reader;
  EXPECT_GT(failEachAllocation([&] { return reader.read(design, text, files); }), 10);
  EXPECT_EQ(files.size(), 3U);
}

TEST_F(OutOfMemoryTest, RefusalsStayRefusals) {
  const std::string project = folder.write("p.tvp", "[\"Design Resources\"]\nFiles = 1\n");
  for (long allocations = 0; allocations < 100; ++allocations) {
    allocationsLeft = allocations;
    const int status = readSection(project);
    allocationsLeft = -1;
    EXPECT_NE(status, 0) << allocations;
    EXPECT_TRUE(tervix::formats::lastMistake());
  }
}

} // namespace

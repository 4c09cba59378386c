// Reads during which one memory allocation fails, each in turn.

#include "DesignReader.h"
#include "EditableFile.h"
#include "ReaderFixture.h"

#include <cstdlib>
#include <functional>
#include <new>
#include <utility>

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

using tervix::formats::EditableFile;

TEST_F(OutOfMemoryTest, EditsFailCleanly) {
  const std::string before = "[Design]\nFiles = [\n  'a file name that is not a short one',\n]\n";
  const std::string project = folder.write("a project with a name that needs memory.tvp", before);
  const std::vector<std::string> twoNames = {"b", "a second file name that is not a short one"};
  const std::vector<std::function<bool(EditableFile&)>> edits = {
      [](EditableFile& file) { return file.addToList("Design", "Files", "b"); },
      [](EditableFile& file) { return file.addToList("Tervix Resources", "Model Libraries", "b"); },
      [twoNames](EditableFile& file) { return file.addAllToList("Design", "Files", twoNames); },
      [](EditableFile& file) { return file.setText("Design", "Root", "TOP"); },
      [](EditableFile& file) { return file.removeElement("Design", "Files", 0); },
      [](EditableFile& file) { return file.replaceElement("Design", "Files", 0, "b"); },
  };
  for (const auto& edit : edits) {
    auto file = EditableFile::open(project);
    ASSERT_TRUE(file);
    const auto attempt = [&] {
      EXPECT_EQ(file->text(), before);
      return edit(*file) ? 0 : 1;
    };
    EXPECT_GT(failEachAllocation(attempt), 10);
    EXPECT_NE(file->text(), before);
  }
}

TEST_F(OutOfMemoryTest, OpeningAndSavingFailCleanly) {
  const std::string before = "# a comment that needs memory, as do most\n[s]\na = 1\n";
  const std::string project = folder.write("a project with a name that needs memory.tvp", before);
  std::optional<EditableFile> file;
  const auto open = [&] {
    file = EditableFile::open(project);
    return file ? 0 : 1;
  };
  EXPECT_GT(failEachAllocation(open), 10);
  ASSERT_TRUE(file->setText("s", "b", "2"));
  const auto save = [&] {
    const bool saved = file->save();
    const long left = std::exchange(allocationsLeft, -1);
    const std::string expected = saved ? file->text() : before;
    EXPECT_EQ(std::filesystem::file_size(project), expected.size());
    allocationsLeft = left;
    return saved ? 0 : 1;
  };
  EXPECT_GT(failEachAllocation(save), 5);
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

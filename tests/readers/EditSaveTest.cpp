// Saving: the file is replaced as a whole, or it is as it was.

#include "EditFixture.h"

#include "tests/support/System.h"

#include <sstream>

namespace {

namespace fs = std::filesystem;

std::string contentOf(const std::string& file) {
  std::ostringstream bytes;
  bytes << std::ifstream(file, std::ios::binary).rdbuf();
  return bytes.str();
}

std::size_t filesIn(const std::string& folder) {
  return static_cast<std::size_t>(
      std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

class EditSaveTest : public EditFixture {
protected:
  void expectSaveRefused(EditableFile& file, std::string_view message) {
    EXPECT_FALSE(file.save());
    const auto mistake = tervix::formats::lastMistake();
    ASSERT_TRUE(mistake);
    EXPECT_EQ(mistake->text, message);
    EXPECT_EQ(mistake->line, 0U);
  }

  const std::string path = folder.path("p.tvp");
};

TEST_F(EditSaveTest, FileGetsTheTextToTheByte) {
  EditableFile file = opened("\xEF\xBB\xBF# c\r\n[s]\r\nf = ['a']");
  EXPECT_TRUE(file.addToList("s", "f", "é"));
  EXPECT_EQ(contentOf(path), "\xEF\xBB\xBF# c\r\n[s]\r\nf = ['a']");
  EXPECT_TRUE(file.save());
  EXPECT_EQ(contentOf(path), "\xEF\xBB\xBF# c\r\n[s]\r\nf = ['a', \"é\"]");
  EXPECT_EQ(filesIn(folder.path()), 1U);
}

TEST_F(EditSaveTest, EditsGoOnAfterASave) {
  EditableFile file = opened("[s]\n");
  EXPECT_TRUE(file.setText("s", "a", "1"));
  EXPECT_TRUE(file.save());
  EXPECT_TRUE(file.setText("s", "a", "2"));
  EXPECT_TRUE(file.save());
  EXPECT_EQ(contentOf(path), "[s]\na = \"2\"\n");
}

TEST_F(EditSaveTest, WithoutAChangeTheFileIsNotTouched) {
  EditableFile file = opened("[s]\nf = ['x']\n");
  const auto before = tervix::testing::fileNumber(path);
  EXPECT_TRUE(file.addToList("s", "f", "y"));
  EXPECT_TRUE(file.removeFromList("s", "f", "y"));
  EXPECT_TRUE(file.save());
  EXPECT_EQ(tervix::testing::fileNumber(path), before);
}

TEST_F(EditSaveTest, PermissionsStay) {
  for (const fs::perms mode :
       {fs::perms(0640), fs::perms(0600), fs::perms(0666), fs::perms(0755)}) {
    EditableFile file = opened("[s]\n");
    fs::permissions(path, mode);
    EXPECT_TRUE(file.setText("s", "a", "1"));
    EXPECT_TRUE(file.save());
    EXPECT_EQ(fs::status(path).permissions(), mode);
    fs::remove(path);
  }
}

TEST_F(EditSaveTest, LinkStaysALink) {
  fs::create_directory(folder.path("elsewhere"));
  const std::string target = folder.write("elsewhere/real.tvp", "[s]\n");
  fs::create_symlink("elsewhere/real.tvp", folder.path("inner.tvp"));
  fs::create_symlink("inner.tvp", folder.path("outer.tvp"));
  auto file = EditableFile::open(folder.path("outer.tvp"));
  ASSERT_TRUE(file);
  EXPECT_TRUE(file->setText("s", "a", "1"));
  EXPECT_TRUE(file->save());
  EXPECT_TRUE(fs::is_symlink(folder.path("outer.tvp")));
  EXPECT_TRUE(fs::is_symlink(folder.path("inner.tvp")));
  EXPECT_EQ(contentOf(target), "[s]\na = \"1\"\n");
  EXPECT_EQ(filesIn(folder.path("elsewhere")), 1U);
}

TEST_F(EditSaveTest, FileOfALongNameInTheCurrentFolder) {
  const fs::path before = fs::current_path();
  fs::current_path(folder.path());
  const std::string name = std::string(250, 'n') + ".tvp";
  folder.write(name, "");
  auto file = EditableFile::open(name);
  ASSERT_TRUE(file);
  EXPECT_TRUE(file->setText("s", "a", "1"));
  EXPECT_TRUE(file->save());
  fs::current_path(before);
  EXPECT_EQ(contentOf(folder.path(name)), "[s]\na = \"1\"\n");
}

TEST_F(EditSaveTest, FullDiskLeavesTheFile) {
  const std::string before = "# " + std::string(20000, 'c') + "\n[s]\n";
  EditableFile file = opened(before);
  EXPECT_TRUE(file.setText("s", "a", "1"));
  for (const std::size_t size : {std::size_t{0}, std::size_t{100}, std::size_t{before.size()}}) {
    const tervix::testing::FullDisk disk(size);
    expectSaveRefused(file,
                      "the new text cannot be written to the file's folder; the file is as it was");
  }
  EXPECT_EQ(contentOf(path), before);
  EXPECT_EQ(filesIn(folder.path()), 1U);
  EXPECT_TRUE(file.save());
  EXPECT_EQ(contentOf(path), before + "a = \"1\"\n");
}

TEST_F(EditSaveTest, ChangeByAnotherProgramIsNotOverwritten) {
  EditableFile file = opened("[s]\n");
  EXPECT_TRUE(file.setText("s", "a", "1"));
  folder.write("p.tvp", "[s]\nb = 2\n");
  expectSaveRefused(file, "the file has been changed meanwhile by another program");
  EXPECT_EQ(contentOf(path), "[s]\nb = 2\n");
}

TEST_F(EditSaveTest, FileThatIsGoneIsNotMadeAgain) {
  EditableFile file = opened("[s]\n");
  EXPECT_TRUE(file.setText("s", "a", "1"));
  fs::remove(path);
  expectSaveRefused(file, "the file does not exist");
  EXPECT_EQ(filesIn(folder.path()), 0U);
}

TEST_F(EditSaveTest, FileThatMayNotBeWritten) {
  EditableFile file = opened("[s]\n");
  EXPECT_TRUE(file.setText("s", "a", "1"));
  fs::permissions(path, fs::perms(0444));
  fs::permissions(folder.path(), fs::perms(0777));
  {
    const tervix::testing::UnprivilegedUser user;
    expectSaveRefused(file, "the file cannot be opened for writing");
  }
  EXPECT_EQ(contentOf(path), "[s]\n");
}

TEST_F(EditSaveTest, FolderThatMayNotBeWritten) {
  EditableFile file = opened("[s]\n");
  EXPECT_TRUE(file.setText("s", "a", "1"));
  fs::permissions(path, fs::perms(0666));
  fs::permissions(folder.path(), fs::perms(0555));
  {
    const tervix::testing::UnprivilegedUser user;
    expectSaveRefused(file,
                      "the new text cannot be written to the file's folder; the file is as it was");
  }
  fs::permissions(folder.path(), fs::perms(0755));
  EXPECT_EQ(contentOf(path), "[s]\n");
}

TEST_F(EditSaveTest, CopyIsAnIndependentValue) {
  EditableFile first = opened("[s]\n");
  EditableFile second = first;
  EXPECT_TRUE(first.setText("s", "a", "1"));
  EXPECT_EQ(second.text(), "[s]\n");
  EXPECT_TRUE(first.save());
  EXPECT_TRUE(second.setText("s", "a", "2"));
  EXPECT_FALSE(second.save());
}

} // namespace

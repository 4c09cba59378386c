// Random edits of random files, beside a plain model of what the files hold.

#include "EditFixture.h"
#include "ProjectFile.h"

#include <algorithm>
#include <array>
#include <map>
#include <random>
#include <set>

namespace {

class Dice {
public:
  explicit Dice(unsigned seed) : engine_(seed) {}
  std::size_t below(std::size_t count) { return engine_() % count; }
  bool toss() { return below(2) == 0; }
  template <typename Choices> auto pick(const Choices& choices) {
    return choices[below(choices.size())];
  }

private:
  std::mt19937 engine_;
};

const std::array<std::string, 3> sections = {"s", "Tervix Resources", "s.t é"};
const std::array<std::string, 3> items = {"f", "Model Libraries", "g\"h"};
const std::array<std::string, 8> values = {"a", "b", "old\\a", "é#", "]", "\"q\"", "", "l\nm"};

std::string basic(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    quoted += c == '\n' ? "\\n" : c == '"' || c == '\\' ? std::string("\\") + c : std::string(1, c);
  }
  return quoted + '"';
}

// The values of all lists, and the comments that a file has to keep.
struct Model {
  std::map<std::string, std::map<std::string, Values>> lists;
  std::set<std::string> comments;
};

// Writes a random file and notes in the model what it holds.
class Writer {
public:
  Writer(Dice& dice, Model& model) : dice_(dice), model_(model) {}

  std::string document() {
    lineBreak_ = dice_.toss() ? "\n" : "\r\n";
    std::string text = dice_.below(4) == 0 ? "\xEF\xBB\xBF" : "";
    std::string below;
    for (const std::string& section : sections) {
      switch (dice_.below(5)) {
      case 0:
        break;
      case 1:
        text += dotted(section);
        break;
      case 2:
        text += inlineTable(section);
        break;
      case 3:
        below +=
            "[" + key(section) + ".sub]" + end() + "f = [1, # " + mark() + lineBreak_ + "]" + end();
        [[fallthrough]];
      default:
        below += table(section);
      }
    }
    text += "other = [ { f = [ 'x' ] }, nan ]" + end() + below;
    return dice_.toss() ? text : text.substr(0, text.size() - lineBreak_.size());
  }

private:
  std::string mark() {
    const std::string comment = "] \"c" + std::to_string(++marks_) + "' =,";
    model_.comments.insert(comment);
    return comment;
  }
  std::string blanks() { return std::string(dice_.below(3), dice_.toss() ? ' ' : '\t'); }
  std::string comment() { return dice_.toss() ? "" : blanks() + "# " + mark(); }
  std::string end() { return comment() + lineBreak_; }

  // Somewhere between the elements of a list.
  std::string gap() {
    std::string text = blanks();
    for (std::size_t lines = dice_.below(8); lines > 5; --lines) {
      text += end() + blanks();
    }
    return text;
  }

  std::string key(const std::string& name) {
    const bool isPlain = name.find('"') == std::string::npos;
    if (name.size() == 1 && dice_.toss()) {
      return name;
    }
    return isPlain && dice_.toss() ? "'" + name + "'" : basic(name);
  }

  std::string quoted(const std::string& text) {
    switch (dice_.below(4)) {
    case 0:
      return "'''" + lineBreak_ + text + "'''";
    case 1:
      return "\"\"\"\\" + lineBreak_ + "  " + basic(text).substr(1) + "\"\"";
    case 2:
      return text.find('\n') == std::string::npos ? "'" + text + "'" : basic(text);
    default:
      return basic(text);
    }
  }

  // Lists of one element to a line are what people write most.
  std::string list(Values& held) {
    const bool isPerLine = dice_.toss();
    const auto between = [&] { return isPerLine ? end() + "  " : gap(); };
    std::string text = "[";
    const std::size_t count = dice_.below(4);
    for (std::size_t i = 0; i < count; ++i) {
      held.push_back(dice_.pick(values));
      text += between() + quoted(held.back()) + (isPerLine ? "" : gap());
      text += i + 1 < count || dice_.toss() ? "," : "";
    }
    return text + (isPerLine ? end() : gap()) + "]";
  }

  using Piece = std::function<std::string()>;

  std::string assignments(const std::string& section, const Piece& before, const Piece& after) {
    std::string text;
    for (const std::string& item : items) {
      if (dice_.toss()) {
        text += before() + key(item) + blanks() + "=" + blanks();
        text += list(model_.lists[section][item]) + after();
      }
    }
    return text;
  }

  std::string dotted(const std::string& section) {
    return assignments(
        section, [&] { return blanks() + key(section) + blanks() + "." + blanks(); },
        [&] { return end(); });
  }
  std::string table(const std::string& section) {
    const std::string header = blanks() + "[" + blanks() + key(section) + blanks() + "]" + end();
    return header +
           assignments(
               section, [] { return "  "; }, [&] { return end(); }) +
           (dice_.toss() ? end() : "");
  }
  std::string inlineTable(const std::string& section) {
    const std::string lists = assignments(
        section, [] { return ""; }, [] { return ", "; });
    return key(section) + " = {" + lists + "other = {}" + blanks() + "}" + end();
  }

  Dice& dice_;
  Model& model_;
  std::string lineBreak_;
  int marks_ = 0;
};

// The comment that ends an element's own line is about the element and goes with it.
std::set<std::string> commentsOn(const std::string& text, const std::set<std::string>& comments) {
  std::set<std::string> found;
  std::copy_if(comments.begin(), comments.end(), std::inserter(found, found.begin()),
               [&](const std::string& comment) { return text.find(comment) != std::string::npos; });
  return found;
}

class EditRandomTest : public EditFixture {
protected:
  // Returns whether the edit may take a comment with it.
  static bool editBoth(Dice& dice, EditableFile& file, Model& model) {
    const std::string section = dice.pick(sections);
    const std::string item = dice.pick(items);
    Values& list = model.lists[section][item];
    const std::string value = dice.pick(values);
    const std::size_t kind = dice.below(3);
    if (kind == 0 || list.empty()) {
      EXPECT_TRUE(file.addToList(section, item, value));
      list.push_back(value);
      return false;
    }
    const std::size_t index = dice.below(list.size());
    if (kind == 1) {
      EXPECT_TRUE(file.replaceElement(section, item, index, value));
      list[index] = value;
      return false;
    }
    EXPECT_TRUE(file.removeElement(section, item, index));
    list.erase(list.begin() + static_cast<std::ptrdiff_t>(index));
    return true;
  }

  static void expectSame(const EditableFile& file, const Model& model) {
    for (const std::string& section : sections) {
      for (const std::string& item : items) {
        const auto found = model.lists.find(section);
        const bool known = found != model.lists.end() && found->second.count(item) != 0;
        EXPECT_EQ(file.elementsOf(section, item), known ? found->second.at(item) : Values{});
      }
    }
  }
};

TEST_F(EditRandomTest, ListsHoldWhatTheyShouldAndCommentsStay) {
  for (unsigned seed = 0; seed < 100; ++seed) {
    Dice dice(seed);
    Model model;
    const std::string before = Writer(dice, model).document();
    EditableFile file = opened(before);
    expectSame(file, model);
    std::string trace = before;
    for (int edits = 0; edits < 12 && !HasFailure(); ++edits) {
      const bool mayTakeComment = editBoth(dice, file, model);
      const auto kept = commentsOn(file.text(), model.comments);
      EXPECT_LE(model.comments.size() - kept.size(), mayTakeComment ? 1U : 0U);
      model.comments = kept;
      expectSame(file, model);
      trace += "\n----\n" + file.text();
    }
    ASSERT_FALSE(HasFailure()) << "seed " << seed << "\n" << trace;
  }
}

TEST_F(EditRandomTest, WhatIsAddedAtTheEndCanBeRemovedAgain) {
  for (unsigned seed = 0; seed < 100; ++seed) {
    Dice dice(seed);
    Model model;
    EditableFile file = opened(Writer(dice, model).document());
    const std::string section = dice.pick(sections);
    const std::string item = dice.pick(items);
    const std::size_t count = model.lists[section][item].size();
    EXPECT_TRUE(file.addToList(section, item, "x"));
    EXPECT_TRUE(file.removeElement(section, item, count));
    EXPECT_EQ(commentsOn(file.text(), model.comments), model.comments);
    expectSame(file, model);
    ASSERT_FALSE(HasFailure()) << "seed " << seed << "\n" << file.text();
  }
}

TEST_F(EditRandomTest, SeveralAtOnceAreAddedAsOneByOne) {
  for (unsigned seed = 0; seed < 300; ++seed) {
    Dice dice(seed);
    Model model;
    const std::string before = Writer(dice, model).document();
    const std::string section = dice.pick(sections);
    const std::string item = dice.pick(items);
    Values added(dice.below(4));
    std::generate(added.begin(), added.end(), [&] { return dice.pick(values); });
    EditableFile oneByOne = opened(before);
    for (const std::string& value : added) {
      EXPECT_TRUE(oneByOne.addToList(section, item, value));
    }
    EditableFile atOnce = opened(before);
    EXPECT_TRUE(atOnce.addAllToList(section, item, added));
    ASSERT_EQ(atOnce.text(), oneByOne.text()) << "seed " << seed << "\n" << before;
  }
}

// Much of such a file is still TOML, if not what any person would write.
TEST_F(EditRandomTest, DamagedFileIsEditedRightOrNotAtAll) {
  constexpr std::string_view pieces = "[]{}=,.#\"'\\ \t\n\r-s1";
  int edited = 0;
  for (unsigned seed = 0; seed < 500; ++seed) {
    Dice dice(seed);
    Model model;
    std::string text = Writer(dice, model).document();
    for (std::size_t damages = 1 + dice.below(3); damages > 0; --damages) {
      text.replace(dice.below(text.size()), dice.below(3), 1, dice.pick(pieces));
    }
    auto file = EditableFile::open(folder.write("p.tvp", text));
    if (!file) {
      continue;
    }
    const std::string section = dice.pick(sections);
    const std::string item = dice.pick(items);
    const auto before = file->elementsOf(section, item);
    if (file->addToList(section, item, "x")) {
      EXPECT_EQ(file->elementsOf(section, item)->size(), before->size() + 1);
      EXPECT_TRUE(file->removeElement(section, item, before->size()));
      EXPECT_EQ(file->elementsOf(section, item), before);
      ++edited;
    } else {
      EXPECT_EQ(file->text(), text);
    }
    ASSERT_FALSE(HasFailure()) << "seed " << seed << "\n" << text;
  }
  EXPECT_GT(edited, 10);
}

TEST_F(EditRandomTest, OtherReadersFindTheSameInTheSavedFile) {
  for (unsigned seed = 1000; seed < 1020; ++seed) {
    Dice dice(seed);
    Model model;
    EditableFile file = opened(Writer(dice, model).document());
    editBoth(dice, file, model);
    ASSERT_TRUE(file.save());
    for (const auto& [section, lists] : model.lists) {
      for (const auto& [item, list] : lists) {
        const auto read = tervix::formats::readFileList(folder.path("p.tvp"), section, item);
        ASSERT_TRUE(read);
        EXPECT_EQ(Values(read->begin(), read->end()), list);
      }
    }
  }
}

} // namespace

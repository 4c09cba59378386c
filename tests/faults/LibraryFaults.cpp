#include "tests/faults/LibraryFaults.h"

#include <algorithm>
#include <iostream>
#include <sstream>

#include <gtest/gtest.h>
#include <unistd.h>

#include "foundation/ErrorTable.h"
#include "foundation/LastError.h"
#include "tests/faults/FaultList.h"
#include "tests/faults/FaultyRun.h"

namespace tervix::testing {
namespace {

constexpr unsigned long kOtherError = 4711;

// What the operation answered, and what it left as the last error.
struct Answer {
  bool isThere = false;
  unsigned long status = 0;
  unsigned long code = 0;
  std::string text;
};

void answer(const LibraryOperation& operation, const std::string& folder) {
  try {
    setLastErrorCode(kOtherError);
    const unsigned long status = operation.run(folder);
    unsigned long code = 0;
    std::string text;
    getLastErrorCode(code);
    getLastErrorString(text);
    std::cout << status << " " << code << " " << text << std::flush;
  } catch (...) {
    std::cerr << "an exception left the library" << std::flush;
  }
  _exit(0);
}

Answer answerIn(const std::string& output) {
  std::istringstream stream(output);
  Answer answer;
  answer.isThere = static_cast<bool>(stream >> answer.status >> answer.code);
  std::getline(stream >> std::ws, answer.text);
  return answer;
}

bool isScrap(const std::string& name) {
  const std::string file = name.substr(name.rfind('/') + 1);
  return file.rfind(".tervix-", 0) == 0 ||
         (file.size() > 4 && file.compare(file.size() - 4, 4, ".bak") == 0);
}

Files withoutScraps(Files files) {
  for (auto file = files.begin(); file != files.end();)
    file = isScrap(file->first) ? files.erase(file) : std::next(file);
  return files;
}

class Session {
public:
  explicit Session(const LibraryOperation& operation)
      : operation_(operation), before_(tree_.fill(operation.prepare)) {}

  void run() {
    const FaultyRun plain = runWith({});
    after_ = tree_.files();
    const Answer answer = answerIn(plain.output);
    ASSERT_TRUE(answer.isThere) << plain.errors;
    ASSERT_EQ(answer.status, 0U) << answer.text;
    ASSERT_FALSE(plain.calls.empty());
    calls_ = &plain.calls;
    for (const Fault& fault : faultsFor(plain.calls, Choice::kMost))
      tryFault(fault);
  }

private:
  FaultyRun runWith(const Fault& fault) {
    return runWithFault(
        tree_.path(), fault, [this] { answer(operation_, tree_.path()); }, operation_.counting);
  }

  void tryFault(const Fault& fault) {
    const FaultTally tally;
    std::ostringstream what;
    what << fault << ", " << calls_->at(fault.call).name;
    SCOPED_TRACE(what.str());
    tree_.reset(before_);
    const FaultyRun run = runWith(fault);
    const Files found = tree_.files();
    SCOPED_TRACE(run.output + run.errors + differences(before_, found));
    EXPECT_EQ(run.leftOpen, std::vector<std::string>());
    if (!run.wasKilled)
      expectAnswer(run, found, isTold(fault));
    expectNothingLost(found);
    expectSucceedsFrom(found);
  }

  // A file that cannot be looked at counts as one that is not there, and a file of a copied folder
  // that cannot take its new name is no failure; both are so by promise.
  bool isTold(const Fault& fault) const {
    const std::string& call = calls_->at(fault.call).name;
    return !operation_.tellsLastOnly && call != "access" && call != "fstatat" && call != "rename";
  }

  void expectAnswer(const FaultyRun& run, const Files& found, bool isTold) const {
    const Answer answer = answerIn(run.output);
    EXPECT_EQ(run.status, 0) << run.errors;
    ASSERT_TRUE(answer.isThere) << run.errors;
    if (answer.status == 0 && isTold) {
      EXPECT_TRUE(withoutScraps(found) == after_)
          << "done, it says: " << differences(after_, found);
    }
    if (answer.status <= 1)
      return;
    EXPECT_EQ(answer.code, answer.status);
    std::string text;
    long category = 0;
    EXPECT_EQ(getErrorTemplate(text, category, answer.status), 0U);
    const std::size_t place = text.find("%s");
    EXPECT_EQ(answer.text.find(text.substr(0, place)), 0U);
    if (place != std::string::npos) {
      EXPECT_NE(answer.text.find(tree_.path()), std::string::npos);
    }
  }

  void expectNothingLost(const Files& found) const {
    for (const auto& [name, content] : before_) {
      const auto now = found.find(name);
      const auto goal = after_.find(name);
      const bool isKept = now != found.end() && now->second == content;
      const bool isDone = goal == after_.end() ? now == found.end() && isIn(found, content)
                                               : now != found.end() && now->second == goal->second;
      EXPECT_TRUE(isKept || isDone || operation_.torn.count(name) != 0) << name;
    }
  }

  // Under any name, unless the operation is there to delete it.
  bool isIn(const Files& found, const std::string& content) const {
    const auto holds = [&](const auto& file) { return file.second == content; };
    return std::any_of(found.begin(), found.end(), holds) ||
           std::none_of(after_.begin(), after_.end(), holds);
  }

  void expectSucceedsFrom(const Files& found) {
    if (found == after_ || !succeeded_.insert(found).second)
      return;
    const FaultyRun again = runWith({});
    const Answer answer = answerIn(again.output);
    EXPECT_TRUE(answer.isThere) << again.errors;
    EXPECT_EQ(answer.status, 0U) << "done again: " << answer.text;
    EXPECT_TRUE(withoutScraps(tree_.files()) == after_)
        << "done again: " << differences(after_, tree_.files());
  }

  const LibraryOperation& operation_;
  FaultyTree tree_;
  Files before_;
  Files after_;
  const std::vector<MadeCall>* calls_ = nullptr;
  std::set<Files> succeeded_;
};

} // namespace

void expectSurvivesFaults(const LibraryOperation& operation) {
  Session(operation).run();
}

} // namespace tervix::testing

#include "tests/faults/FaultList.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>

#include <gtest/gtest.h>

namespace tervix::testing {
namespace {

constexpr std::size_t kEarlyStep = 7;
constexpr std::size_t kSparseStep = 17;

int tried = 0;
int survived = 0;

int failuresSoFar() {
  const auto* const test = ::testing::UnitTest::GetInstance()->current_test_info();
  return test == nullptr ? 0 : test->result()->total_part_count();
}

} // namespace

bool isEveryFaultTried() {
  return std::getenv("TERVIX_EVERY_FAULT") != nullptr;
}

std::vector<Fault> faultsFor(const std::vector<MadeCall>& calls, Choice choice) {
  const auto isChange = [](const MadeCall& call) { return call.changes; };
  const auto firstChange =
      static_cast<std::size_t>(std::find_if(calls.begin(), calls.end(), isChange) - calls.begin());
  const bool isEvery = isEveryFaultTried();
  const bool isSome = choice == Choice::kSome && !isEvery;
  std::vector<Fault> faults;
  for (std::size_t i = 0; i < calls.size(); ++i) {
    const MadeCall& call = calls[i];
    const bool isWhole = isEvery || call.changes;
    const std::size_t step = isSome ? kSparseStep : i < firstChange ? kEarlyStep : 1;
    if (!isWhole && i % step != 0)
      continue;
    if (isWhole && !isSome)
      for (const int error : call.errors)
        faults.push_back({Fault::Kind::kError, i, error});
    else
      faults.push_back({Fault::Kind::kError, i, call.errors[i % call.errors.size()]});
    if (isWhole)
      faults.push_back({Fault::Kind::kKill, i, 0});
    if (call.canBeShort && (!isSome || i % 2 == 0))
      faults.push_back({Fault::Kind::kShort, i, 0});
    if (call.takesRoom && (!isSome || i % 4 == 0))
      faults.push_back({Fault::Kind::kFullDisk, i, 0});
  }
  return faults;
}

FaultTally::FaultTally() : failuresBefore_(failuresSoFar()) {}

FaultTally::~FaultTally() {
  ++tried;
  if (failuresSoFar() == failuresBefore_)
    ++survived;
}

void printFaultTally() {
  std::cout << "faults: " << tried << " tried, " << survived << " survived" << std::endl;
}

} // namespace tervix::testing

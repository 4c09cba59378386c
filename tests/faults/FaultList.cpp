#include "tests/faults/FaultList.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>

#include <gtest/gtest.h>

namespace tervix::testing {
namespace {

constexpr std::size_t kEarlyStep = 7;
constexpr std::size_t kSomeFaults = 120;

int tried = 0;
int survived = 0;

// Every so manyth; the step shares no factor with the number of faults that a call often has.
std::vector<Fault> spread(const std::vector<Fault>& faults) {
  std::size_t step = std::max<std::size_t>(1, faults.size() / kSomeFaults);
  step += step > 1 && step % 2 == 0 ? 1 : 0;
  std::vector<Fault> some;
  for (std::size_t i = 0; i < faults.size(); i += step)
    some.push_back(faults[i]);
  return some;
}

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
  std::vector<Fault> faults;
  for (std::size_t i = 0; i < calls.size(); ++i) {
    const MadeCall& call = calls[i];
    const bool isWhole = isEveryFaultTried() || call.changes;
    if (!isWhole && i < firstChange && i % kEarlyStep != 0)
      continue;
    if (isWhole)
      for (const int error : call.errors)
        faults.push_back({Fault::Kind::kError, i, error});
    else
      faults.push_back({Fault::Kind::kError, i, call.errors[i % call.errors.size()]});
    if (isWhole)
      faults.push_back({Fault::Kind::kKill, i, 0});
    if (call.canBeShort)
      faults.push_back({Fault::Kind::kShort, i, 0});
    if (call.takesRoom)
      faults.push_back({Fault::Kind::kFullDisk, i, 0});
  }
  return choice == Choice::kSome && !isEveryFaultTried() ? spread(faults) : faults;
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

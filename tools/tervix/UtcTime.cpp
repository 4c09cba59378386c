#include "tools/tervix/UtcTime.h"

#include <iomanip>
#include <sstream>

namespace tervix::tool {
namespace {

constexpr std::int64_t kSecondsPerDay = 86400;
constexpr std::int64_t kDaysPerEra = 146097; // 400 years, after which the calendar repeats

struct Date {
  std::int64_t year;
  std::int64_t month;
  std::int64_t day;
};

std::int64_t floorDivided(std::int64_t value, std::int64_t by) {
  return value / by - (value % by < 0 ? 1 : 0);
}

// In years that begin on the 1st of March, so that a leap day is the last day of its year.
Date dateOf(std::int64_t daysSince1970) {
  constexpr std::int64_t kDaysFromYear0 = 719468; // 0000-03-01 to 1970-01-01
  const std::int64_t days = daysSince1970 + kDaysFromYear0;
  const std::int64_t era = floorDivided(days, kDaysPerEra);
  const std::int64_t dayOfEra = days - era * kDaysPerEra;
  const std::int64_t yearOfEra =
      (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  // Months of 31, 30, 31, 30 and 31 days repeat every 153 days.
  const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
  const std::int64_t day = dayOfYear - (153 * monthFromMarch + 2) / 5 + 1;
  const std::int64_t month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
  return {yearOfEra + era * 400 + (month <= 2 ? 1 : 0), month, day};
}

} // namespace

std::string utcTime(std::int64_t seconds) {
  const std::int64_t days = floorDivided(seconds, kSecondsPerDay);
  const std::int64_t ofDay = seconds - days * kSecondsPerDay;
  const Date date = dateOf(days);
  std::ostringstream text;
  text << std::setfill('0') << std::setw(4) << date.year << "-" << std::setw(2) << date.month << "-"
       << std::setw(2) << date.day << "T" << std::setw(2) << ofDay / 3600 << ":" << std::setw(2)
       << ofDay / 60 % 60 << ":" << std::setw(2) << ofDay % 60 << "Z";
  return text.str();
}

} // namespace tervix::tool

#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace tervix::testing {

// All of an entry on disk that writing to it, or replacing it, would change.
struct EntryOnDisk {
  std::uint64_t number;
  std::uint32_t mode;
  std::string written;
  std::string changed;
  std::string content;

  friend bool operator==(const EntryOnDisk& a, const EntryOnDisk& b) {
    return a.number == b.number && a.mode == b.mode && a.written == b.written &&
           a.changed == b.changed && a.content == b.content;
  }
};

// Of the entry itself, also if it is a link.
EntryOnDisk entryAt(const std::string& path);

using EntriesOnDisk = std::map<std::string, EntryOnDisk>;

// A folder, as ".", and every entry below it.
EntriesOnDisk entriesOf(const std::string& folder);

void expectUntouched(const EntriesOnDisk& before, const EntriesOnDisk& after,
                     const std::string& when);

} // namespace tervix::testing

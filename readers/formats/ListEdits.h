#ifndef TERVIX_FORMATS_LIST_EDITS_H
#define TERVIX_FORMATS_LIST_EDITS_H

#include "Changes.h"

#include <string>
#include <vector>

namespace tervix::formats {

// The changes to a list, which keep its layout and every comment that is not about what is removed.
// The list is where its brackets stand.

// `added`, of which there is at least one, go to the end, as they are to be written: each on a line
// of its own where the last element has one or is followed by a comment, else behind it.
std::vector<Change> addElements(std::string_view text, Range list,
                                const std::vector<std::string>& added);

// The text of a new list.
std::string newList(const std::vector<std::string>& elements);

// The element goes with one comma. Where it has a line of its own, the line goes, and with it the
// comment that the line ends with.
std::vector<Change> removeElement(std::string_view text, Range list, std::size_t index);

} // namespace tervix::formats

#endif

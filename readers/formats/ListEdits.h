#ifndef TERVIX_FORMATS_LIST_EDITS_H
#define TERVIX_FORMATS_LIST_EDITS_H

#include "Changes.h"

namespace tervix::formats {

// The changes to a list, which keep its layout and every comment that is not about what is removed.
// The list is where its brackets stand.

// `element` goes to the end, as it is to be written: on a line of its own where the last one has
// one or is followed by a comment, else behind it.
std::vector<Change> addElement(std::string_view text, Range list, const std::string& element);

// The element goes with one comma. Where it has a line of its own, the line goes, and with it the
// comment that the line ends with.
std::vector<Change> removeElement(std::string_view text, Range list, std::size_t index);

} // namespace tervix::formats

#endif

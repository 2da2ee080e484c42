#pragma once

#include <cstddef>
#include <string_view>

namespace tarnic {

// Checks on the raw bytes of a property list, made before libplist builds its tree: libplist
// builds and frees that tree by recursion, so a deep enough list (a few hundred thousand levels
// in a few megabytes) overflows the stack, and its binary reader takes seconds on a few tens of
// thousands. Neither check recurses; both take time in proportion to the bytes.

// Whether the arrays and dictionaries of an XML property list nest at most `maxDepth` deep (the
// top-level dictionary is level 1). The text is split into tags as libplist splits it, so that a
// closing tag in a comment, a CDATA section, a DOCTYPE or a quoted string closes nothing; where
// the two could differ it errs on the side of "too deep" (tag names count in any case). Text
// that is no property list at all passes, for libplist to turn away.
bool xmlPlistNestsWithin(std::string_view text, int maxDepth);

// The same for a binary property list ("bplist00"), walking its object table from the top
// object. Objects may be shared, so the walk also counts the objects it reaches, once for each
// reference: more than `maxObjects` fails, as do references the walk cannot follow (out of the
// file or of the table), which libplist would refuse as well.
bool binaryPlistNestsWithin(std::string_view bytes, int maxDepth, std::size_t maxObjects);

} // namespace tarnic

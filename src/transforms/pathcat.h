// Joining a directory and a file name.
#pragma once

#include <cstddef>

namespace veltra {

// Writes dir + "/" + name into out (size bytes), adding no separator when
// dir already ends with "/".  Nothing is normalised.  False, with out
// empty, when an argument is NULL or the result does not fit.
bool path_join(char *out, std::size_t size, const char *dir,
               const char *name);

}  // namespace veltra

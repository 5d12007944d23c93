// Path joining with the POSIX separator.
#include "transforms/pathcat.h"

#include <cstring>

namespace veltra {

namespace {
constexpr char kSeparator = '/';
}

bool path_join(char *out, std::size_t size, const char *dir,
               const char *name) {
    if (out == nullptr || size == 0) return false;
    out[0] = '\0';
    if (dir == nullptr || name == nullptr) return false;
    const std::size_t dir_length = std::strlen(dir);
    const std::size_t name_length = std::strlen(name);
    const bool add_separator =
        dir_length == 0 || dir[dir_length - 1] != kSeparator;
    const std::size_t length =
        dir_length + (add_separator ? 1 : 0) + name_length;
    if (length >= size) return false;
    std::memcpy(out, dir, dir_length);
    std::size_t at = dir_length;
    if (add_separator) out[at++] = kSeparator;
    std::memcpy(out + at, name, name_length);
    out[length] = '\0';
    return true;
}

}  // namespace veltra

// Small string helpers shared by the text readers and writers.
#pragma once

#include "veltra.h"

namespace veltra {

// ASCII upper-casing, independent of the host locale.
inline unsigned char ascii_upper(unsigned char c) {
    return (c >= 'a' && c <= 'z') ? static_cast<unsigned char>(c - 'a' + 'A')
                                  : c;
}

// The whitespace set of names and tokens: tab, CR, LF, backspace, blank.
bool is_blank(char c);

}  // namespace veltra

// Case-insensitive string helpers and trimming.  Case folding is ASCII only,
// so results never depend on the host locale.
#include "core/strutil.h"

#include <cstring>

namespace veltra {

bool is_blank(char c) {
    return c == '\t' || c == '\r' || c == '\n' || c == '\b' || c == ' ';
}

}  // namespace veltra

using veltra::ascii_upper;

extern "C" {

KA_API int ka_strcasecmp(const char *a, const char *b) {
    if (a == nullptr || b == nullptr) return a == b ? 0 : (a == nullptr ? -1 : 1);
    for (;; ++a, ++b) {
        unsigned char ua = ascii_upper(static_cast<unsigned char>(*a));
        unsigned char ub = ascii_upper(static_cast<unsigned char>(*b));
        if (ua != ub) return ua < ub ? -1 : 1;
        if (ua == 0) return 0;
    }
}

KA_API char *ka_strcasechr(const char *s, int c) {
    if (s == nullptr) return nullptr;
    unsigned char target = ascii_upper(static_cast<unsigned char>(c));
    for (;; ++s) {
        if (ascii_upper(static_cast<unsigned char>(*s)) == target)
            return const_cast<char *>(s);
        if (*s == '\0') return nullptr;
    }
}

KA_API char *ka_strcasestr(const char *s, const char *sub) {
    if (s == nullptr || sub == nullptr) return nullptr;
    if (*sub == '\0') return const_cast<char *>(s);
    for (; *s != '\0'; ++s) {
        const char *p = s;
        const char *q = sub;
        while (*p != '\0' && *q != '\0' &&
               ascii_upper(static_cast<unsigned char>(*p)) ==
                   ascii_upper(static_cast<unsigned char>(*q))) {
            ++p;
            ++q;
        }
        if (*q == '\0') return const_cast<char *>(s);
    }
    return nullptr;
}

KA_API void ka_str_trim(char *s) {
    if (s == nullptr || *s == '\0') return;
    char *start = s;
    while (*start != '\0' && veltra::is_blank(*start)) ++start;
    if (*start == '\0') {
        *s = '\0';
        return;
    }
    std::size_t length = std::strlen(start);
    if (start != s) std::memmove(s, start, length + 1);
    while (length > 0 && veltra::is_blank(s[length - 1])) s[--length] = '\0';
}

}  // extern "C"

// Keyword and occurrence scanning for the text readers.
#include "core/text_scan.h"

#include "core/object.h"
#include "core/strutil.h"

#include <cstring>

namespace veltra {

bool find_keyword(const char *text, const char *keyword, int needed,
                  Keyword &out) {
    if (!tokenize(text, out.tokens)) return false;
    out.at = find_keyword(out.tokens, keyword, needed);
    if (out.at < 0) return false;
    // Cutting a name to 63 characters can leave a blank at its end; trim
    // again so that the name reads back the same after writing.
    std::memset(out.name, 0, KA_NAME_MAX);
    std::memcpy(out.name, out.tokens.token[out.at + 1],
                strnlen(out.tokens.token[out.at + 1], KA_NAME_MAX - 1));
    ka_str_trim(out.name);
    return true;
}

const char *next_occurrence(const char *from, const char *keyword) {
    const std::size_t length = std::strlen(keyword);
    for (const char *match = ka_strcasestr(from, keyword); match != nullptr;
         match = ka_strcasestr(match + 1, keyword)) {
        const char *p = match + length;
        while (is_blank(*p)) ++p;
        if (*p == '[') return match;
    }
    return nullptr;
}

const char *nth_occurrence(const char *text, const char *keyword, int n) {
    const char *at = next_occurrence(text, keyword);
    for (int i = 1; i < n && at != nullptr; ++i)
        at = next_occurrence(at + 1, keyword);
    return at;
}

bool read_parameter_slots(const char *text, ka_parameter **slots) {
    for (int i = 0; i < KA_PARAMETER_SLOTS; ++i) slots[i] = nullptr;
    for (const char *at = next_occurrence(text, "PARAMETER"); at != nullptr;
         at = next_occurrence(at + 1, "PARAMETER")) {
        ka_parameter *parameter = ka_parameter_from_string(at);
        if (parameter == nullptr) {
            delete_parameters(slots);
            return false;
        }
        const int slot = ka_parameter_index(parameter);
        if (slot < 0 || slot >= KA_PARAMETER_SLOTS) {
            ka_parameter_del(parameter);
            continue;
        }
        ka_parameter_del(slots[slot]);
        slots[slot] = parameter;
    }
    return true;
}

}  // namespace veltra

// Tokenizer of the bracketed text form: splits at the delimiter set `[],"`
// as a token splitter would (runs of delimiters give no empty tokens), drops
// blank pieces and trims the rest.
#include "core/tokenizer.h"

#include "core/strutil.h"
#include "veltra.h"

#include <cstring>

namespace veltra {

namespace {

constexpr char kTextDelimiters[] = "[],\"";

bool is_delimiter(char c, const char *delimiters) {
    return c != '\0' && std::strchr(delimiters, c) != nullptr;
}

bool has_content(const char *s) {
    for (; *s != '\0'; ++s)
        if (!is_blank(*s)) return true;
    return false;
}

}  // namespace

bool tokenize(const char *text, Tokens &out) {
    return tokenize(text, kTextDelimiters, out);
}

bool tokenize(const char *text, const char *delimiters, Tokens &out) {
    out.count = 0;
    out.buffer[0] = '\0';
    if (text == nullptr || delimiters == nullptr) return false;
    std::size_t length = strnlen(text, Tokens::kBufferSize - 1);
    std::memcpy(out.buffer, text, length);
    out.buffer[length] = '\0';

    char *p = out.buffer;
    while (*p != '\0' && out.count < Tokens::kMaxTokens) {
        while (*p != '\0' && is_delimiter(*p, delimiters)) ++p;
        if (*p == '\0') break;
        char *start = p;
        while (*p != '\0' && !is_delimiter(*p, delimiters)) ++p;
        if (*p != '\0') *p++ = '\0';
        if (has_content(start)) {
            ka_str_trim(start);
            out.token[out.count++] = start;
        }
    }
    return true;
}

int find_keyword(const Tokens &tokens, const char *keyword, int needed,
                 int from) {
    for (int i = from; i + needed < tokens.count; ++i)
        if (ka_strcasecmp(tokens.token[i], keyword) == 0) return i;
    return -1;
}

}  // namespace veltra

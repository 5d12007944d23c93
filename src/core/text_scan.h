// What the readers of the bracketed text form share: finding a kind's
// keyword in the token list, taking its name, and finding repeated items
// (parameters, the linear unit, the two systems of a transformation) by
// their occurrences in the raw text.
#pragma once

#include "core/tokenizer.h"
#include "veltra.h"

namespace veltra {

// A keyword found in a tokenized text, with the name token after it.
struct Keyword {
    Tokens tokens;
    int at = -1;                 // index of the keyword token
    char name[KA_NAME_MAX] = {};  // the next token, cut to 63 and trimmed

    const char *value(int i) const { return tokens.token[at + 1 + i]; }
};

// Tokenizes text and finds keyword followed by at least `needed` tokens
// (the name included).  False when text is null or no such keyword exists.
bool find_keyword(const char *text, const char *keyword, int needed,
                  Keyword &out);

// The next occurrence of keyword (any case) at or after `from` that is
// followed, after nothing but blanks, by '['; nullptr when there is none.
// A keyword spelt inside a name is followed by a quote, so it never counts.
const char *next_occurrence(const char *from, const char *keyword);

// The n-th (1-based) counted occurrence of keyword in text, or nullptr.
const char *nth_occurrence(const char *text, const char *keyword, int n);

// Reads every counted PARAMETER occurrence of text into its slot (the last
// one of a slot wins; names without a slot are dropped).  False, with the
// slots deleted and cleared, when an occurrence cannot be read.
bool read_parameter_slots(const char *text, ka_parameter **slots);

}  // namespace veltra

// Tokenizer of the bracketed text form.  Reentrant: all state lives in the
// caller's Tokens record.
#pragma once

namespace veltra {

struct Tokens {
    static constexpr int kBufferSize = 1024;  // at most 1023 characters read
    static constexpr int kMaxTokens = 200;    // further tokens are ignored

    char buffer[kBufferSize];
    const char *token[kMaxTokens];
    int count;
};

// Splits the first 1023 characters of text at '[', ']', ',' and '"'; keeps
// the pieces that hold a non-blank character, trimmed, in order.  Returns
// false (no tokens) for a NULL text.
bool tokenize(const char *text, Tokens &out);

// The same with another delimiter set (each character of `delimiters`
// separates tokens).
bool tokenize(const char *text, const char *delimiters, Tokens &out);

// Index of the first token at or after `from` equal to keyword ignoring
// case that leaves at least `needed` tokens after it, or -1.
int find_keyword(const Tokens &tokens, const char *keyword, int needed,
                 int from = 0);

}  // namespace veltra

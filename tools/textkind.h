// The ten kinds of the text form as the tool sees them: which kind a text
// is (its first keyword), reading and writing it through the library, and
// saying why a text could not be read.
#pragma once

#include <string>

namespace veltra_cli {

struct TextKind {
    const char *keyword;  // "PROJCS"
    const char *name;     // "projcs"
    void *(*read)(const char *text);
    // Writes into a KA_TEXT_MAX buffer.
    void (*write)(const void *object, char *text);
    void (*del)(void *object);
};

// The kind named by the text's first keyword (any case, blanks allowed
// before the bracket), or nullptr when the text does not start with one.
const TextKind *kind_of_text(const std::string &text);

// The kind with the given keyword.
const TextKind &text_kind(const char *keyword);

// One line saying why the library could not read text as kind.
std::string why_unreadable(const TextKind &kind, const std::string &text);

// Reads text as the kind `keyword`, or complains (naming `what`, such as
// "--pcs") and returns nullptr.
void *read_required(const char *keyword, const std::string &text,
                    const char *what);

}  // namespace veltra_cli

// The ten kinds of the text form as the tool sees them: which kind a text
// is (its first keyword), reading and writing it through the library, and
// saying why a text could not be read.
#pragma once

#include <string>

namespace veltra_cli {

struct TextKind {
    const char *keyword;  // "PROJCS"
    const char *name;     // "projcs"
    int (*is)(const void *object);
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

// The kind of a library object, or nullptr.
const TextKind *kind_of_object(const void *object);

// A catalogue code: the text is a decimal number and nothing else (blanks
// around it allowed).
bool catalogue_code(const std::string &text, int &code);

// Reads a TEXT argument: a catalogue code builds the catalogue's object,
// anything else is read as the kind its first keyword names.  On failure
// returns nullptr with `why` saying what is wrong.
void *read_any(const std::string &text, const TextKind *&kind,
               std::string &why);

// Reads a text or catalogue code as the kind `keyword`, or complains (naming
// `what`, such as "--pcs") and returns nullptr.
void *read_required(const char *keyword, const std::string &text,
                    const char *what);

}  // namespace veltra_cli

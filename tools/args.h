// Command-line arguments of the veltra subcommands: options with or without
// a value ("--pcs TEXT", "--pcs=TEXT", "--inverse") and positional
// arguments, and the TEXT arguments that may name a file ("@file").
#pragma once

#include <string>
#include <vector>

namespace veltra_cli {

// Exit statuses: 1 when some input lines or points failed (the others were
// converted), 2 when nothing could be done (usage, unreadable system text,
// missing file).
constexpr int kExitOk = 0;
constexpr int kExitDataErrors = 1;
constexpr int kExitUsage = 2;

struct OptionRule {
    const char *name;  // "--pcs"
    bool takes_value;
};

class Args {
public:
    // Parses argv[first..argc) against the given options.  On failure
    // error() names the problem.
    Args(int argc, char **argv, int first, std::vector<OptionRule> rules);

    bool ok() const { return error_.empty(); }
    const std::string &error() const { return error_; }

    bool flag(const char *name) const;
    // The option's value, or nullptr when it was not given.
    const std::string *value(const char *name) const;
    const std::vector<std::string> &positional() const { return positional_; }

private:
    std::vector<OptionRule> rules_;
    std::vector<std::pair<std::string, std::string>> given_;
    std::vector<std::string> positional_;
    std::string error_;
};

// Ends a subcommand early when its options are bad (complains, usage
// status) or --help was asked (prints help, status 0); -1 otherwise.
int options_exit(const Args &args, const char *help);

// The text of a TEXT argument: the argument itself, the contents of a file
// when it starts with '@', or standard input when it is "-".  False, with
// error set, when the file cannot be read.
bool load_text(const std::string &argument, std::string &text,
               std::string &error);

// Prints "veltra: <message>" on standard error.
void complain(const std::string &message);

}  // namespace veltra_cli

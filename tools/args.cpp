// Argument parsing and TEXT loading for the veltra subcommands.
#include "args.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace veltra_cli {

namespace {

// Texts of the text form are a few kilobytes at most; a much larger file
// is certainly not one.
constexpr long kMaxTextFile = 1 << 20;

bool read_stream(std::FILE *in, std::string &text) {
    char chunk[4096];
    std::size_t n;
    while ((n = std::fread(chunk, 1, sizeof chunk, in)) > 0) {
        text.append(chunk, n);
        if (static_cast<long>(text.size()) > kMaxTextFile) return false;
    }
    return true;
}

}  // namespace

Args::Args(int argc, char **argv, int first, std::vector<OptionRule> rules)
    : rules_(std::move(rules)) {
    bool options_done = false;
    for (int i = first; i < argc; ++i) {
        std::string arg = argv[i];
        if (options_done || arg.size() < 2 || arg[0] != '-') {
            positional_.push_back(arg);
            continue;
        }
        if (arg == "--") {
            options_done = true;
            continue;
        }
        std::string name = arg, inline_value;
        bool has_inline = false;
        if (auto eq = arg.find('='); eq != std::string::npos) {
            name = arg.substr(0, eq);
            inline_value = arg.substr(eq + 1);
            has_inline = true;
        }
        const OptionRule *rule = nullptr;
        for (const OptionRule &s : rules_)
            if (name == s.name) rule = &s;
        if (rule == nullptr) {
            error_ = "unknown option '" + name + "' (try --help)";
            return;
        }
        if (!rule->takes_value) {
            if (has_inline) {
                error_ = "option " + name + " takes no value";
                return;
            }
            given_.emplace_back(name, "");
        } else if (has_inline) {
            given_.emplace_back(name, inline_value);
        } else if (i + 1 < argc) {
            given_.emplace_back(name, argv[++i]);
        } else {
            error_ = "option " + name + " needs a value";
            return;
        }
    }
}

bool Args::flag(const char *name) const { return value(name) != nullptr; }

const std::string *Args::value(const char *name) const {
    const std::string *found = nullptr;
    for (const auto &[option, value] : given_)
        if (option == name) found = &value;  // the last one given wins
    return found;
}

int options_exit(const Args &args, const char *help) {
    if (!args.ok()) {
        complain(args.error());
        return kExitUsage;
    }
    if (args.flag("--help")) {
        std::fputs(help, stdout);
        return kExitOk;
    }
    return -1;
}

bool load_text(const std::string &argument, std::string &text,
               std::string &error) {
    text.clear();
    if (argument == "-") {
        if (!read_stream(stdin, text)) {
            error = "standard input: too long for a coordinate-system text";
            return false;
        }
        return true;
    }
    if (argument.empty() || argument[0] != '@') {
        text = argument;
        return true;
    }
    const std::string path = argument.substr(1);
    std::FILE *in = std::fopen(path.c_str(), "rb");
    if (in == nullptr) {
        error = path + ": " + std::strerror(errno);
        return false;
    }
    const bool fits = read_stream(in, text);
    const bool failed = std::ferror(in) != 0;
    std::fclose(in);
    if (failed) {
        error = path + ": read error";
        return false;
    }
    if (!fits) {
        error = path + ": too long for a coordinate-system text";
        return false;
    }
    return true;
}

void complain(const std::string &message) {
    std::fprintf(stderr, "veltra: %s\n", message.c_str());
}

}  // namespace veltra_cli

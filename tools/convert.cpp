#include "convert.h"

#include "args.h"
#include "textkind.h"

#include <cstdio>

namespace veltra_cli {

int run_convert(int argc, char **argv, int first,
                const ConvertCommand &command) {
    const char *option = command.system_option;
    Args args(argc, argv, first,
              {{option, true}, {command.direction_flag, false},
               {"--decimals", true}, {"--help", false}});
    if (int status = options_exit(args, command.help); status >= 0) return status;
    OutputFormat format;
    if (!read_format_options(args, format)) return kExitUsage;
    if (args.value(option) == nullptr) {
        complain(std::string(command.name) + ": " + option +
                 " TEXT is required (a catalogue code, a " + command.keyword +
                 " text or @FILE)");
        return kExitUsage;
    }
    if (args.positional().size() > 1) {
        complain(std::string(command.name) + ": one input FILE at most");
        return kExitUsage;
    }
    std::string text, error;
    if (!load_text(*args.value(option), text, error)) {
        complain(std::string(option) + ": " + error);
        return kExitUsage;
    }
    void *object = read_required(command.keyword, text, option);
    if (object == nullptr) return kExitUsage;
    const PointJob job = command.job(object, args.flag(command.direction_flag));
    const std::string *path =
        args.positional().empty() ? nullptr : &args.positional()[0];
    const int status = run_point_job(path, job, format);
    command.del(object);
    return status;
}

}  // namespace veltra_cli

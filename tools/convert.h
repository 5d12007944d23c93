// The converting subcommands (project, transform): one system argument, a
// catalogue code or a text of one kind, a direction flag, and the shared
// point stream.
#pragma once

#include "points.h"

namespace veltra_cli {

struct ConvertCommand {
    const char *name;            // "project"
    const char *help;
    const char *system_option;   // "--pcs"
    const char *keyword;         // "PROJCS": the kind the system must be
    const char *direction_flag;  // "--inverse"
    // Prepares the object for a long run and makes the job; `backwards` is
    // the direction flag.
    PointJob (*job)(void *object, bool backwards);
    void (*del)(void *object);
};

int run_convert(int argc, char **argv, int first, const ConvertCommand &command);

}  // namespace veltra_cli

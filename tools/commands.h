// The veltra subcommands.  Each takes the full argument vector and the index
// of its first own argument, and returns the process exit status.
#pragma once

namespace veltra_cli {

int run_show(int argc, char **argv, int first);
int run_project(int argc, char **argv, int first);
int run_transform(int argc, char **argv, int first);
int run_geod(int argc, char **argv, int first);
int run_list(int argc, char **argv, int first);

}  // namespace veltra_cli

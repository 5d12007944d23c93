// The shared line reader of the converting subcommands.  Input is read line
// by line; each line holds a fixed number of input values separated by
// blanks and/or a comma, optionally one more number (a height) where the
// job allows it, and any further text, which is copied through after the
// results.  Blank lines and lines starting with '#' are copied unchanged.
// Points are converted in batches, so memory stays bounded whatever the
// input size, and every output line answers the input line of the same
// number: a line that cannot be read is reported on standard error with its
// line number and answered with "nan" values.
#pragma once

#include <cstdio>
#include <functional>
#include <string>

namespace veltra_cli {

struct PointJob {
    int inputs;           // numbers required on each line
    int outputs;          // numbers written per point (outputs <= inputs)
    bool optional_extra;  // a further number (height) may follow
    const char *expected; // the complaint for a bad line: "two numbers"
    // Converts n records in place: values holds n * inputs numbers, of
    // which the first `outputs` of each record are the results; extra holds
    // n numbers (0 where a line had none).  Failed points are NaN.
    std::function<void(int n, double *values, double *extra)> convert;
};

struct OutputFormat {
    int decimals = -1;  // fixed decimals, or -1 for the shortest exact text
};

struct StreamResult {
    long lines = 0;
    long points = 0;
    long bad_lines = 0;
    long failed_points = 0;
};

// Streams `in` through the job to `out`.
StreamResult stream_points(std::FILE *in, std::FILE *out, const PointJob &job,
                           const OutputFormat &format);

// Appends a number: the shortest text that reads back exactly, or fixed
// decimals; "nan" for a failed value.  Locale-independent.
void append_number(std::string &out, double value, const OutputFormat &format);

class Args;

// Reads the --decimals option (0 to 17) into format; false, with a
// complaint, when it is not such a number.
bool read_format_options(const Args &args, OutputFormat &format);

// Opens the input file argument ("-" or none for standard input), runs the
// job, reports failures on standard error and returns the exit status.
int run_point_job(const std::string *path, const PointJob &job,
                  const OutputFormat &format);

}  // namespace veltra_cli

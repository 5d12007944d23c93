// Streaming point conversion: reads lines, collects up to kBatchPoints
// points, converts them with one call and writes the answers in input
// order.
#include "points.h"

#include "args.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace veltra_cli {

namespace {

constexpr int kBatchPoints = 4096;
// Comment and blank lines wait in the batch too; flush early when many
// pile up or their text grows large.
constexpr std::size_t kBatchRecords = 4 * kBatchPoints;
constexpr std::size_t kBatchText = 1 << 20;
// The most numbers a job reads per line.
constexpr int kMaxInputs = 8;
// Longer input lines are skipped and reported, so a file without line
// breaks never has to be held in memory.
constexpr std::size_t kMaxLine = 1 << 16;

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

struct Record {
    enum Kind { kPoint, kCopy, kBad } kind;
    bool has_extra = false;
    char separator = ' ';
    std::size_t text_begin = 0, text_end = 0;  // in the batch's text
};

// Splits a line into its numbers and trailing text.
class LineParser {
public:
    LineParser(const char *begin, const char *end) : p_(begin), end_(end) {}

    // Reads one number field and the separator after it.
    bool number(double &value) {
        const char *start = p_;
        if (start < end_ && *start == '+' && start + 1 < end_ &&
            start[1] != '-')
            ++start;
        auto [stop, ec] = std::from_chars(start, end_, value);
        if (ec != std::errc{} || !std::isfinite(value)) return false;
        if (stop < end_ && !is_blank(*stop) && *stop != ',') return false;
        p_ = stop;
        skip_separator();
        return true;
    }

    void skip_separator() {
        while (p_ < end_ && is_blank(*p_)) ++p_;
        if (p_ < end_ && *p_ == ',') {
            saw_comma_ = true;
            ++p_;
            while (p_ < end_ && is_blank(*p_)) ++p_;
        }
    }

    const char *position() const { return p_; }
    bool saw_comma() const { return saw_comma_; }

private:
    const char *p_;
    const char *end_;
    bool saw_comma_ = false;
};

// Reads lines in blocks, each line at most kMaxLine characters long (without
// its line break; embedded NUL bytes are kept).
class LineReader {
public:
    explicit LineReader(std::FILE *in) : in_(in), buffer_(2 * kMaxLine) {}

    // The next line; false at the end of the input.  A longer line is
    // skipped up to its line break and comes back empty with too_long set.
    bool next(const char *&line, std::size_t &length, bool &too_long) {
        too_long = false;
        for (;;) {
            char *begin = buffer_.data() + start_;
            if (auto *nl = static_cast<char *>(std::memchr(begin, '\n', end_ - start_))) {
                too_long = too_long || static_cast<std::size_t>(nl - begin) > kMaxLine;
                line = too_long ? nl : begin;
                length = too_long ? 0 : static_cast<std::size_t>(nl - begin);
                start_ = static_cast<std::size_t>(nl - buffer_.data()) + 1;
                return true;
            }
            if (end_ - start_ >= kMaxLine) {  // too long: drop what is held
                too_long = true;
                start_ = end_ = 0;
            } else {
                std::memmove(buffer_.data(), begin, end_ - start_);
                end_ -= start_;
                start_ = 0;
            }
            const std::size_t got =
                std::fread(buffer_.data() + end_, 1, buffer_.size() - end_, in_);
            if (got == 0) {  // the end: a last line without a line break
                if (end_ == 0 && !too_long) return false;
                line = buffer_.data();
                length = too_long ? 0 : end_;
                start_ = end_ = 0;
                return true;
            }
            end_ += got;
        }
    }

private:
    std::FILE *in_;
    std::vector<char> buffer_;
    std::size_t start_ = 0, end_ = 0;
};

class Batch {
public:
    Batch(const PointJob &job, const OutputFormat &format, std::FILE *out,
          StreamResult &result)
        : job_(job), format_(format), out_(out), result_(result) {
        values_.reserve(static_cast<std::size_t>(kBatchPoints) * job.inputs);
        extra_.reserve(kBatchPoints);
    }

    void add_line(const char *line, std::size_t length, bool too_long,
                  long number) {
        if (too_long) {
            reject(number, "longer than " + std::to_string(kMaxLine) +
                               " characters");
            return;
        }
        while (length > 0 && (line[length - 1] == '\n' || line[length - 1] == '\r'))
            --length;
        const char *end = line + length;
        const char *first = line;
        while (first < end && is_blank(*first)) ++first;
        if (first == end || *first == '#') {
            add_text_record(Record::kCopy, line, end);
        } else if (!add_point(first, end)) {
            reject(number, std::string("expected ") + job_.expected);
            return;
        }
        flush_when_full();
    }

    // Reports a line that cannot be read and answers it with nan.
    void reject(long number, const std::string &why) {
        complain("line " + std::to_string(number) + ": " + why);
        ++result_.bad_lines;
        static const char kNothing[] = "";
        add_text_record(Record::kBad, kNothing, kNothing);
        flush_when_full();
    }

    void flush_when_full() {
        if (points_ == kBatchPoints || records_.size() >= kBatchRecords ||
            text_.size() >= kBatchText)
            flush();
    }

    void flush() {
        if (points_ > 0) job_.convert(points_, values_.data(), extra_.data());
        std::string out;
        out.reserve(records_.size() * 48 + text_.size());
        int point = 0;
        for (const Record &r : records_) {
            switch (r.kind) {
            case Record::kCopy:
                out.append(text_, r.text_begin, r.text_end - r.text_begin);
                break;
            case Record::kBad:
                for (int i = 0; i < job_.outputs; ++i) {
                    if (i > 0) out += ' ';
                    out += "nan";
                }
                break;
            case Record::kPoint:
                write_point(out, r, point++);
                break;
            }
            out += '\n';
        }
        std::fwrite(out.data(), 1, out.size(), out_);
        records_.clear();
        values_.clear();
        extra_.clear();
        text_.clear();
        points_ = 0;
    }

private:
    bool add_point(const char *begin, const char *end) {
        LineParser parser(begin, end);
        double value[kMaxInputs];
        for (int i = 0; i < job_.inputs && i < kMaxInputs; ++i)
            if (!parser.number(value[i])) return false;
        Record r{Record::kPoint};
        double extra = 0;
        if (job_.optional_extra && parser.number(extra)) r.has_extra = true;
        r.separator = parser.saw_comma() ? ',' : ' ';
        values_.insert(values_.end(), value,
                       value + std::min(job_.inputs, kMaxInputs));
        extra_.push_back(extra);
        r.text_begin = text_.size();
        text_.append(parser.position(), end);
        r.text_end = text_.size();
        records_.push_back(r);
        ++points_;
        ++result_.points;
        return true;
    }

    void add_text_record(Record::Kind kind, const char *begin, const char *end) {
        Record r{kind};
        r.text_begin = text_.size();
        text_.append(begin, end);
        r.text_end = text_.size();
        records_.push_back(r);
    }

    void write_point(std::string &out, const Record &r, int index) {
        const double *v = values_.data() + static_cast<std::size_t>(index) * job_.inputs;
        bool failed = false;
        for (int i = 0; i < job_.outputs; ++i) {
            if (i > 0) out += r.separator;
            append_number(out, v[i], format_);
            failed = failed || std::isnan(v[i]);
        }
        if (r.has_extra) {
            out += r.separator;
            append_number(out, extra_[index], format_);
        }
        if (r.text_end > r.text_begin) {
            out += r.separator;
            if (r.separator == ',') out += ' ';
            out.append(text_, r.text_begin, r.text_end - r.text_begin);
        }
        if (failed) ++result_.failed_points;
    }

    const PointJob &job_;
    const OutputFormat &format_;
    std::FILE *out_;
    StreamResult &result_;
    std::vector<Record> records_;
    std::vector<double> values_;
    std::vector<double> extra_;
    std::string text_;
    int points_ = 0;
};

}  // namespace

void append_number(std::string &out, double value, const OutputFormat &format) {
    if (std::isnan(value)) {
        out += "nan";
        return;
    }
    if (value == 0) value = 0;  // no "-0"
    // Fixed notation always ("500000", never "5e+05"); the shortest form
    // that reads back exactly unless decimals are asked for.  The largest
    // double needs 309 digits.
    char text[512];
    auto [end, ec] =
        format.decimals >= 0
            ? std::to_chars(text, text + sizeof text, value,
                            std::chars_format::fixed, format.decimals)
            : std::to_chars(text, text + sizeof text, value,
                            std::chars_format::fixed);
    if (ec != std::errc{}) {
        out += "nan";
        return;
    }
    out.append(text, end);
}

bool read_format_options(const Args &args, OutputFormat &format) {
    const std::string *decimals = args.value("--decimals");
    if (decimals == nullptr) return true;
    int value = -1;
    auto [end, ec] = std::from_chars(decimals->data(),
                                     decimals->data() + decimals->size(), value);
    if (ec != std::errc{} || end != decimals->data() + decimals->size() ||
        value < 0 || value > 17) {
        complain("--decimals: expected a whole number from 0 to 17, got '" +
                 *decimals + "'");
        return false;
    }
    format.decimals = value;
    return true;
}

StreamResult stream_points(std::FILE *in, std::FILE *out, const PointJob &job,
                           const OutputFormat &format) {
    StreamResult result;
    Batch batch(job, format, out, result);
    LineReader reader(in);
    const char *line;
    std::size_t length;
    bool too_long;
    while (reader.next(line, length, too_long))
        batch.add_line(line, length, too_long, ++result.lines);
    batch.flush();
    std::fflush(out);
    return result;
}

int run_point_job(const std::string *path, const PointJob &job,
                  const OutputFormat &format) {
    std::FILE *in = stdin;
    if (path != nullptr && *path != "-") {
        in = std::fopen(path->c_str(), "r");
        if (in == nullptr) {
            complain(*path + ": " + std::strerror(errno));
            return kExitUsage;
        }
    }
    StreamResult result = stream_points(in, stdout, job, format);
    const bool read_error = std::ferror(in) != 0;
    if (in != stdin) std::fclose(in);
    if (read_error) {
        complain((path ? *path : std::string("standard input")) +
                 ": read error");
        return kExitUsage;
    }
    if (result.failed_points > 0)
        complain(std::to_string(result.failed_points) + " of " +
                 std::to_string(result.points) +
                 " points could not be converted (written as nan)");
    if (result.bad_lines > 0)
        complain(std::to_string(result.bad_lines) +
                 " input lines could not be read (written as nan)");
    return result.bad_lines > 0 || result.failed_points > 0 ? kExitDataErrors
                                                            : kExitOk;
}

}  // namespace veltra_cli

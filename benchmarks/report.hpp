#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

/// The results of a run as ratios, in Markdown.
namespace kivo::benchmarks {

/// How often an operation asks a holder's allocator, and how much memory an item takes.
struct counts {
    std::map<std::string, double> taken_per_item; ///< by operation
    double bytes_per_item = 0;
};

/// Shows what is measured, and keeps it.
class results : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override;

    /// The time per iteration in ns, of each repetition; empty: not measured.
    std::vector<double> times(const std::string& name) const;

private:
    std::map<std::string, std::vector<double>> times_;
};

/// Three digits that count.
std::string short_text(double value);
/// The median of the repetitions; without any, nothing.
std::string median_text(const std::vector<double>& values, double divisor);
/// The median of the repetitions' ratios, the lowest and the highest; without any, nothing.
std::string ratio_text(const std::vector<double>& left, const std::vector<double>& right,
                       double factor = 1);

/// The rows of a table; the first is its head.
using rows = std::vector<std::vector<std::string>>;
void print_table(const std::string& title, const rows& table);

/// The names under which operations and holders are measured, in the order of the tables.
struct names {
    std::vector<std::string> operations;
    std::vector<std::string> peers;
    std::vector<std::size_t> sizes;
    std::vector<std::size_t> held;
};

void print(const results& measured, const names& tables,
           const std::map<std::string, counts>& counted);

} // namespace kivo::benchmarks

#include "report.hpp"

#include <algorithm>
#include <cstdio>

namespace kivo::benchmarks {

namespace {

using numbers = std::vector<double>;

double median(numbers values) {
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

std::string number_text(const char* format, double value) {
    char text[32];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

void print_row(const std::vector<std::string>& cells) {
    for (const std::string& cell : cells) {
        std::printf("| %s ", cell.c_str());
    }
    std::printf("|\n");
}

void print_head(const std::string& title, const std::vector<std::string>& cells) {
    std::printf("\n%s\n\n", title.c_str());
    print_row(cells);
    print_row(std::vector<std::string>(cells.size(), "---"));
}

} // namespace

std::string short_text(double value) {
    return number_text(value < 9.995 ? "%.2f" : value < 99.95 ? "%.1f" : "%.0f", value);
}

std::string median_text(const numbers& values, double divisor) {
    return values.empty() ? "" : short_text(median(values) / divisor);
}

std::string ratio_text(const numbers& left, const numbers& right, double factor) {
    numbers ratios;
    for (std::size_t index = 0; index < std::min(left.size(), right.size()); ++index) {
        ratios.push_back(factor * left[index] / right[index]);
    }
    if (ratios.empty()) {
        return "";
    }
    const auto [lowest, highest] = std::minmax_element(ratios.begin(), ratios.end());
    return short_text(median(ratios)) + " (" + short_text(*lowest) + "–" + short_text(*highest) +
           ")";
}

void print_table(const std::string& title, const rows& table) {
    print_head(title, table.front());
    std::for_each(table.begin() + 1, table.end(), print_row);
}

void results::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.run_type == Run::RT_Iteration && !run.error_occurred) {
            std::string name = run.run_name.function_name;
            if (run.threads > 1) {
                name += '/';
                name += std::to_string(run.threads);
            }
            // where the wall clock was not asked for, other processes do not count
            const double seconds = run.run_name.time_type.empty() ? run.cpu_accumulated_time
                                                                  : run.real_accumulated_time;
            times_[name].push_back(1e9 * seconds / static_cast<double>(run.iterations));
        }
    }
}

numbers results::times(const std::string& name) const {
    const auto found = times_.find(name);
    return found == times_.end() ? numbers() : found->second;
}

void print(const results& measured, const names& tables,
           const std::map<std::string, counts>& counted) {
    const auto times = [&](const std::string& operation, const std::string& holder,
                           std::size_t size) {
        return measured.times(operation + '/' + holder + '/' + std::to_string(size));
    };
    for (const std::size_t size : tables.sizes) {
        std::vector<std::string> head{"operation", "library, µs", "to the floor",
                                      "to its requests alone"};
        for (const std::string& peer : tables.peers) {
            head.push_back("to " + peer);
        }
        print_head("An invoice of " + std::to_string(size) +
                       " items: the library's time, and its ratio to the others'",
                   head);
        for (const std::string& operation : tables.operations) {
            const numbers own = times(operation, "library", size);
            std::vector<std::string> row{operation, median_text(own, 1000),
                                         ratio_text(own, times(operation, "floor", size)),
                                         ratio_text(own, times(operation, "requests", size))};
            // the ways of building and reading differ only here
            const std::string of_peers = operation.substr(0, operation.find(','));
            for (const std::string& peer : tables.peers) {
                row.push_back(ratio_text(own, times(of_peers, peer, size)));
            }
            print_row(row);
        }
    }

    std::vector<std::string> head{"operation"};
    for (const std::size_t size : tables.sizes) {
        head.push_back(std::to_string(size) + (size == 1 ? " item" : " items"));
    }
    print_head("Growth: the library's time per item, in ns", head);
    for (const std::string& operation : tables.operations) {
        std::vector<std::string> row{operation};
        for (const std::size_t size : tables.sizes) {
            row.push_back(
                median_text(times(operation, "library", size), static_cast<double>(size)));
        }
        print_row(row);
    }

    print_head("Invoices of 10 items held at once, in ns per item",
               {"invoices", "copied", "to the floor", "destroyed", "to the floor"});
    for (const std::size_t held : tables.held) {
        std::vector<std::string> row{std::to_string(held)};
        for (const char* const operation : {"hold", "give back"}) {
            const numbers own = times(operation, "library", held);
            row.push_back(median_text(own, 10 * static_cast<double>(held)));
            row.push_back(ratio_text(own, times(operation, "floor", held)));
        }
        print_row(row);
    }

    print_head("Two threads on their own invoices of 100 items: their speed together, to one's",
               {"operation", "library", "floor"});
    for (const char* const operation : {"copy", "build", "read"}) {
        std::vector<std::string> row{operation};
        for (const char* const holder : {"library", "floor"}) {
            const std::string name = std::string("threads/") + operation + '/' + holder;
            row.push_back(ratio_text(measured.times(name), measured.times(name + "/2")));
        }
        print_row(row);
    }

    const numbers once = times("totals", "list got once", 100);
    const numbers again = times("totals", "list got for each item", 100);
    print_head("One amount of each of 100 items, in µs",
               {"list got once", "list got for each item", "ratio"});
    print_row({median_text(once, 1000), median_text(again, 1000), ratio_text(again, once)});

    head = {"holder", "bytes"};
    for (const std::string& operation : tables.operations) {
        head.push_back(operation);
    }
    print_head("Memory per item, and blocks taken per item by each operation", head);
    for (const auto& [holder, count] : counted) {
        std::vector<std::string> row{holder, number_text("%.0f", count.bytes_per_item)};
        for (const std::string& operation : tables.operations) {
            const auto found = count.taken_per_item.find(operation);
            row.push_back(found == count.taken_per_item.end() ? ""
                                                              : number_text("%.1f", found->second));
        }
        print_row(row);
    }
}

} // namespace kivo::benchmarks

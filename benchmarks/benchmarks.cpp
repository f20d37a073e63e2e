#include "allocations.hpp"
#include "documents.hpp"
#include "holders.hpp"
#include "report.hpp"

#include <message.pb.h>
#include <tree.hxx>

#include <benchmark/benchmark.h>
#include <google/protobuf/arena.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <malloc.h>

/// The same invoice in the library and in what a user would pick instead.
namespace kivo::benchmarks {

void build(message::nota_fiscal& to, const plain_invoice& from);
std::uint64_t read(const message::nota_fiscal& from);
void build(tree::nota_fiscal& to, const plain_invoice& from);
std::uint64_t read(const tree::nota_fiscal& from);

namespace {

/// A protobuf message with everything below it in an arena of its own.
class arena_message {
public:
    arena_message() = default;
    arena_message(const arena_message& other) { *message_ = *other.message_; }
    arena_message(arena_message&&) noexcept = default;
    arena_message& operator=(const arena_message& other) { // NOLINT: a message takes care of itself
        *message_ = *other.message_;
        return *this;
    }
    arena_message& operator=(arena_message&&) noexcept = default;
    ~arena_message() = default;

    friend void build(arena_message& to, const plain_invoice& from) { build(*to.message_, from); }
    friend std::uint64_t read(const arena_message& from) { return read(*from.message_); }

private:
    std::unique_ptr<google::protobuf::Arena> arena_ = std::make_unique<google::protobuf::Arena>();
    message::nota_fiscal* message_ =
        google::protobuf::Arena::CreateMessage<message::nota_fiscal>(arena_.get());
};

const names tables{
    .operations = {"build", "build, by copies", "copy", "assign", "move", "read", "destroy"},
    .peers = {"plain structures", "protobuf", "protobuf arena", "XSD tree"},
    .sizes = {1, 10, 100, 990},
    .held = {100, 10'000, 100'000},
};

/// The source from which all holders of a size are built. It lives as long as the program.
const plain_invoice& source_of(std::size_t items) {
    static std::map<std::size_t, plain_invoice> sources;
    const auto found = sources.find(items);
    return found != sources.end()
               ? found->second
               : sources.emplace(items, plain_copy(sample_invoice(items))).first->second;
}

/// A holder that was copied, so that it lies in memory as one that nobody built piece by piece.
template <class Holder> Holder original(std::size_t items) {
    Holder built;
    build(built, source_of(items));
    return Holder(std::as_const(built));
}

/// Calls the operation over and over.
void measure(const std::string& operation, const std::string& holder, std::size_t size,
             std::function<void(benchmark::State&)> run) {
    benchmark::RegisterBenchmark((operation + '/' + holder + '/' + std::to_string(size)).c_str(),
                                 std::move(run));
}

/// The requests of an operation with the bytes they hold, which is its floor, and alone. Only what
/// gives back all that it takes can be repeated without the operation.
void measure_requests(const std::string& operation, std::size_t size, const trace& recorded) {
    if (recorded.still_taken != 0) {
        return;
    }
    measure(operation, "floor", size, [recorded](benchmark::State& state) {
        replay requests(recorded);
        for (auto _ : state) {
            requests.take_and_copy();
        }
    });
    measure(operation, "requests", size, [recorded](benchmark::State& state) {
        replay requests(recorded);
        for (auto _ : state) {
            requests.take();
        }
    });
}

template <class Holder> void measure_destroy(benchmark::State& state, std::size_t items) {
    const auto source = original<Holder>(items);
    std::vector<Holder> holders;
    const std::size_t count = std::max<std::size_t>(1, 64 / items);
    holders.reserve(count);
    while (state.KeepRunningBatch(static_cast<benchmark::IterationCount>(count))) {
        for (std::size_t index = 0; index < count; ++index) {
            holders.push_back(source);
        }
        const auto start = std::chrono::steady_clock::now();
        holders.clear();
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(time.count());
    }
}

/// The operations of a holder, each as something that can be repeated and recorded.
template <class Holder> struct operations {
    std::size_t items;
    Holder source = original<Holder>(items);
    Holder target = source;

    void build_one() {
        Holder built;
        build(built, source_of(items));
        benchmark::DoNotOptimize(built);
    }
    void copy() {
        Holder copied = source;
        benchmark::DoNotOptimize(copied);
    }
    void assign() {
        target = source;
        benchmark::DoNotOptimize(target);
    }
    void move() { // there and back
        Holder moved = std::move(target);
        target = std::move(moved);
        benchmark::DoNotOptimize(target);
    }
    void read_all() { benchmark::DoNotOptimize(read(source)); }
    void build_from_copies() {
        if constexpr (std::same_as<Holder, nota_fiscal>) {
            benchmark::DoNotOptimize(build_by_copies(source_of(items)));
        }
    }
};

template <class Holder> using operation = void (operations<Holder>::*)();

template <class Holder> std::vector<std::pair<std::string, operation<Holder>>> repeatable() {
    using of = operations<Holder>;
    std::vector<std::pair<std::string, operation<Holder>>> result{
        {"build", &of::build_one},
        {"copy", &of::copy},
        {"assign", &of::assign},
        {"read", &of::read_all},
    };
    if constexpr (!std::same_as<Holder, tree::nota_fiscal>) { // it has no move
        result.emplace_back("move", &of::move);
    }
    if constexpr (std::same_as<Holder, nota_fiscal>) {
        result.emplace_back("build, by copies", &of::build_from_copies);
    }
    return result;
}

template <class Holder> trace record_operation(operation<Holder> run, std::size_t items) {
    operations<Holder> all{items};
    return record([&] { (all.*run)(); });
}

template <class Holder> void measure_holder(const std::string& name) {
    for (const std::size_t items : tables.sizes) {
        for (const auto& [operation, run] : repeatable<Holder>()) {
            measure(operation, name, items, [items, run = run](benchmark::State& state) {
                operations<Holder> all{items};
                for (auto _ : state) {
                    (all.*run)();
                }
            });
            if constexpr (std::same_as<Holder, nota_fiscal>) {
                measure_requests(operation, items, record_operation<Holder>(run, items));
            }
        }
        benchmark::RegisterBenchmark(
            ("destroy/" + name + '/' + std::to_string(items)).c_str(),
            [items](benchmark::State& state) { measure_destroy<Holder>(state, items); })
            ->UseManualTime();
    }
}

/// Many invoices of 10 items at once.
class held_invoices {
public:
    void take(std::size_t count) { held_ = std::vector<nota_fiscal>(count, source_); }
    void give_back() { held_.clear(); }

private:
    const nota_fiscal source_ = original<nota_fiscal>(10);
    std::vector<nota_fiscal> held_;
};

/// The requests of many copies.
class held_blocks {
public:
    void take(std::size_t count) { requests_.take_and_copy(count); }
    void give_back() { requests_.give_back(); }

private:
    replay requests_{record([source = original<nota_fiscal>(10)] { nota_fiscal{source}; })};
};

template <class Held>
void measure_held(benchmark::State& state, std::size_t count, bool giving_back) {
    using clock = std::chrono::steady_clock;
    Held held;
    malloc_trim(0); // how a large heap is released depends on what it held before
    held.take(count);
    held.give_back();
    for (auto _ : state) {
        const auto start = clock::now();
        held.take(count);
        const auto middle = clock::now();
        held.give_back();
        // whoever asks for a large block next waits until the small ones given back are joined
        const auto large = std::make_unique<char[]>(1 << 16);
        benchmark::DoNotOptimize(large.get());
        const std::chrono::duration<double> time =
            giving_back ? clock::now() - middle : middle - start;
        state.SetIterationTime(time.count());
    }
}

template <class Held> void measure_held(const std::string& holder) {
    for (const std::size_t count : tables.held) {
        for (const bool giving_back : {false, true}) {
            const std::string name = giving_back ? "give back/" : "hold/";
            benchmark::RegisterBenchmark((name + holder + '/' + std::to_string(count)).c_str(),
                                         [count, giving_back](benchmark::State& state) {
                                             measure_held<Held>(state, count, giving_back);
                                         })
                ->UseManualTime()
                ->Repetitions(5); // the largest take seconds
        }
    }
}

/// Each thread on an invoice of its own.
void measure_threads() {
    using of = operations<nota_fiscal>;
    const auto add = [](const std::string& name, auto prepare, auto run) {
        for (const int threads : {1, 2}) {
            benchmark::RegisterBenchmark(("threads/" + name).c_str(),
                                         [prepare, run](benchmark::State& state) {
                                             auto own = prepare();
                                             for (auto _ : state) {
                                                 run(*own);
                                             }
                                         })
                ->Threads(threads)
                ->UseRealTime();
        }
    };
    for (const auto& [operation, run] :
         {std::pair{"copy", &of::copy}, {"build", &of::build_one}, {"read", &of::read_all}}) {
        const std::string name = operation;
        add(
            name + "/library", [] { return std::make_unique<of>(of{100}); },
            [run = run](of& own) { (own.*run)(); });
        add(
            name + "/floor",
            [recorded = record_operation<nota_fiscal>(run, 100)] {
                return std::make_unique<replay>(recorded);
            },
            [](replay& own) { own.take_and_copy(); });
    }
}

/// One amount of each item: from a list that was got once, or got again for each item.
void measure_lists() {
    constexpr std::size_t items = 100;
    measure("totals", "list got once", items, [](benchmark::State& state) {
        const auto source = original<nota_fiscal>(items);
        for (auto _ : state) {
            benchmark::DoNotOptimize(read_totals(source));
        }
    });
    measure("totals", "list got for each item", items, [](benchmark::State& state) {
        const auto source = original<nota_fiscal>(items);
        for (auto _ : state) {
            benchmark::DoNotOptimize(read_totals_item_by_item(source));
        }
    });
}

template <class Holder> counts count_requests() {
    constexpr std::size_t few = 10;
    constexpr std::size_t many = 100;
    const auto per_item = [](std::size_t of_many, std::size_t of_few) {
        return static_cast<double>(of_many - of_few) / (many - few);
    };
    counts result;
    for (const auto& [operation, run] : repeatable<Holder>()) {
        result.taken_per_item[operation] = per_item(record_operation<Holder>(run, many).taken,
                                                    record_operation<Holder>(run, few).taken);
    }
    const auto bytes = [](std::size_t items) {
        const auto source = original<Holder>(items);
        std::optional<Holder> copied;
        return record([&] { copied.emplace(source); }).bytes;
    };
    result.bytes_per_item = per_item(bytes(many), bytes(few));
    return result;
}

/// All holders have to hold the same.
template <class Holder> void check(const std::string& name) {
    for (const std::size_t items : tables.sizes) {
        const auto holder = original<Holder>(items);
        if (read(holder) != read(source_of(items))) {
            throw std::logic_error(name + " does not hold what its source holds");
        }
    }
}

template <class Visit> void for_each_holder(Visit visit) {
    visit.template operator()<nota_fiscal>("library");
    visit.template operator()<plain_invoice>("plain structures");
    visit.template operator()<message::nota_fiscal>("protobuf");
    visit.template operator()<arena_message>("protobuf arena");
    visit.template operator()<tree::nota_fiscal>("XSD tree");
}

} // namespace

} // namespace kivo::benchmarks

int main(int count, char** arguments) {
    using namespace kivo::benchmarks;
    // as in a program that has run for a while: the heap keeps its pages, and malloc knows that
    // there are threads
    mallopt(M_TRIM_THRESHOLD, -1);
    mallopt(M_MMAP_THRESHOLD, 1 << 25);
    std::thread([] {}).join();

    std::vector<char*> with_defaults{arguments[0]};
    std::string defaults[] = {"--benchmark_repetitions=9", "--benchmark_min_time=0.05",
                              "--benchmark_enable_random_interleaving=true"};
    for (std::string& argument : defaults) {
        with_defaults.push_back(argument.data());
    }
    with_defaults.insert(with_defaults.end(), arguments + 1, arguments + count);
    int given = static_cast<int>(with_defaults.size());
    benchmark::Initialize(&given, with_defaults.data());
    if (benchmark::ReportUnrecognizedArguments(given, with_defaults.data())) {
        return 1;
    }

    std::map<std::string, counts> counted;
    for_each_holder([&]<class Holder>(const char* name) {
        check<Holder>(name);
        counted[name] = count_requests<Holder>();
        measure_holder<Holder>(name);
    });
    measure_held<held_invoices>("library");
    measure_held<held_blocks>("floor");
    measure_threads();
    measure_lists();
    measure_documents();

    results measured;
    benchmark::RunSpecifiedBenchmarks(&measured);
    print(measured, tables, counted);
    print_documents(measured);
    return 0;
}

#include "allocations.hpp"
#include "holders.hpp"

#include <layout/xml.hpp>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>

/// The library without its peers, which are built over one standard library alone: a line for each
/// operation, with the blocks it takes and its time in microseconds, apart by tabs.
namespace kivo::benchmarks {

namespace {

namespace layout = erp::v12::layout;

/// Takes any result, so that no work is left out.
volatile std::uint64_t taken;

double microseconds(const std::function<void()>& operation) {
    using clock = std::chrono::steady_clock;
    const auto start = clock::now();
    std::chrono::duration<double, std::micro> time{};
    std::size_t times = 0;
    for (; time < std::chrono::milliseconds(100); ++times) {
        operation();
        time = clock::now() - start;
    }
    return time.count() / static_cast<double>(times);
}

void tell(const std::string& name, const std::function<void()>& operation) {
    operation(); // what is made once is there
    const std::size_t blocks = record(operation).taken;
    std::printf("%s\t%zu\t%.2f\n", name.c_str(), blocks, microseconds(operation));
}

void tell_invoice() {
    const nota_fiscal sample = sample_invoice(100);
    const plain_invoice source = plain_copy(sample);
    nota_fiscal target = sample;
    tell("build", [&] {
        nota_fiscal built;
        build(built, source);
        taken = taken + built.get_produtos().size();
    });
    tell("build, by copies", [&] { taken = taken + read_totals(build_by_copies(source)); });
    tell("copy", [&] {
        const nota_fiscal copied = sample;
        taken = taken + reinterpret_cast<std::uintptr_t>(&copied);
    });
    tell("assign", [&] { target = sample; });
    tell("read", [&] { taken = taken + read(sample); });
}

void tell_document(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string xml{std::istreambuf_iterator<char>(file), {}};
    const layout::invoice_document document = layout::read_xml(xml);
    tell("read nfe.xml", [&] { taken = taken + layout::read_xml(xml).kept.size(); });
    tell("write nfe.xml", [&] { taken = taken + layout::write_xml(document).size(); });
}

} // namespace

} // namespace kivo::benchmarks

int main() {
    kivo::benchmarks::tell_invoice();
    kivo::benchmarks::tell_document(KIVO_SAMPLES "/nfe.xml");
    return 0;
}

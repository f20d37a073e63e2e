#include "expect.hpp"

#include <layout/xml.hpp>
#include <round_trip.hpp>

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

/// Arbitrary bytes as an invoice's document: refused with a reason, or read so that the report
/// tells all that is written otherwise, and what is written comes back.
namespace kivo::tests {

namespace {

using erp::v12::layout::read_xml;

void try_document(std::string_view xml) {
    try {
        read_xml(xml);
    } catch (const std::runtime_error&) {
        return; // refused
    }
    for (const std::string& fault : faults_of_round_trip(xml)) {
        expect(false, fault.c_str());
    }
}

} // namespace

} // namespace kivo::tests

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kivo::tests::try_document({reinterpret_cast<const char*>(data), size});
    return 0;
}

#include "expect.hpp"

#include <layout/xml.hpp>

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

/// Arbitrary bytes as an invoice's document: refused with a reason, or read so that what is written
/// from it comes back.
namespace kivo::tests {

namespace {

using namespace erp::v12::layout;

void try_document(std::string_view xml) {
    invoice_document document;
    try {
        document = read_xml(xml);
    } catch (const std::runtime_error&) {
        return;
    }
    expect(document.report.texts_in_fields <= document.report.texts, "held more than there is");
    const std::string written = write_xml(document.invoice, document.outside);
    const report again = read_xml(written).report;
    expect(again.refused.empty() && again.without_field.empty() && again.without_room.empty() &&
               again.written_otherwise.empty() && again.added.empty(),
           "wrote what does not come back as it is");
}

} // namespace

} // namespace kivo::tests

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kivo::tests::try_document({reinterpret_cast<const char*>(data), size});
    return 0;
}

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
    expect(document.result.texts_read <= document.result.texts, "read more than there is");
    const std::string written = write_xml(document.invoice, document.outside);
    const invoice_document again = read_xml(written);
    expect(again.result.refused.empty(), "wrote what it refuses");
    expect(again.result.unread.empty(), "wrote what it does not read");
    expect(write_xml(again.invoice, again.outside) == written,
           "written otherwise than it was read");
}

} // namespace

} // namespace kivo::tests

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kivo::tests::try_document({reinterpret_cast<const char*>(data), size});
    return 0;
}

#include "support/failing_operation.hpp"
#include "support/failures.hpp"

#include <layout/xml.hpp>

#include <gtest/gtest.h>

#include <optional>
#include <string>

/// The companion over base values that throw.
namespace kivo::tests {

using namespace erp::v12::layout;

// Catches a value that is lost where it is read or written, and a failure that is swallowed.
TEST(companion_throws, loses_no_value_and_lets_failures_through) {
    for (const char* const name :
         {"medicine.xml", "references.xml", "import.xml", "ibs-cbs-regular.xml"}) {
        SCOPED_TRACE(name);
        const tree sample = parse_file(KIVO_SOURCE_DIR "/examples/data/" + std::string(name));
        const invoice_document document = read_document(sample);
        const std::string written = write_xml(document);
        EXPECT_GT(counting::live, 20U);
        EXPECT_NE(written.find("<vNF>"), written.npos);
        fail_each<failing_operation>(
            promise::either, [] { return std::optional<invoice_document>(); },
            [&](auto& target) { target.emplace(read_document(sample)); },
            [](const auto& target, const auto&) { EXPECT_FALSE(target.has_value()); });
        fail_each<failing_operation>(
            promise::either, [] { return 0; }, [&](int&) { write_xml(document); },
            [&](int&, const auto&) { EXPECT_EQ(write_xml(document), written); });
    }
}

} // namespace kivo::tests

#include "support/failures.hpp"

#include <layout/check.hpp>
#include <layout/xml.hpp>
#include <layout/xml_text.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <fstream>
#include <new>
#include <sstream>
#include <string>
#include <vector>

/// What the companion does when memory runs out.
namespace kivo::tests {

using namespace erp::v12::layout;

struct sample_document {
    std::string xml;
    tree parsed;
    std::vector<placed_text> texts;
    invoice_document read;
};

sample_document sample_of(const std::string& name) {
    std::ifstream file(KIVO_SOURCE_DIR "/examples/data/" + name, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    sample_document result{content.str(), {}, {}, {}};
    // texts of elements without a field, one with too long a path for the string itself
    const std::string wanted = "<infAdic>";
    if (const std::size_t at = result.xml.find(wanted); at != result.xml.npos) {
        result.xml.insert(result.xml.find("</infAdic>"),
                          "<obsCont xCampo=\"campo\"><xTexto>texto</xTexto></obsCont>");
    }
    result.parsed = parse_xml(result.xml);
    result.texts = texts_of(invoice_in(result.parsed));
    result.read = read_document(result.parsed);
    EXPECT_FALSE(result.read.report.texts == 0);
    return result;
}

/// Runs `operation()` while each of its allocations fails. No block is left over.
template <class Operation> void fail_and_leave_nothing(promise promised, Operation operation) {
    fail_each_allocation(
        promised, [] { return 0; }, [&](int&) { operation(); },
        [](int&, std::size_t live) { EXPECT_EQ(live_blocks(), live) << "leaks"; });
}

/// Runs `operation(sample)` on samples while each of its allocations fails. What it works on stays
/// as it was. Copies that may not fail, and end the process, are those of the fiscal classes.
template <class Operation> void fail_on_samples(promise promised, Operation operation) {
    for (const char* const name :
         {"medicine.xml", "references.xml", "import.xml", "ibs-cbs-regular.xml"}) {
        SCOPED_TRACE(name);
        const sample_document sample = sample_of(name);
        const std::string before = write_xml(sample.read);
        fail_and_leave_nothing(promised, [&] { operation(sample); });
        EXPECT_EQ(write_xml(sample.read), before);
    }
}

// Catches a failure that is swallowed, that ends the process, or that leaves a block behind.
TEST(companion_failures, parsing_lets_them_through) {
    fail_on_samples(promise::propagates,
                    [](const sample_document& sample) { parse_xml(sample.xml); });
}

TEST(companion_failures, reading_lets_them_through) {
    fail_on_samples(promise::either,
                    [](const sample_document& sample) { read_document(sample.parsed); });
}

TEST(companion_failures, writing_lets_them_through) {
    fail_on_samples(promise::either, [](const sample_document& sample) { write_xml(sample.read); });
}

// Catches a failure of the companion's own that ends the process: an empty invoice copies nothing.
TEST(companion_failures, writing_an_empty_invoice_lets_them_through) {
    const erp::v12::fiscal::nota_fiscal empty;
    fail_and_leave_nothing(promise::propagates, [&] { write_tree(empty); });
}

// Catches faults that are lost where there is no memory to sort them in.
TEST(companion_failures, checking_lets_them_through_or_finds_the_same) {
    const tree wrong = tree_of("infNFe", {{"ide/cUF", "1"}, {"ide/cor", "azul"}, {"total", "x"}});
    const std::vector<fault> expected = check(wrong.root());
    EXPECT_GT(expected.size(), 10U);
    std::size_t failures = 0;
    bool reached = true;
    for (std::size_t allowed = 0; reached; ++allowed) {
        const std::size_t start = live_blocks();
        std::vector<fault> found;
        bool failed = false;
        {
            const allocation_limit limit(allowed);
            try {
                found = check(wrong.root());
            } catch (const std::bad_alloc&) {
                failed = true;
            }
            reached = limit.was_reached();
        }
        if (!failed) {
            EXPECT_EQ(found, expected) << allowed;
        }
        std::vector<fault>().swap(found);
        EXPECT_EQ(live_blocks(), start) << allowed;
        failures += failed ? 1 : 0;
    }
    EXPECT_GT(failures, 50U);
}

TEST(companion_failures, comparing_lets_them_through) {
    const tree other = write_tree({});
    fail_on_samples(promise::propagates, [&](const sample_document& sample) {
        differences(invoice_in(sample.parsed), other.root());
    });
}

TEST(companion_failures, telling_the_texts_lets_them_through) {
    fail_on_samples(promise::propagates,
                    [](const sample_document& sample) { texts_of(invoice_in(sample.parsed)); });
}

TEST(companion_failures, making_a_tree_of_texts_lets_them_through) {
    fail_on_samples(promise::propagates,
                    [](const sample_document& sample) { tree_of("infNFe", sample.texts); });
}

// Catches an invoice that is half the old one and half the new.
TEST(companion_failures, leave_what_the_result_is_assigned_to) {
    const sample_document sample = sample_of("medicine.xml");
    const invoice_document other = sample_of("references.xml").read;
    const std::string before = write_xml(other);
    fail_each_allocation(
        promise::either, [&] { return other; },
        [&](invoice_document& document) { document = read_xml(sample.xml); },
        [&](const invoice_document& document, std::size_t) {
            EXPECT_EQ(write_xml(document), before);
        });
}

} // namespace kivo::tests

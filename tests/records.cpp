#include "support/classes.hpp"
#include "support/record_order.hpp"

#include <layout/invoice.hpp>

#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace kivo::tests {

using erp::v12::fiscal::nota_fiscal;

std::string content_of(const std::string& file) {
    std::ifstream input(KIVO_SOURCE_DIR "/fiscal/" + file);
    std::ostringstream result;
    result << input.rdbuf();
    return result.str();
}

/// The fields of a class as its record has them, or the class itself where it has no record.
std::vector<std::string> fields_of_the_source(const std::string& name) {
    std::string text = content_of(name + ".cpp");
    std::size_t begin = text.find("struct " + name + "::record {");
    if (begin == text.npos) {
        text = content_of(name + ".hpp");
        begin = text.find("private:");
    }
    EXPECT_NE(begin, text.npos) << name;
    const std::string body = text.substr(begin, text.find("\n};", begin) - begin);
    // the last word before the initialiser, without the mark of a member
    const std::regex field("\n    [^/][^;=]*[ >](\\w+?)_?( = [^;]*)?;");
    std::vector<std::string> result;
    for (std::sregex_iterator at(body.begin(), body.end(), field); at != std::sregex_iterator();
         ++at) {
        result.push_back((*at)[1]);
    }
    return result;
}

// Catches two fields that change places in a record and in the order that the tests expect, and a
// field that does not bear the name of its accessors.
TEST(records, hold_the_fields_in_the_order_of_the_tests) {
    std::size_t classes = 0;
    for_each_class<nota_fiscal>([&]<class Class>(std::type_identity<Class>) {
        const std::string name(erp::v12::layout::detail::type_name<Class>());
        const std::vector<std::string_view> getters = of_class<Class>::getter_names();
        const std::vector<std::size_t> order = fields_in_record_order<Class>();
        std::size_t next = 0;
        for (const std::string& field : fields_of_the_source(name)) {
            std::size_t reached = 0;
            for (; next < order.size() && reaches(getters[order[next]], field); ++next) {
                ++reached;
            }
            EXPECT_GT(reached, 0U) << name << "::" << field << " where the tests have "
                                   << (next < order.size() ? getters[order[next]] : "no more");
        }
        EXPECT_EQ(next, getters.size()) << name;
        EXPECT_EQ(order.size(), getters.size()) << name << ", an unknown name in its order";
        ++classes;
    });
    EXPECT_GT(classes, 100U);
}

} // namespace kivo::tests

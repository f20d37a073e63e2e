#include "support/documents.hpp"
#include "support/round_trip.hpp"
#include "support/tried.hpp"

#include <layout/check.hpp>
#include <layout/xml.hpp>
#include <layout/xml_text.hpp>

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <exception>
#include <functional>
#include <iterator>
#include <set>
#include <string>
#include <utility>
#include <vector>

/// Documents that nobody wrote, through the objects and back.
namespace kivo::tests {

using namespace erp::v12::layout;

/// Of how many documents one is tried: an emulator has no time for all.
std::size_t asked_share() {
    const char* const share = std::getenv("KIVO_ONE_DOCUMENT_OF");
    return share == nullptr ? 1 : std::stoul(share);
}

/// Documents that differ from sound ones in one point each.
class variations : public ::testing::Test {
protected:
    /// Tries a document; `what` names the point.
    void try_document(const element& infnfe, const std::string& what) {
        if (++made_ % one_of_ != 0) {
            return;
        }
        ++tried("documents with one fault or none");
        std::string told;
        try {
            for (const std::string& fault : faults_of_round_trip(document_of(infnfe))) {
                told += "\n    " + fault;
            }
        } catch (const std::exception& failure) {
            told = std::string("\n    ") + failure.what();
        }
        if (!told.empty() && ++failed_ <= 20) {
            ADD_FAILURE() << what << told;
        }
    }

    ~variations() override { EXPECT_LE(failed_, 20) << "only the first of them are shown"; }

private:
    int failed_ = 0;
    std::size_t made_ = 0;
    const std::size_t one_of_ = asked_share();
};

/// A document on one line for each element, so that two of them can be compared.
std::string lines_of(std::string xml) {
    for (std::size_t at = 0; (at = xml.find("><", at)) != xml.npos;) {
        xml.insert(++at, "\n");
    }
    return xml;
}

// Catches a text of an element that is lost, bent, or told of for nothing.
TEST_F(variations, of_each_text_that_an_element_may_have) {
    for_each_rule([&](const element_rule& rule) {
        ++tried("elements and attributes of the layout");
        for (const std::string& text : texts_for(rule)) {
            ++tried("codes, bounds and other texts of theirs");
            const element infnfe = small_document{&rule, 1, text}.infnfe();
            EXPECT_TRUE(check(tree_of(infnfe).root()).empty())
                << rule.path() << " \"" << text << '"';
            try_document(infnfe, rule.path() + " \"" + text + '"');
        }
    });
}

// Catches a text that the layout does not allow, and that is bent to fit without a word.
TEST_F(variations, of_texts_that_an_element_may_not_have) {
    for_each_rule([&](const element_rule& rule) {
        const std::string& own = usual_text(rule);
        for (const std::string& text :
             {std::string(), std::string(" "), std::string("x"), ' ' + own, own + ' ', '0' + own,
              own + '0', own + 'x', '-' + own, own + ".0", std::string("18446744073709551617"),
              std::string("00000000000000"), std::string("\n\t&<\"\u20AC")}) {
            try_document(small_document{&rule, 1, text}.infnfe(), rule.path() + " \"" + text + '"');
        }
    });
}

// Catches an element of several that is lost, and one too many that is written or not told.
TEST_F(variations, of_how_often_an_element_stands) {
    for_each_rule([&](const element_rule& rule) {
        for (const unsigned times : {0U, 2U, rule.most() + 1}) {
            if (times > 1 && rule.is_attribute()) {
                continue; // no XML document
            }
            try_document(small_document{&rule, times}.infnfe(),
                         rule.path() + ", " + std::to_string(times) + " times");
        }
        if (rule.is_group()) {
            element infnfe = small_document{&rule}.infnfe();
            element& parent = infnfe.at(rule.parent()->path());
            const auto own =
                parent.inner.begin() + (parent.find(rule.name()) - parent.inner.data());
            parent.inner.insert(own, {own->name, "", {}});
            try_document(infnfe, rule.path() + " behind an empty one");
        }
    });
}

/// Calls `visit(document, rule)` for each element of the layout, with a large document that has it.
template <class Visit> void for_each_in_large_documents(Visit visit) {
    const std::vector<element> all = large_documents();
    for_each_rule([&](const element_rule& rule) {
        const auto has_it = [&](const element& infnfe) { return has(infnfe, rule.path()); };
        const auto found = std::find_if(all.begin(), all.end(), has_it);
        ASSERT_NE(found, all.end()) << rule.path();
        visit(*found, rule);
    });
}

// Catches an element whose absence is read as a value, and one that is lost with its neighbour.
TEST_F(variations, of_large_documents_without_an_element_and_its_neighbour) {
    for (const element& infnfe : large_documents()) {
        EXPECT_TRUE(check(tree_of(infnfe).root()).empty());
        try_document(infnfe, "as it is");
    }
    for_each_in_large_documents([&](element infnfe, const element_rule& rule) {
        element& parent = infnfe.at(rule.parent()->path());
        const auto at = parent.inner.begin() + (parent.find(rule.name()) - parent.inner.data());
        const auto next = parent.inner.erase(at);
        try_document(infnfe, "without " + rule.path());
        if (next != parent.inner.end()) {
            const std::string name = next->name;
            parent.inner.erase(next);
            try_document(infnfe, "without " + rule.path() + " and " + name);
        }
    });
}

// Catches a group that is lost because it is empty, or made of what is not there.
TEST_F(variations, of_large_documents_with_a_group_that_is_empty_or_almost) {
    for_each_in_large_documents([&](element infnfe, const element_rule& rule) {
        element& changed = infnfe.at(rule.path());
        const std::vector<element> content = std::exchange(changed.inner, {});
        changed.text.clear();
        try_document(infnfe, rule.path() + " empty");
        for (const element& inner : content) {
            changed.inner = {inner};
            try_document(infnfe, rule.path() + " with nothing but " + inner.name);
            if (rule.most() == 1 && rule.parent()->most() == 1) {
                element twice = infnfe;
                element& parent = twice.at(rule.parent()->path());
                const auto own =
                    parent.inner.begin() + (parent.find(rule.name()) - parent.inner.data());
                parent.inner.insert(own + 1, {own->name, "", content});
                try_document(twice,
                             rule.path() + " with nothing but " + inner.name + ", and once more");
            }
        }
    });
}

// Catches what the layout does not know, or not there, and that is lost or written anywhere.
TEST_F(variations, of_what_stands_where_nothing_knows_it) {
    for_each_rule([&](const element_rule& rule) {
        for (const element& foreign : {element{"xNada", "1", {}}, element{"@cor", "azul", {}},
                                       element{"ide", "", {{"cUF", "35", {}}}}}) {
            element infnfe = small_document{&rule}.infnfe();
            element& changed = infnfe.at(rule.path());
            if (!rule.is_attribute()) {
                changed.inner.insert(changed.inner.begin(), foreign);
                try_document(infnfe, rule.path() + " with " + foreign.name + " in it");
            }
        }
        element infnfe = small_document{&rule}.infnfe();
        infnfe.at(rule.path()).name = rule.is_attribute() ? "@outro" : "outro";
        try_document(infnfe, rule.path() + " under another name");
    });
}

// Catches elements that change places without a word.
TEST_F(variations, of_the_order_of_elements) {
    for_each_in_large_documents([&](element infnfe, const element_rule& rule) {
        element& parent = infnfe.at(rule.parent()->path());
        const auto own = parent.inner.begin() + (parent.find(rule.name()) - parent.inner.data());
        if (own + 1 != parent.inner.end()) {
            std::iter_swap(own, own + 1);
            try_document(infnfe, rule.path() + " and " + own->name + " in the other's place");
            std::iter_swap(own, own + 1);
            std::rotate(own, own + 1, parent.inner.end());
            try_document(infnfe, rule.path() + " behind all others");
        }
    });
}

// Catches an element that takes the place of another, of which there can be only one.
TEST_F(variations, of_elements_that_exclude_each_other) {
    for_each_rule([&](const element_rule& rule) {
        for (const element_rule& other : rule.parent()->children()) {
            if (exclude_each_other(rule, other)) {
                element infnfe = small_document{&rule}.infnfe();
                const element added = small_document{&other}.infnfe().at(other.path());
                element& parent = infnfe.at(rule.parent()->path());
                parent.inner.push_back(added);
                try_document(infnfe, rule.path() + " before " + added.name);
                std::rotate(parent.inner.begin(), parent.inner.end() - 1, parent.inner.end());
                try_document(infnfe, rule.path() + " behind " + added.name);
            }
        }
    });
}

// Catches an element without a field that does not ride along where nothing is wrong with it.
TEST_F(variations, of_large_documents_ride_along_whole) {
    std::set<std::string> without_field;
    for (const element& infnfe : large_documents()) {
        const std::string xml = document_of(infnfe);
        const invoice_document document = read_xml(xml);
        for (const auto* const list : {&document.report.refused, &document.report.written_otherwise,
                                       &document.report.without_room, &document.report.added}) {
            EXPECT_TRUE(list->empty()) << list->front().path << ' ' << list->front().text;
        }
        EXPECT_EQ(document.report.unknown, std::vector<std::string>());
        EXPECT_EQ(lines_of(write_xml(document)), lines_of(xml));
        for (const std::string& path : document.report.without_field) {
            without_field.insert(rule_at(path)->path());
        }
    }
    EXPECT_GE(without_field.size(), 70U);
}

/// All elements in one, itself among them.
std::vector<element*> elements_in(element& root) {
    std::vector<element*> result{&root};
    for (element& inner : root.inner) {
        const std::vector<element*> below = elements_in(inner);
        result.insert(result.end(), below.begin(), below.end());
    }
    return result;
}

/// Changes a document in one point, which numbers choose.
void change(element& infnfe, unsigned kind, unsigned first, unsigned second) {
    const std::vector<element*> all = elements_in(infnfe);
    element& changed = *all[first % all.size()];
    element& other = *all[second % all.size()];
    std::vector<element>& inner = changed.inner;
    const auto is_attribute = [](const element& each) { return each.name.starts_with('@'); };
    switch (kind % 8) {
    case 0:
        inner.clear();
        break;
    case 1:
        changed.text = other.text;
        break;
    case 2:
        if (!inner.empty()) {
            inner.erase(inner.begin() + static_cast<std::ptrdiff_t>(second % inner.size()));
        }
        break;
    case 3:
        if (!inner.empty() && !is_attribute(inner[second % inner.size()])) {
            inner.push_back(inner[second % inner.size()]);
        }
        break;
    case 4:
        if (inner.size() > 1) {
            std::swap(inner[second % inner.size()], inner.back());
        }
        break;
    case 5:
        if (&changed != &infnfe && !is_attribute(changed) && !is_attribute(other)) {
            changed.name = other.name;
        }
        break;
    case 6: {
        const element added = other; // it may be one of those around
        if (!is_attribute(changed) && !is_attribute(added)) {
            inner.insert(inner.begin() + static_cast<std::ptrdiff_t>(second % (inner.size() + 1)),
                         added);
        }
        break;
    }
    default: {
        const std::vector<element> content = other.inner;
        if (!is_attribute(changed)) {
            std::copy_if(content.begin(), content.end(), std::back_inserter(inner),
                         [&](const element& each) { return !is_attribute(each); });
        }
    }
    }
}

// Catches what only several faults together bring about.
TEST(random_documents, are_told_as_they_are) {
    // the same documents each time, unless others are asked for
    const std::string total = std::to_string(1000 / asked_share());
    setenv("RC_PARAMS", ("seed=1 max_size=20 max_success=" + total).c_str(), 0);
    const std::vector<element> large = large_documents();
    EXPECT_TRUE(rc::check([&] {
        element infnfe = large[*rc::gen::inRange<std::size_t>(0, large.size())];
        const auto changes = *rc::gen::container<std::vector<std::array<unsigned, 3>>>(
            rc::gen::arbitrary<std::array<unsigned, 3>>());
        for (const auto& [kind, first, second] : changes) {
            change(infnfe, kind, first, second);
        }
        const std::string xml = document_of(infnfe);
        RC_PRE(xml.size() < 1'000'000U);
        ++tried("random documents");
        std::string told;
        for (const std::string& fault : faults_of_round_trip(xml)) {
            told += fault + '\n';
        }
        if (!told.empty()) {
            RC_LOG() << xml << '\n';
            RC_FAIL(told);
        }
    }));
}

/// What was told of an invoice, a line for each.
std::vector<std::string> lines_told(const invoice_document& document) {
    std::vector<std::string> result;
    for (const std::string& path : document.report.without_field) {
        result.push_back("no field: " + path);
    }
    for (const std::string& path : document.report.unknown) {
        result.push_back("unknown: " + path);
    }
    const auto add = [&](const char* kind, const std::vector<report::remark>& remarks) {
        for (const report::remark& each : remarks) {
            result.push_back(kind + (": " + each.path) + " [" + each.text + "] " + each.instead);
        }
    };
    add("refused", document.report.refused);
    add("otherwise", document.report.written_otherwise);
    add("no room", document.report.without_room);
    add("added", document.report.added);
    for (const std::string& path : document.beside) {
        result.push_back("beside: " + path);
    }
    return result;
}

/// The smallest element at a path, with what it has to have.
element small_element(std::string_view path) {
    return small_document{rule_at(path)}.infnfe().at(path);
}

// Catches a text that the objects cannot hold, or hold besides, and that nobody is told of.
TEST(documents, tell_what_the_objects_cannot_tell) {
    const std::string icms = "det/imposto/ICMS/";
    const std::string ipi = "det/imposto/IPI";
    const auto without = [](const std::string& path) {
        return [path](element& infnfe) {
            const std::size_t slash = path.rfind('/');
            std::erase_if(infnfe.at(path.substr(0, slash)).inner,
                          [&](const element& each) { return each.name == path.substr(slash + 1); });
        };
    };
    const auto with_text = [](const std::string& path, const std::string& text) {
        return [path, text](element& infnfe) { infnfe.at(path).text = text; };
    };
    const auto emptied = [](const std::string& path) {
        return [path](element& infnfe) { infnfe.at(path).inner.clear(); };
    };
    const auto as_it_is = [](element&) {};
    const struct {
        std::string with; ///< the element that the smallest document has
        std::function<void(element&)> change;
        std::vector<std::string> told;
    } rows[] = {
        {icms + "ICMS51/modBC",
         with_text(icms + "ICMS51/modBC", "0"),
         {"no room: det/imposto/ICMS/ICMS51/modBC [0] "}},
        {icms + "ICMS51/modBC", with_text(icms + "ICMS51/modBC", "1"), {}},
        {icms + "ICMS51/vBC", as_it_is, {"added: det/imposto/ICMS/ICMS51/modBC [] 0"}},
        {icms + "ICMSSN102", as_it_is, {"added: det/imposto/ICMS/ICMSSN102/orig [] 0"}},
        {icms + "ICMSSN900", as_it_is, {"added: det/imposto/ICMS/ICMSSN900/orig [] 0"}},
        {"det/prod/comb/encerrante",
         [](element& infnfe) {
             element& comb = infnfe.at("det/prod/comb");
             for (element& each : comb.at("encerrante").inner) {
                 each.text = "0";
             }
             comb.inner.push_back({"pBio", "15", {}});
         },
         {"no room: det/prod/comb/encerrante [] "}},
        {"det", without("det/prod/vUnCom"), {"added: det/prod/vUnCom [] 0"}},
        {"det",
         with_text("det/prod/vUnCom", "1,50"),
         {"refused: det/prod/vUnCom [1,50] a decimal number such as 1234.56, of at most 17 digits, "
          "15 of them decimal places",
          "added: det/prod/vUnCom [] 0"}},
        {"det", without("det/prod/vUnTrib"), {"added: det/prod/vUnTrib [] 0"}},
        {"det/prod/DI",
         without("det/prod/DI/adi/nSeqAdic"),
         {"added: det/prod/DI/adi/nSeqAdic [] 0"}},
        {ipi, without(ipi + "/cEnq"), {"added: det/imposto/IPI/cEnq [] 000"}},
        {ipi,
         with_text(ipi + "/cEnq", "x"),
         {"refused: det/imposto/IPI/cEnq [x] 3 digits", "added: det/imposto/IPI/cEnq [] 000"}},
        {"total", without("total/ICMSTot/vFCP"), {"added: total/ICMSTot/vFCP [] 0"}},
        {icms + "ICMS40",
         [](element& infnfe) {
             infnfe.at("det/imposto").inner.push_back(small_element("det/imposto/ISSQN"));
         },
         {"no room: det/imposto/ISSQN [] "}},
        {"ide/xJust",
         [](element& infnfe) {
             std::vector<element>& inner = infnfe.at("ide").inner;
             const element last = infnfe.at("ide/verProc");
             std::erase_if(inner, [](const element& each) { return each.name == "verProc"; });
             inner.push_back(infnfe.at("ide/tpNF"));
             inner.push_back(last);
         },
         {"otherwise: ide/verProc [] in the layout's order", "no room: ide/tpNF[2] [0] "}},
        {"ide/xJust", // what passes one that moves may move, too
         [](element& infnfe) {
             std::vector<element>& inner = infnfe.at("ide").inner;
             for (const char* const name : {"tpEmis", "tpImp", "tpNF"}) {
                 const element moved = infnfe.at(std::string("ide/") + name);
                 std::erase_if(inner, [&](const element& each) { return each.name == name; });
                 inner.push_back(moved);
             }
         },
         {"otherwise: ide/tpEmis [] in the layout's order",
          "otherwise: ide/tpImp [] in the layout's order",
          "otherwise: ide/tpNF [] in the layout's order"}},
        {"det/prod/arma",
         [](element& infnfe) {
             infnfe.at("det/prod").inner.push_back(small_element("det/prod/med"));
         },
         {"no room: det/prod/med [] "}},
        {"det/prod/comb",
         [](element& infnfe) {
             infnfe.at("det/prod").inner.push_back(small_element("det/prod/med"));
         },
         {"no room: det/prod/med [] "}},
        {ipi + "/IPITrib",
         [&](element& infnfe) {
             infnfe.at(ipi).inner.push_back(small_element("det/imposto/IPI/IPINT"));
         },
         {"no room: det/imposto/IPI/IPINT [] "}},
        {ipi + "/IPITrib/qUnid",
         with_text(ipi + "/IPITrib/CST", "53"),
         {"no room: det/imposto/IPI/IPITrib [] ", "added: det/imposto/IPI/IPINT/CST [] 53"}},
        {ipi + "/IPITrib",
         with_text(ipi + "/IPITrib/CST", "53"),
         {"no room: det/imposto/IPI/IPITrib [] ", "added: det/imposto/IPI/IPINT/CST [] 53"}},
        {"det/prod/med",
         [](element& infnfe) {
             infnfe.at("det/prod/med").inner = {{"cProdANVISA", "1234567890123", {}},
                                                {"xMotivoIsencao", "RDC", {}},
                                                {"vPMC", "1.00", {}}};
         },
         {"no room: det/prod/med/xMotivoIsencao [RDC] "}},
        {"det", emptied("det/imposto"), {}},
        {"det", without("det/imposto"), {"added: det/imposto [] "}},
        {"cobr", emptied("cobr"), {}},
        {"cobr/fat", emptied("cobr/fat"), {"no room: cobr/fat [] "}},
        {"entrega", with_text("entrega/CNPJ", ""), {}},
        {"infRespTec", with_text("infRespTec/CNPJ", ""), {}},
        {"det/prod/detExport/exportInd", with_text("det/prod/detExport/exportInd/nRE", ""), {}},
        {"det/prod/detExport/exportInd",
         with_text("det/prod/detExport/exportInd/nRE", "123"),
         {"otherwise: det/prod/detExport/exportInd/nRE [123] 000000000123"}},
        {"det/prod/detExport/exportInd",
         with_text("det/prod/detExport/exportInd/nRE", "1234567890123"),
         {"refused: det/prod/detExport/exportInd/nRE [1234567890123] at most 12 digits"}},
        {"emit",
         with_text("emit/CNPJ", "11111111111111"),
         {"refused: emit/CNPJ [11111111111111] a CNPJ, 14 characters; those of one repeated digit "
          "are not issued"}},
        {"dest/IM",
         [](element& infnfe) {
             infnfe.at("dest").inner = {{"CNPJ", "1", {}}, {"IM", "7", {}}};
         },
         {"no field: dest/IM",
          "refused: dest/CNPJ [1] a CNPJ, 14 characters with their check digits"}},
        {"emit",
         with_text("emit/CNPJ", "11222333000182"),
         {"refused: emit/CNPJ [11222333000182] a CNPJ, 14 characters with their check digits"}},
        {"emit",
         with_text("emit/enderEmit/cMun", "1058x"),
         {"refused: emit/enderEmit/cMun [1058x] 7 digits",
          "added: emit/enderEmit/cMun [] 0000000"}},
        {"emit/enderEmit/cPais",
         with_text("emit/enderEmit/cPais", "1058x"),
         {"refused: emit/enderEmit/cPais [1058x] a whole number up to 65535"}},
        {"emit/enderEmit/cPais",
         with_text("emit/enderEmit/cPais", "01058"),
         {"otherwise: emit/enderEmit/cPais [01058] 1058"}},
        {"ide/NFref/refNFe",
         [](element& infnfe) {
             element& ide = infnfe.at("ide");
             ide.inner.push_back(ide.at("NFref"));
             ide.at("NFref").inner = {small_element("ide/NFref/refECF")};
         },
         {"otherwise: ide/NFref[2] [] ide/NFref[1]", "otherwise: ide/NFref[1] [] ide/NFref[2]"}},
        {"ide/NFref/refCTe",
         [](element& infnfe) {
             element& ide = infnfe.at("ide");
             ide.inner.push_back(ide.at("NFref"));
             ide.inner.back().inner = {small_element("ide/NFref/refNFe")};
         },
         {"no field: ide/NFref[1]", "otherwise: ide/NFref[2] [] ide/NFref[1]",
          "otherwise: ide/NFref[1] [] ide/NFref[2]"}},
        {"det", with_text("det/@nItem", "7"), {"otherwise: det/@nItem [7] 1"}},
    };
    for (const auto& row : rows) {
        element infnfe = small_document{rule_at(row.with)}.infnfe();
        row.change(infnfe);
        const std::string xml = document_of(infnfe);
        EXPECT_EQ(lines_told(read_xml(xml)), row.told) << xml;
        EXPECT_EQ(faults_of_round_trip(xml), std::vector<std::string>());
    }
}

} // namespace kivo::tests

#include "support/allocations.hpp"
#include "support/documents.hpp"

#include <layout/check.hpp>
#include <layout/elements.hpp>
#include <layout/tree.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

/// What the layout knows of each element, and what it finds in a document.
namespace kivo::erp::v12::layout {

void PrintTo(const fault& found, std::ostream* output) {
    *output << static_cast<int>(found.is) << ' ' << found.path << " \"" << found.text
            << "\": " << found.demanded;
}

} // namespace kivo::erp::v12::layout

namespace kivo::tests {

using namespace erp::v12::layout;

using faults = std::vector<fault>;
using texts = std::vector<placed_text>;

/// What the layout finds in a document.
faults checked(const small_document& document) { return check(tree_of(document.infnfe()).root()); }

// Catches an element that gets lost between the text and the tables, or into another place.
TEST(elements, are_those_of_the_text_in_its_order) {
    std::ifstream file(KIVO_SOURCE_DIR "/layout/elements.txt");
    const element_rule* rule = &infnfe_rule();
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && std::string_view("#=\t").find(line[0]) == std::string_view::npos) {
            ASSERT_NE(rule, nullptr) << line;
            const std::string path = line.substr(0, line.find('\t'));
            EXPECT_EQ(rule->path(), path == "." ? "" : path);
            rule = next(*rule);
        }
    }
    EXPECT_EQ(rule, nullptr);
    EXPECT_EQ(infnfe_rule().parent(), nullptr);
}

// Catches a name that is found in another group, at another place or not at all.
TEST(elements, are_found_by_name_and_by_path) {
    for_each_rule([](const element_rule& rule) {
        const element_rule& parent = *rule.parent();
        EXPECT_EQ(rule_at(rule.path()), &rule);
        for (unsigned expected = 0; expected <= parent.children().size(); ++expected) {
            EXPECT_EQ(parent.child(rule.name(), expected), &rule) << expected;
        }
        EXPECT_EQ(&parent.children()[rule.position()], &rule);
        EXPECT_EQ(rule.child("infNFe"), nullptr);
        EXPECT_EQ(rule.is_group(), rule.texts().empty());
    });
    EXPECT_EQ(rule_at("det[12]/prod/NVE[3]"), rule_at("det/prod/NVE"));
    EXPECT_EQ(rule_at("det/cProd"), nullptr);
    EXPECT_EQ(rule_at("det//cProd"), nullptr);
}

// Catches runs of characters that a matcher without a way back can't tell apart.
TEST(elements, have_patterns_whose_runs_end_where_the_next_begins) {
    for_each_rule([](const element_rule& rule) {
        for (const text_rule& way : rule.texts()) {
            const auto runs = way.runs();
            EXPECT_EQ(runs.empty(), way.is != text_rule::kind::like);
            for (std::size_t index = 1; index < runs.size(); ++index) {
                for (char character = ' '; character < '\x7F'; ++character) {
                    EXPECT_FALSE(runs[index - 1].least != runs[index - 1].most &&
                                 runs[index - 1].set.has(character) &&
                                 runs[index].set.has(character));
                }
            }
        }
    });
}

void expect_sum(const group_rule& rule) {
    std::uint64_t elements = 0;
    std::uint64_t direct = 0;
    std::uint64_t needed = 0;
    bool may_be_empty = rule.is == group_rule::kind::sequence;
    const group_rule* group = rule.first_group();
    const group_rule* const end = &rule + rule.size;
    const group_rule* part = &rule + 1;
    for (; part < end; part += part->size) {
        elements |= part->elements;
        if (part->is == group_rule::kind::element) {
            EXPECT_EQ(part->elements, std::uint64_t{1} << part->position);
            direct |= part->elements;
            needed |= part->optional ? 0 : part->elements;
        } else {
            EXPECT_EQ(part, group);
            group = part->next_group();
            expect_sum(*part);
        }
        may_be_empty = rule.is == group_rule::kind::sequence ? may_be_empty && part->may_be_empty
                                                             : may_be_empty || part->may_be_empty;
    }
    EXPECT_EQ(part, end);
    EXPECT_EQ(group, nullptr);
    EXPECT_EQ(rule.elements, elements);
    EXPECT_EQ(rule.direct, direct);
    EXPECT_EQ(rule.demanded, rule.is == group_rule::kind::sequence ? needed : 0);
    EXPECT_EQ(rule.may_be_empty, rule.optional || may_be_empty);
}

// Catches a part of a group that is left out where the group is walked or summed up.
TEST(elements, have_groups_that_are_the_sum_of_their_parts) {
    for_each_rule([](const element_rule& rule) {
        if (rule.is_group()) {
            expect_sum(rule.content());
            const std::size_t unused = 64 - rule.children().size();
            EXPECT_EQ(rule.content().elements, ~std::uint64_t{0} >> unused);
        }
    });
}

// Catches a sign of the text that is read as another.
TEST(elements, tell_how_they_stand) {
    const struct {
        std::string_view path;
        std::string_view occurrence;
        std::string_view content;
        std::string_view demanded;
    } rows[] = {
        {"@versao", "1", "text 4", "4.00"},
        {"ide", "1", "group", ""},
        {"ide/serie", "1", "number 1-3", "a whole number from 0 to 999, no zeros in front"},
        {"ide/xJust", "(1)", "text 15-256",
         "15 to 256 characters, none beyond U+00FF, no blank at either end"},
        {"ide/NFref", "0-999", "group", ""},
        {"ide/NFref/refNFe", "(1)", "text 44", "6 digits, 12 digits or capital letters, 26 digits"},
        {"emit/CNAE", "(0-1)", "digits 7", "7 digits"},
        {"det", "1-990", "group", ""},
        {"det/prod/arma", "(1-500)", "group", ""},
        {"det/prod/cEAN", "1", "text 0-14",
         "8 digits; or 12 to 14 digits; or SEM GTIN; or nothing"},
        {"det/prod/NCM", "1", "digits 2 or 8", "2 digits; or 8 digits"},
        {"det/prod/detExport/exportInd/nRE", "1", "digits 1-12 or empty",
         "1 to 12 digits; or nothing"},
        {"det/prod/vFrete", "0-1", "decimal 13.2",
         "up to 13 digits without zeros in front, above 0, then a point and 2 digits, or no point"},
        {"det/prod/DI/tpViaTransp", "1", "number 1-2",
         "1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12 or 13"},
        {"det/imposto/IBSCBS/gAjusteCompet/competApur", "1", "text 7",
         "year and month from 2025 on, AAAA-MM"},
        {"det/imposto/IPI", "(0-1)", "group", ""},
        {"det/imposto/PISST/qBCProd", "(1)", "decimal 12.4",
         "up to 12 digits without zeros in front, then a point and 4 digits, or no point; below 1, "
         "a point and 1 to 4 digits, or no point"},
        {"transp/reboque", "(0-5)", "group", ""},
        {"transp/vol", "0-5000", "group", ""},
        {"infRespTec/hashCSRT", "(1)", "text 28", "20 bytes in base64"},
        {"transp/reboque/placa", "1", "text 6-7",
         "2 to 3 capital letters, 4 digits; or 3 to 4 capital letters, 3 digits; or 7 digits or "
         "capital letters"},
        {"det/imposto/ISSQN/cListServ", "1", "text 5", "2 digits, \".\", 2 digits"},
        {"cana/ref", "1", "text 7", "month and year from 2000 to 2999, MM/AAAA"},
    };
    for (const auto& row : rows) {
        const element_rule* const rule = rule_at(row.path);
        ASSERT_NE(rule, nullptr) << row.path;
        EXPECT_EQ(occurrence_word(*rule), row.occurrence) << row.path;
        EXPECT_EQ(content_word(*rule), row.content) << row.path;
        EXPECT_EQ(demanded_text(*rule), row.demanded) << row.path;
    }
}

// Catches branches that are told apart too well, or not at all.
TEST(elements, exclude_each_other_across_the_branches_of_a_choice) {
    const struct {
        std::string_view group;
        std::string_view left;
        std::string_view right;
        bool exclude;
    } rows[] = {
        {"emit", "CNPJ", "CPF", true},
        {"emit", "CNPJ", "CNPJ", false},
        {"emit", "CNPJ", "xNome", false},
        {"emit", "IM", "CNAE", false},
        {"ide/NFref", "refNFe", "refECF", true},
        {"det/prod", "veicProd", "nRECOPI", true},
        {"det/imposto", "ICMS", "ISSQN", true},
        {"det/imposto", "II", "ISSQN", true},
        {"det/imposto", "ICMS", "IPI", false},
        {"det/imposto", "IPI", "ISSQN", false},
        {"det/imposto/IPI/IPITrib", "vBC", "pIPI", false},
        {"det/imposto/IPI/IPITrib", "pIPI", "qUnid", true},
        {"det/imposto/IPI/IPITrib", "qUnid", "vIPI", false},
        {"transp", "veicTransp", "reboque", false},
        {"transp", "reboque", "balsa", true},
        {"agropecuario", "defensivo", "guiaTransito", true},
    };
    for (const auto& row : rows) {
        const element_rule* const left = rule_at(row.group)->child(row.left);
        const element_rule* const right = rule_at(row.group)->child(row.right);
        EXPECT_EQ(exclude_each_other(*left, *right), row.exclude) << row.left << ' ' << row.right;
        EXPECT_EQ(exclude_each_other(*right, *left), row.exclude) << row.right << ' ' << row.left;
    }
    EXPECT_FALSE(exclude_each_other(*rule_at("emit/CNPJ"), *rule_at("dest/CPF")));
}

// Catches any element that its own document may not have, and each kind of fault where it is made.
TEST(checked_documents, have_the_fault_that_was_made_and_no_other) {
    for_each_rule([](const element_rule& rule) {
        const std::string path = rule.path();
        EXPECT_EQ(checked({&rule}), faults());

        const faults without = checked({&rule, 0});
        if (rule.mandatory()) {
            ASSERT_EQ(without.size(), 1U);
            EXPECT_EQ(without[0].is, fault::kind::missing);
            EXPECT_EQ(without[0].path, path);
        } else if (!rule.nested()) {
            EXPECT_EQ(without, faults());
        }

        const faults too_many = checked({&rule, rule.most() + 1});
        const fault one_too_many{fault::kind::too_many,
                                 path + '[' + std::to_string(rule.most() + 1) + ']',
                                 usual_text(rule), "at most " + std::to_string(rule.most())};
        EXPECT_EQ(std::count(too_many.begin(), too_many.end(), one_too_many), 1);

        const faults wrong_text = checked({&rule, 1, "\u20AC"});
        ASSERT_EQ(wrong_text.size(), 1U);
        EXPECT_EQ(
            wrong_text[0],
            (fault{rule.is_group() ? fault::kind::text_in_group : fault::kind::wrong_text, path,
                   "\u20AC", rule.is_group() ? "elements alone" : demanded_text(rule)}));
    });
}

/// The texts of the smallest document that has an element.
texts texts_with(std::string_view path) {
    return texts_of(tree_of(small_document{rule_at(path)}.infnfe()).root());
}

void change(texts& changed, const std::string& path, const std::string& text) {
    const auto found = std::find_if(changed.begin(), changed.end(),
                                    [&](const placed_text& it) { return it.path == path; });
    ASSERT_NE(found, changed.end()) << path;
    found->text = text;
}

/// Adds a text before another, or behind all.
void add(texts& changed, const std::string& path, const std::string& text,
         const std::string& before = "") {
    changed.insert(std::find_if(changed.begin(), changed.end(),
                                [&](const placed_text& it) { return it.path == before; }),
                   {path, text});
}

/// Moves a text to before another, or behind all.
void move(texts& changed, const std::string& path, const std::string& before = "") {
    const auto found = std::find_if(changed.begin(), changed.end(),
                                    [&](const placed_text& it) { return it.path == path; });
    ASSERT_NE(found, changed.end()) << path;
    const placed_text moved = *found;
    changed.erase(found);
    add(changed, moved.path, moved.text, before);
}

// Catches a fault that is told at another place, more than once, or with another demand.
TEST(checked_documents, tell_where_the_fault_is_and_what_is_demanded) {
    using kind = fault::kind;
    const struct {
        const char* name;
        const char* with;
        std::function<void(texts&)> fault;
        faults expected;
    } rows[] = {
        {"an element of no layout",
         "ide",
         [](texts& all) { add(all, "ide/cor", "azul", "ide/natOp"); },
         {{kind::unknown, "ide/cor", "azul", "no such element in ide"}}},
        {"an element of another group",
         "det",
         [](texts& all) { add(all, "det/cProd", "1"); },
         {{kind::unknown, "det/cProd", "1", "no such element in det"}}},
        {"an attribute",
         "ide",
         [](texts& all) { add(all, "ide/@versao", "4.00"); },
         {{kind::unknown, "ide/@versao", "4.00", "no such attribute in ide"}}},
        {"an element in a text",
         "ide",
         [](texts& all) { add(all, "ide/cUF/sigla", "SP"); },
         {{kind::unknown, "ide/cUF/sigla", "SP", "no such element beside a text"}}},
        {"attributes in another order",
         "ide",
         [](texts& all) { move(all, "@versao", "ide/cUF"); },
         {}},
        {"attributes in another order, and an element that stands too early",
         "ide",
         [](texts& all) {
             move(all, "@versao", "ide/cUF");
             move(all, "transp/modFrete", "ide/cUF");
         },
         {{kind::out_of_order, "transp", "", "behind total"}}},
        {"the first of several too early",
         "det/prod/NVE",
         [](texts& all) {
             add(all, "det/prod/NVE[2]", "AA0000", "det/prod/CFOP");
             move(all, "det/prod/NVE", "det/prod/cEAN");
         },
         {{kind::out_of_order, "det/prod/NVE[1]", "AA0000", "behind NCM"}}},
        {"an element that stands too late",
         "emit",
         [](texts& all) { move(all, "emit/xNome", "emit/CRT"); },
         {{kind::out_of_order, "emit/xNome", "xx", "before enderEmit"}}},
        {"an element that stands too early",
         "emit",
         [](texts& all) { move(all, "emit/CRT", "emit/CNPJ"); },
         {{kind::out_of_order, "emit/CRT", "1", "behind IE"}}},
        {"one of several that stands apart, and one too many",
         "det/prod/NVE",
         [](texts& all) {
             add(all, "det/prod/NVE[2]", "AA0000", "det/prod/cEANTrib");
             add(all, "det/prod/indTot[2]", "1");
         },
         {{kind::out_of_order, "det/prod/NVE[2]", "AA0000", "before CFOP"},
          {kind::too_many, "det/prod/indTot[2]", "1", "at most 1"}}},
        {"one of a choice missing",
         "emit",
         [](texts& all) { std::erase_if(all, [](auto& it) { return it.path == "emit/CNPJ"; }); },
         {{kind::missing, "emit", "", "one of CNPJ, CPF"}}},
        {"one of several rows missing",
         "det/imposto/IPI/IPITrib",
         [](texts& all) {
             std::erase_if(all, [](auto& it) {
                 return it.path == "det/imposto/IPI/IPITrib/vBC" ||
                        it.path == "det/imposto/IPI/IPITrib/pIPI";
             });
         },
         {{kind::missing, "det/imposto/IPI/IPITrib", "",
           "one of vBC with pIPI, qUnid with vUnid"}}},
        {"one of a row missing",
         "ide/xJust",
         [](texts& all) { std::erase_if(all, [](auto& it) { return it.path == "ide/dhCont"; }); },
         {{kind::missing, "ide/dhCont", "",
           "beside xJust: " + demanded_text(*rule_at("ide/dhCont"))}}},
        {"another branch beside the first",
         "emit",
         [](texts& all) { add(all, "emit/CPF", "00000000000", "emit/xNome"); },
         {{kind::excluded, "emit/CPF", "00000000000", "not beside CNPJ"}}},
        {"a branch that shares an element with the other",
         "det/imposto/IPI/IPINT",
         [](texts& all) {
             for (const placed_text& text : texts_with("det/imposto/ICMS/ICMS40")) {
                 if (text.path.starts_with("det/imposto/ICMS/")) {
                     add(all, text.path, text.text, "det/imposto/IPI/cEnq");
                 }
             }
         },
         {{kind::excluded, "det/imposto/ISSQN", "", "not beside ICMS"}}},
        {"a number twice",
         "det",
         [](texts& all) {
             change(all, "det/@nItem", "7");
             for (const placed_text& text : texts(all)) {
                 if (text.path.starts_with("det/")) {
                     add(all, "det[2]" + text.path.substr(3), text.text, "total/ICMSTot/vBC");
                 }
             }
         },
         {{kind::number_repeats, "det[2]/@nItem", "7", "a number that no other det has"}}},
        {"several faults",
         "ide",
         [](texts& all) {
             change(all, "ide/cUF", "");
             change(all, "ide/mod", "57");
             add(all, "ide/mod[2]", "55", "ide/serie");
             change(all, "ide/tpNF", "7");
         },
         {{kind::wrong_text, "ide/cUF", "", demanded_text(*rule_at("ide/cUF"))},
          {kind::wrong_text, "ide/mod[1]", "57", "55 or 65"},
          {kind::too_many, "ide/mod[2]", "55", "at most 1"},
          {kind::wrong_text, "ide/tpNF", "7", "0 or 1"}}},
    };
    for (const auto& row : rows) {
        texts all = texts_with(row.with);
        row.fault(all);
        EXPECT_EQ(check(tree_of("infNFe", all).root()), row.expected) << row.name;
    }
}

// Catches a form that lets a wrong text pass, or refuses a right one.
TEST(checked_texts, follow_their_form) {
    const struct {
        std::string_view path;
        std::vector<std::string> allowed;
        std::vector<std::string> refused;
    } rows[] = {
        {"ide/natOp",
         {"x", "a  b", "\u00FF", "\u00A0", std::string(60, 'x'), "12345678\u00E7", "x\x7Fx"},
         {"", " x", "x ", " ", "a\tb", "a\nb", std::string(61, 'x'), "\u0100", "1234567\u20AC",
          "12345678\u0100", "\xC3", "x\xC3", "\xE9", "\xC3\xC3", "1234567\x80", "x\x1Fx"}},
        {"infAdic/infCpl",
         {std::string(5000, 'x'),
          [] {
              std::string text;
              for (int index = 0; index < 5000; ++index) {
                  text += "\u00E9";
              }
              return text;
          }()},
         {std::string(5001, 'x'), std::string(100, 'x') + '\n'}},
        {"dest/idEstrangeiro",
         {"", "12345", std::string(20, '\x7F')},
         {"1234", "12 45", std::string(21, 'x')}},
        {"ide/cNF", {"00000000"}, {"", "0000000", "000000000", "0000000a", "-0000000"}},
        {"ide/serie", {"0", "7", "999"}, {"", "00", "07", "1000", "x", "-1"}},
        {"ide/nNF", {"1", "999999999"}, {"0", "01", "1000000000", "18446744073709551617"}},
        {"det/@nItem", {"1", "990"}, {"0", "991"}},
        {"avulsa/vDAR",
         {"0", "0.00", "1", "1234567890123.45"},
         {"", ".", "0.", "0.0", "0.000", "00", "01.00", "12345678901234", "1,00", "1.0", "-1.00",
          ".50", "1.00 ", "1.0x"}},
        {"det/prod/vFrete", {"0.01", "0.10", "7"}, {"0", "0.00", "0.1"}},
        {"det/imposto/ICMS/ICMS00/pFCP",
         {"0.00", "0.0000", "2", "999.9999"},
         {"0", "0.0", "0.00000", "1000"}},
        {"det/prod/comb/pGLP",
         {"0", "100", "100.00", "100.0000", "99.9999"},
         {"100.0", "100.01", "101", "0.0", "999"}},
        {"det/prod/comb/pBio",
         {"0.1", "0.0001", "100.0", "99.9"},
         {"0", "0.0", "0.00001", "100.1"}},
        {"det/prod/rastro/qLote",
         {"0", "0.500", "1.5", "12345678.123"},
         {"0.5", "0.50", "1.1234", "123456789"}},
        {"det/imposto/PISST/qBCProd", {"0.5", "0.1234", "1.1234", "7"}, {"1.5", "0.12345"}},
        {"det/prod/vUnCom", {"12345678901.1234567890", "0.1"}, {"0.12345678901", "123456789012"}},
        {"det/imposto/ICMSUFDest/pICMSInter", {"4.00", "12.00"}, {"4", "4.0", "04.00", "4.000"}},
        {"ide/finNFe", {"1", "6"}, {"", "0", "7", "01", "1 ", "11"}},
        {"dest/enderDest/UF", {"SP", "EX"}, {"", "sp", "S", "SPX", "XX"}},
        {"emit/enderEmit/UF", {"SP"}, {"EX"}},
        {"emit/IE", {"ISENTO", "12", "12345678901234"}, {"", "isento", "1", "123456789012345"}},
        {"retirada/CNPJ",
         {"", "12ABC34501DE35", "00000000000000"},
         {"12abc34501de35", "12ABC34501DEA5", "1234567890123", "123456789012345"}},
        {"det/prod/cEAN",
         {"", "SEM GTIN", "12345678", "123456789012", "12345678901234"},
         {"SEM  GTIN", "1234567", "123456789", "123456789012345"}},
        {"det/prod/cBenef",
         {"", "PR123456", "PR12345678", "SEM CBENEF"},
         {"PR1234567", "SEM BENEF"}},
        {"det/prod/CFOP", {"1102", "7949"}, {"4102", "0102", "8102", ",102", "110", "11022"}},
        {"det/imposto/ISSQN/cListServ", {"14.01"}, {"14,01", "1401", "14.0", "14.011"}},
        {"transp/veicTransp/placa",
         {"ABC1D23", "AB1234", "ABCD123", "ABC1234", "ABC123", "1234567"},
         {"A1234", "ABCD12", "ABCD1234", "abc1234", "ABC-123", ""}},
        {"det/prod/nFCI",
         {"01234567-89AB-CDEF-0123-456789ABCDEF"},
         {"01234567-89ab-cdef-0123-456789abcdef", "0123456789ABCDEF0123456789ABCDEF"}},
        {"ide/dPrevEntrega",
         {"2000-01-01", "2024-02-29", "2099-12-31", "2023-04-30", "2023-01-31", "2023-03-31",
          "2023-05-31", "2023-07-31", "2023-08-31", "2023-10-31"},
         {"",           "1999-12-31", "2100-01-01",  "2023-02-29", "2024-02-30",
          "2023-04-31", "2023-00-01", "2023-13-01",  "2023-01-00", "2023-1-01",
          "2023-01x01", "2023x01-01", "2023-06-31",  "2023-09-31", "2023-11-31",
          "2023-02-30", "2023/01/01", "2023-01-011", "2024-0,-30", "20x3-01-01"}},
        {"ide/dhEmi",
         {"2024-02-29T00:00:00-03:00", "2024-12-31T23:59:59+12:00", "2024-01-01T10:00:00-11:00",
          "2024-01-01T10:00:00+00:00"},
         {"2024-02-30T00:00:00-03:00", "2024-01-01T24:00:00-03:00", "2024-01-01T00:60:00-03:00",
          "2024-01-01T00:00:60-03:00", "2024-01-01T00:00:00-12:00", "2024-01-01T00:00:00+13:00",
          "2024-01-01T00:00:00-03:30", "2024-01-01T00:00:00,03:00", "2024-01-01T00:00:00Z",
          "2024-01-01 00:00:00-03:00", "2024-01-01T00:00:00", "2024-01-01"}},
        {"ide/NFref/refNF/AAMM", {"0001", "9912"}, {"0000", "0013", "001", "00011", "x001"}},
        {"det/imposto/IBSCBS/gAjusteCompet/competApur",
         {"2025-01", "9999-12"},
         {"2024-12", "2025-00", "2025-13", "2025-1", "2025-01Z", "12025-01"}},
        {"cana/ref",
         {"01/2000", "12/2999"},
         {"00/2000", "13/2000", "01/1999", "01/3000", "1/2000", "01-2000"}},
        {"infRespTec/hashCSRT",
         {"kobUrRvCy5w9SLWp/X5sCf7QbT0=", "kobUrRvCy5w9SLWp\n/X5sCf7QbT0="},
         {"", "kobUrRvCy5w9SLWp/X5sCf7QbT0",
          "kobUrRvCy5w9SLWp/X5sCf7QbT1=", "kobUrRvCy5w9SLWp/X5sCf7QbQ==",
          "kobUrRvCy5w9SLWp*X5sCf7QbT0=", "kobUrRvCy5w9SLWp/X5sCf7QbT0=A"}},
        {"infPAA/PAASignature/SignatureValue",
         {"", "AA==", "AAA=", "AAAA", "+/Ag", "Ag==", "A0A=", "ZaAz", "0z9Z"},
         {"A", "AA=", "AA", "=", "AB==", "AAAAA", "A===", "====", "AA=A", "A+==", "AA/=", "@AAA",
          "[AAA", "`AAA", "{AAA", ":AAA", ",AAA", ".AAA"}},
        {"ide", {}, {"", "x"}},
    };
    for (const auto& row : rows) {
        const element_rule* const rule = rule_at(row.path);
        ASSERT_NE(rule, nullptr) << row.path;
        for (const std::string& text : row.allowed) {
            EXPECT_TRUE(is_allowed(*rule, text)) << row.path << " \"" << text << '"';
        }
        for (const std::string& text : row.refused) {
            EXPECT_FALSE(is_allowed(*rule, text)) << row.path << " \"" << text << '"';
        }
    }
}

// Catches blanks between elements that are taken for a text.
TEST(checked_documents, may_have_blanks_between_elements) {
    small_document document{rule_at("emit/enderEmit")};
    document.text = "\r\n\t ";
    EXPECT_EQ(checked(document), faults());
    document.text = "\u00A0";
    EXPECT_EQ(checked(document).size(), 1U);
}

// Catches a check that prepares for faults before there is one.
TEST(checked_documents, cost_no_allocation_where_nothing_is_wrong) {
    const tree document = tree_of(small_document{rule_at("det/prod/comb/origComb/pOrig")}.infnfe());
    const std::size_t before = taken_blocks();
    const faults found = check(document.root());
    EXPECT_EQ(taken_blocks(), before);
    EXPECT_TRUE(found.empty());
}

} // namespace kivo::tests

#include <layout/xml.hpp>

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

/// The invoices of examples/data, through the objects and back.
namespace kivo::tests {

using erp::v12::fiscal::decimal;
using erp::v12::fiscal::nota_fiscal;
using erp::v12::layout::invoice_document;
using erp::v12::layout::read_file;
using erp::v12::layout::read_xml;
using erp::v12::layout::write_xml;

const std::string source_folder = KIVO_SOURCE_DIR;
const std::string facts_folder = KIVO_FACTS_DIR;

std::vector<std::string> sample_files() {
    std::vector<std::string> result;
    for (const auto& entry :
         std::filesystem::directory_iterator(source_folder + "/examples/data")) {
        result.push_back(entry.path().string());
    }
    std::sort(result.begin(), result.end());
    EXPECT_GE(result.size(), 20U);
    return result;
}

/// What `visit` finds in the infNFe element of each sample as it is written back.
template <class Visit> void for_each_written_sample(Visit visit) {
    for (const std::string& file : sample_files()) {
        SCOPED_TRACE(file);
        const invoice_document document = read_file(file);
        pugi::xml_document written;
        ASSERT_TRUE(written.load_string(write_xml(document.invoice, document.outside).c_str()));
        visit(written.child("NFe").child("infNFe"));
    }
}

/// Paths and texts in their order; attributes, which have none, by name.
void append_lines(const pugi::xml_node& element, const std::string& path,
                  std::vector<std::string>& lines) {
    lines.push_back(path + ' ' + element.text().get());
    std::vector<std::string> attributes;
    for (const pugi::xml_attribute& attribute : element.attributes()) {
        attributes.push_back(path + "/@" + attribute.name() + ' ' + attribute.value());
    }
    std::sort(attributes.begin(), attributes.end());
    lines.insert(lines.end(), attributes.begin(), attributes.end());
    for (const pugi::xml_node& child : element.children()) {
        if (child.type() == pugi::node_element) {
            append_lines(child, path + '/' + child.name(), lines);
        }
    }
}

std::vector<std::string> lines_of(const pugi::xml_node& element) {
    std::vector<std::string> lines;
    append_lines(element, element.name(), lines);
    return lines;
}

/// The first difference, which says more than two lists of hundreds of lines.
void expect_same(const pugi::xml_node& actual, const pugi::xml_node& expected) {
    const auto actual_lines = lines_of(actual);
    const auto expected_lines = lines_of(expected);
    const auto [left, right] = std::mismatch(actual_lines.begin(), actual_lines.end(),
                                             expected_lines.begin(), expected_lines.end());
    EXPECT_TRUE(left == actual_lines.end() && right == expected_lines.end())
        << (left == actual_lines.end() ? "the end" : *left) << " instead of "
        << (right == expected_lines.end() ? "the end" : *right);
}

/// A sample as it is in its file, but for what was reported as having no field.
struct sample {
    invoice_document document;
    pugi::xml_document file;
    pugi::xml_node infnfe;

    explicit sample(const std::string& name) : document(read_file(name)) {
        EXPECT_TRUE(file.load_file(name.c_str()));
        infnfe = file.select_node("//infNFe").node();
        std::vector<pugi::xml_node> without_field;
        for (const std::string& path : document.report.without_field) {
            without_field.push_back(infnfe.select_node(path.c_str()).node());
        }
        // all are found before the first is gone: their paths count their neighbours
        for (pugi::xml_node& element : without_field) {
            EXPECT_TRUE(element.parent().remove_child(element));
        }
    }
};

// Catches an element that moves, is lost, doubled or changed on its way through the objects.
TEST(samples, come_back_as_they_were) {
    for (const std::string& file : sample_files()) {
        SCOPED_TRACE(file);
        const sample original(file);
        const erp::v12::layout::report& told = original.document.report;
        for (const auto* const list :
             {&told.refused, &told.written_otherwise, &told.without_room, &told.added}) {
            EXPECT_TRUE(list->empty()) << list->front().path;
        }
        pugi::xml_document written;
        written.load_string(
            write_xml(original.document.invoice, original.document.outside).c_str());
        expect_same(written.child("NFe").child("infNFe"), original.infnfe);
    }
}

// Catches a field of an item that its copy lacks, or that only stands in its own invoice.
TEST(samples, give_up_their_items_one_by_one) {
    for (const std::string& file : sample_files()) {
        const sample original(file);
        pugi::xml_node expected = original.infnfe.child("det");
        for (const auto& item : original.document.invoice.get_produtos()) {
            SCOPED_TRACE(file + ", item " + expected.attribute("nItem").value());
            nota_fiscal alone;
            alone.set_produtos({item});
            pugi::xml_document written;
            written.load_string(write_xml(alone).c_str());
            expected.attribute("nItem") = "1";
            expect_same(written.select_node("//det").node(), expected);
            expected = expected.next_sibling("det");
        }
        EXPECT_FALSE(expected);
    }
}

/// The paths of all places that a field has, and of the groups around them.
std::set<std::string> paths_of_fields() {
    std::ifstream file(facts_folder + "/fields.tsv");
    std::set<std::string> result;
    std::string line;
    std::getline(file, line); // names of the columns
    while (std::getline(file, line)) {
        const std::string path = line.substr(0, line.find('\t'));
        for (std::size_t end = path.find('/'); end != path.npos; end = path.find('/', end + 1)) {
            result.insert(path.substr(0, end));
        }
        result.insert(path);
    }
    result.erase(""); // of fields without an element
    EXPECT_GT(result.size(), 700U) << "the layout map has more places";
    return result;
}

// Catches an element that is told to have no field although it has one.
TEST(samples, report_only_what_the_layout_map_lacks) {
    const std::set<std::string> known = paths_of_fields();
    std::size_t told = 0;
    for (const std::string& file : sample_files()) {
        const invoice_document document = read_file(file);
        EXPECT_TRUE(document.report.unknown.empty()) << file;
        for (std::string path : document.report.without_field) {
            while (path.find('[') != path.npos) {
                path.erase(path.find('['), path.find(']') - path.find('[') + 1);
            }
            EXPECT_FALSE(known.contains(path)) << file << ": " << path;
            ++told;
        }
    }
    EXPECT_GT(told, 0U) << "no sample has an element without a field";
}

// Catches a field or an alternative that no sample shows to work.
TEST(samples, use_every_place_of_every_field) {
    std::set<std::string> used;
    for_each_written_sample([&](const pugi::xml_node& infnfe) {
        for (const std::string& line : lines_of(infnfe)) {
            used.insert(line.substr(0, line.find(' ')));
        }
    });
    for (const std::string& path : paths_of_fields()) {
        EXPECT_TRUE(used.contains("infNFe/" + path)) << path;
    }
}

/// In ten-thousandths, of which a sum is exact.
std::int64_t amount_of(const std::string& text) {
    decimal value;
    EXPECT_EQ(core::v7::value_converter<decimal>::make_value(value, text.c_str(), text.size()), 0)
        << text;
    std::int64_t result = value.coefficient();
    EXPECT_LE(value.scale(), 4U);
    for (unsigned scale = value.scale(); scale < 4; ++scale) {
        result *= 10;
    }
    return result;
}

std::int64_t sum_of(const pugi::xml_node& infnfe, const std::string& path) {
    std::int64_t result = 0;
    for (const pugi::xpath_node& found : infnfe.select_nodes(path.c_str())) {
        result += amount_of(found.node().text().get());
    }
    return result;
}

struct total {
    std::string path;
    std::string items;
};

/// Each total of the layout, and the items' elements that it sums up.
std::vector<total> totals() {
    std::vector<total> result;
    const auto add = [&](const std::string& total_group, const std::string& item_group,
                         const std::string& names) {
        std::istringstream input(names);
        for (std::string name; input >> name;) {
            const std::string own_name = name.substr(0, name.find('='));
            result.push_back({"total/" + total_group + '/' + own_name,
                              item_group + '/' + name.substr(name.find('=') + 1)});
        }
    };
    const std::string goods = "det[not(imposto/ISSQN)]";
    const std::string service = "det[imposto/ISSQN]";
    add("ICMSTot", "det/imposto/ICMS/*",
        "vBC vICMS vICMSDeson vFCP vBCST vST=vICMSST vFCPST vFCPSTRet qBCMono vICMSMono "
        "qBCMonoReten vICMSMonoReten qBCMonoRet vICMSMonoRet");
    add("ICMSTot", "det/imposto/ICMSUFDest", "vFCPUFDest vICMSUFDest vICMSUFRemet");
    add("ICMSTot", goods + "/prod[indTot=1]", "vProd");
    add("ICMSTot", "det/prod", "vFrete vSeg vDesc vOutro");
    add("ICMSTot", "det/imposto", "vII=II/vII vIPI=IPI/IPITrib/vIPI vTotTrib");
    add("ICMSTot", "det/impostoDevol/IPI", "vIPIDevol");
    add("ICMSTot", goods + "/imposto", "vPIS=PIS/*/vPIS vCOFINS=COFINS/*/vCOFINS");
    add("ISSQNtot", service,
        "vServ=prod/vProd vPIS=imposto/PIS/*/vPIS vCOFINS=imposto/COFINS/*/vCOFINS");
    add("ISSQNtot", "det/imposto/ISSQN",
        "vBC vISS=vISSQN vDeducao vOutro vDescIncond vDescCond vISSRet");
    add("ISTot", "det/imposto/IS", "vIS");
    const std::string ibs_cbs = "det/imposto/IBSCBS/gIBSCBS/";
    add("IBSCBSTot", ibs_cbs + ".", "vBCIBSCBS=vBC gIBS/vIBS=vIBS");
    const std::string rest = " vDif=gDif/vDif vDevTrib=gDevTrib/vDevTrib";
    add("IBSCBSTot/gIBS/gIBSUF", ibs_cbs + "gIBSUF", "vIBSUF" + rest);
    add("IBSCBSTot/gIBS/gIBSMun", ibs_cbs + "gIBSMun", "vIBSMun" + rest);
    add("IBSCBSTot/gCBS", ibs_cbs + "gCBS", "vCBS" + rest);
    const std::string credit = "det/imposto/IBSCBS/gCredPresOper/";
    add("IBSCBSTot/gIBS", credit + "gIBSCredPres", "vCredPres vCredPresCondSus");
    add("IBSCBSTot/gCBS", credit + "gCBSCredPres", "vCredPres vCredPresCondSus");
    add("IBSCBSTot/gMono", "det/imposto/IBSCBS/gIBSCBSMono/*",
        "vIBSMono vCBSMono vIBSMonoReten vCBSMonoReten vIBSMonoRet vCBSMonoRet");
    return result;
}

// Catches an amount that lands in a neighbour's field in both directions.
TEST(samples, sum_up_to_their_totals) {
    const std::vector<total> all_totals = totals();
    std::set<std::string> met;
    for_each_written_sample([&](const pugi::xml_node& infnfe) {
        for (const total& row : all_totals) {
            const std::int64_t sum = sum_of(infnfe, row.items);
            EXPECT_EQ(sum_of(infnfe, row.path), sum) << row.path;
            if (sum != 0) {
                met.insert(row.path);
            }
        }
        const auto of_invoice = [&](const std::string& name) {
            return sum_of(infnfe, "total/ICMSTot/" + name);
        };
        const std::int64_t invoice_total = of_invoice("vNF");
        EXPECT_EQ(invoice_total,
                  of_invoice("vProd") - of_invoice("vDesc") + of_invoice("vST") +
                      of_invoice("vFCPST") + of_invoice("vICMSMonoReten") + of_invoice("vFrete") +
                      of_invoice("vSeg") + of_invoice("vOutro") + of_invoice("vII") +
                      of_invoice("vIPI") + of_invoice("vIPIDevol") +
                      sum_of(infnfe, "total/ISSQNtot/vServ") -
                      sum_of(infnfe, "det/imposto/ICMS/*[indDeduzDeson=1]/vICMSDeson"));
        const std::int64_t to_pay =
            infnfe.select_node("total/vNFTot") ? sum_of(infnfe, "total/vNFTot") : invoice_total;
        if (!infnfe.select_node("pag/detPag[tPag=90]")) {
            EXPECT_EQ(sum_of(infnfe, "pag/detPag/vPag") - sum_of(infnfe, "pag/vTroco"), to_pay);
        }
    });
    met.insert("total/ICMSTot/vICMSUFRemet"); // the state of origin has had no share since 2019
    for (const total& row : all_totals) {
        EXPECT_TRUE(met.contains(row.path)) << row.path << " is 0 in all samples";
    }
}

// Catches work that grows with the square of the number of items.
TEST(samples, an_invoice_of_990_items_takes_no_time) {
    pugi::xml_document file;
    ASSERT_TRUE(file.load_file((source_folder + "/examples/data/nfe.xml").c_str()));
    pugi::xml_node infnfe = file.select_node("//infNFe").node();
    pugi::xml_node last = infnfe.select_node("det[last()]").node();
    for (int number = last.attribute("nItem").as_int() + 1; number <= 990; ++number) {
        last = infnfe.insert_copy_after(last, last);
        last.attribute("nItem") = number;
    }
    std::ostringstream text;
    file.save(text);

    const auto begin = std::chrono::steady_clock::now();
    const invoice_document document = read_xml(text.view());
    const std::string written = write_xml(document.invoice, document.outside);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;

    EXPECT_EQ(document.invoice.get_produtos().size(), 990U);
    EXPECT_NE(written.find("<det nItem=\"990\">"), written.npos);
    EXPECT_LT(seconds.count(), 5) << "far less than a second without sanitizers";
    RecordProperty("milliseconds", static_cast<int>(seconds.count() * 1000));
}

} // namespace kivo::tests

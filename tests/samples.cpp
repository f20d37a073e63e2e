#include "support/samples.hpp"

#include <layout/invoice.hpp>
#include <layout/xml.hpp>

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

/// The invoices of examples/data, through the objects and back.
namespace kivo::tests {

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
struct sample_file {
    invoice_document document;
    pugi::xml_document file;
    pugi::xml_node infnfe;

    explicit sample_file(const std::string& name) : document(read_file(name)) {
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
        const sample_file original(file);
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
        const sample_file original(file);
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

/// A sample's invoice.
nota_fiscal sample_invoice(const std::string& name) {
    return read_file(source_folder + "/examples/data/" + name).invoice;
}

struct known_value {
    const char* element;
    std::string actual;
    std::string expected;
};

void expect_values(const std::vector<known_value>& rows) {
    for (const known_value& row : rows) {
        EXPECT_EQ(row.actual, row.expected) << row.element;
    }
}

// Catches two fields of one type that change places in the layout map: they do so both ways.
TEST(samples, are_what_their_getters_return) {
    using namespace erp::v12::fiscal;
    const nota_fiscal nfe = sample_invoice("nfe.xml");
    expect_values({
        {"cUF", text(nfe.get_ibge_uf_emissao()), "41"},
        {"cNF", text(nfe.get_codigo_nf()), "40917356"},
        {"nNF", text(nfe.get_numero()), "18642"},
        {"dhEmi", text(nfe.get_data_emissao()), "2026-08-12T13:45:10-03:00"},
        {"dhSaiEnt", text(nfe.get_data_saida_entrada()), "present 2026-08-12T17:30:00-03:00"},
        {"cMunFG", text(nfe.get_ibge_municipio_emissao()), "4125506"},
        {"idDest", text(nfe.get_indicador_operacao()), "2"},
        {"indPres", text(nfe.get_indicador_presenca()), "2"},
        {"indFinal", text(nfe.get_operacao_consumidor_final()), "0"},
        {"indIntermed", text(nfe.get_indicador_intermediador()), "present 1"},
    });
    const emitente issuer = nfe.get_emitente();
    const endereco place = issuer.get_endereco();
    expect_values({
        {"xNome", text(issuer.get_razao_social()), "\"Comércio de Máquinas Ágil Ltda\""},
        {"xFant", text(issuer.get_nome_fantasia()), "present \"Máquinas Ágil\""},
        {"IE", text(issuer.get_ie()), "\"9074185298\""},
        {"IEST", text(issuer.get_iest()), "present \"800934162222\""},
        {"IM", text(issuer.get_inscricao_municipal()), "present \"48213\""},
        {"xLgr", text(place.get_logradouro()), "\"Rua das Araucárias\""},
        {"nro", text(place.get_numero_endereco()), "\"1480\""},
        {"xCpl", text(place.get_complemento()), "present \"Galpão 2\""},
        {"xBairro", text(place.get_bairro()), "\"Afonso Pena\""},
        {"xMun", text(place.get_nome_municipio()), "\"São José dos Pinhais\""},
        {"xPais", text(place.get_pais()), "present \"Brasil\""},
        {"cMun", text(place.get_ibge_municipio()), "4125506"},
        {"CEP", text(place.get_cep()), "present 83045320"},
    });
    const produto drill = nfe.get_produtos().at(0);
    const produto pliers = nfe.get_produtos().at(2);
    expect_values({
        {"cProd", text(drill.get_codigo_produto()), "\"FUR-0016\""},
        {"cEAN", text(pliers.get_codigo_de_barras()), "\"7899913048536\""},
        {"cEANTrib", text(pliers.get_codigo_de_barras_tributavel()), "\"7899913048499\""},
        {"NCM", text(drill.get_ncm()), "84672100"},
        {"CEST", text(pliers.get_cest()), "present 800600"},
        {"CFOP", text(drill.get_cfop()), "6101"},
        {"uCom", text(pliers.get_unidade_comercial()), "\"CX\""},
        {"uTrib", text(pliers.get_unidade_tributavel()), "\"UN\""},
        {"qCom", text(pliers.get_quantidade_comercial()), "10.0000"},
        {"qTrib", text(pliers.get_quantidade_tributavel()), "present 120.0000"},
        {"vUnCom", text(pliers.get_valor_unitario_comercial()), "412.8000"},
        {"vUnTrib", text(pliers.get_valor_unitario_tributavel()), "34.4000"},
        {"vProd", text(pliers.get_valor_total_bruto()), "4128.00"},
        {"vFrete", text(drill.get_valor_frete()), "present 96.00"},
        {"vDesc", text(drill.get_valor_desconto()), "present 78.80"},
        {"vSeg", text(drill.get_valor_seguro()), "absent"},
        {"vOutro", text(drill.get_valor_despesas_acessorias()), "absent"},
        {"vItem", text(drill.get_total_item()), "present 5071.68"},
    });
    const tributacao_ipi ipi = *drill.get_tributacao_ipi();
    const auto rate = *ipi.get_tributacao_ipi_calculo_aliquota();
    const auto icms =
        std::get<grupo_tributacao_icms_00>(std::get<produto::icms>(*drill.get_tributacao()));
    const auto pis = std::get<grupo_tributacao_pis_aliquota>(
        drill.get_tributacao_pis_cofins()->get_grupo_tributacao_pis());
    const auto cofins = std::get<grupo_tributacao_cofins_aliquota>(
        drill.get_tributacao_pis_cofins()->get_grupo_tributacao_cofins());
    expect_values({
        {"ICMS00/vBC", text(icms.get_valor_bc_icms()), "present 4696.00"},
        {"ICMS00/pICMS", text(icms.get_aliquota_icms()), "present 12.00"},
        {"ICMS00/vICMS", text(icms.get_valor_icms()), "present 563.52"},
        {"IPI/vBC", text(rate.get_valor_bc_ipi()), "present 4696.00"},
        {"pIPI", text(rate.get_aliquota_ipi()), "present 8.0000"},
        {"vIPI", text(ipi.get_valor_ipi()), "present 375.68"},
        {"PISAliq/vBC", text(pis.get_valor_bc_pis()), "present 4132.48"},
        {"pPIS", text(pis.get_percentual_aliquota_pis()), "present 1.6500"},
        {"vPIS", text(pis.get_valor_pis()), "68.19"},
        {"COFINSAliq/vBC", text(cofins.get_valor_bc_cofins()), "present 4132.48"},
        {"pCOFINS", text(cofins.get_percentual_aliquota_cofins()), "present 7.6000"},
        {"vCOFINS", text(cofins.get_valor_cofins()), "314.07"},
    });
    const total_nfe_icms total = nfe.get_total_nfe().get_total_icms();
    expect_values({
        {"ICMSTot/vBC", text(total.get_total_base_normal()), "14648.58"},
        {"ICMSTot/vICMS", text(total.get_total_icms_normal()), "1757.83"},
        {"ICMSTot/vBCST", text(total.get_total_base_st()), "6153.26"},
        {"ICMSTot/vST", text(total.get_total_retido()), "609.35"},
        {"ICMSTot/vProd", text(total.get_valor_total_dos_produtos_da_nota()), "16195.16"},
        {"ICMSTot/vFrete", text(total.get_total_frete()), "200.00"},
        {"ICMSTot/vDesc", text(total.get_valor_total_do_desconto_da_nota()), "78.80"},
        {"ICMSTot/vIPI", text(total.get_total_ipi()), "375.68"},
        {"ICMSTot/vPIS", text(total.get_total_imposto_pis()), "240.22"},
        {"ICMSTot/vCOFINS", text(total.get_total_imposto_confins()), "1106.46"},
        {"ICMSTot/vNF", text(total.get_total_da_nota()), "17301.39"},
    });
    const transportador carrier = *nfe.get_informacoes_transporte().get_transportador();
    const volume box = nfe.get_informacoes_transporte().get_volumes().at(0);
    const cobranca bill = *nfe.get_cobranca();
    const detalhes_pagamento paid = nfe.get_informacoes_pagamento().get_detalhes_pagamento().at(0);
    const transacao_tef card = *paid.get_transacao_tef();
    expect_values({
        {"xNome", text(carrier.get_razao_social()),
         "present \"Transportadora Pinhal Ligeiro Ltda\""},
        {"transporta/IE", text(carrier.get_ie()), "present \"9038617467\""},
        {"esp", text(box.get_especie()), "present \"CAIXA\""},
        {"marca", text(box.get_marca()), "present \"ÁGIL\""},
        {"nVol", text(box.get_numeracao()), "present \"1 a 16\""},
        {"pesoL", text(box.get_peso_liquido()), "present 118.400"},
        {"pesoB", text(box.get_peso_bruto()), "present 126.850"},
        {"vOrig", text(bill.get_valor_original_fatura()), "present 17380.19"},
        {"fat/vDesc", text(bill.get_valor_desconto()), "present 78.80"},
        {"vLiq", text(bill.get_valor_liquido()), "present 17301.39"},
        {"dVenc", text(bill.get_duplicatas().at(2).get_data_vencimento()), "present 2026-10-11"},
        {"tPag", text(paid.get_meio_pagamento()), "17"},
        {"vPag", text(paid.get_valor_pagamento()), "5190.42"},
        {"card/CNPJ", text(card.get_cnpj()), "present 99850261000168"},
        {"CNPJReceb", text(card.get_cnpj_beneficiario()), "present 99317482000175"},
        {"idTermPag", text(card.get_id_terminal_pagamento()), "present \"WEB-01\""},
    });

    const produto gauge = sample_invoice("import.xml").get_produtos().at(0);
    const declaracao_importacao import = gauge.get_declaracao_importacao().at(0);
    const adicao addition = import.get_adicoes().at(0);
    const tributacao_imposto_importacao duty = *gauge.get_tributacao_importacao();
    expect_values({
        {"nDI", text(import.get_numero_documento_importacao()), "\"26/0914477-3\""},
        {"dDI", text(import.get_data_registro()), "2026-08-20"},
        {"dDesemb", text(import.get_data_desembaraco()), "2026-08-24"},
        {"UFDesemb", text(import.get_uf_desembaraco()), "\"SC\""},
        {"UFTerceiro", text(import.get_uf_importador()), "present \"RS\""},
        {"nAdicao", text(import.get_adicoes().at(1).get_numero_adicao()), "2"},
        {"nSeqAdic", text(import.get_adicoes().at(1).get_numero_sequencial_da_adicao()), "1"},
        {"nDraw", text(addition.get_ato_concessorio_drawback()), "present \"20260001845\""},
        {"II/vBC", text(duty.get_valor_bc_imposto_importacao()), "24739.80"},
        {"vDespAdu", text(duty.get_valor_despesas_aduaneiras()), "154.20"},
        {"vII", text(duty.get_valor_imposto_importacao()), "3562.53"},
        {"vIOF", text(duty.get_valor_imposto_operacoes_financeiras()), "present 12.30"},
    });

    const produto remedy = sample_invoice("medicine.xml").get_produtos().at(0);
    const informacoes_rastreabilidade batch = remedy.lista_informacoes_rastreabilidade().at(1);
    const arma revolver = sample_invoice("arms.xml").get_produtos().at(0).get_armas()->at(2);
    expect_values({
        {"cProdANVISA", text(remedy.get_medicamentos()->at(0).get_codigo_anvisa()),
         "0: \"1098700450015\""},
        {"nLote", text(batch.numero_lote()), "\"DP26055\""},
        {"dFab", text(batch.data_fabricacao()), "2026-05-11"},
        {"dVal", text(batch.data_validade()), "2028-05-31"},
        {"nSerie", text(revolver.get_numero_serie_arma()), "\"KX104481\""},
        {"nCano", text(revolver.get_numero_serie_cano()), "\"C-104481\""},
    });

    const ibs_cbs taxes = *sample_invoice("ibs-cbs-regular.xml").get_produtos().at(2).get_ibs_cbs();
    const auto group = std::get<grupo_ibs_cbs>(taxes.get_sequencia_ibs_cbs()->get_grupo_ibs_cbs());
    expect_values({
        {"IBSCBS/CST", text(taxes.get_codigo_situacao_tributaria()), "200"},
        {"cClassTrib", text(taxes.get_codigo_classificacao_tributaria()), "200034"},
        {"gIBSCBS/vBC", text(group.get_valor_base_calculo()), "5197.77"},
        {"vIBS", text(group.get_valor_ibs()), "1.66"},
    });
}

/// The processor's time that it takes at best to read and write an invoice of so many items.
double time_for(int items) {
    pugi::xml_document file;
    EXPECT_TRUE(file.load_file((source_folder + "/examples/data/nfe.xml").c_str()));
    pugi::xml_node infnfe = file.select_node("//infNFe").node();
    pugi::xml_node last = infnfe.select_node("det[last()]").node();
    for (int number = last.attribute("nItem").as_int() + 1; number <= items; ++number) {
        last = infnfe.insert_copy_after(last, last);
        last.attribute("nItem") = number;
    }
    std::ostringstream text;
    file.save(text);
    double best = 1e9;
    for (int attempt = 0; attempt < 10; ++attempt) {
        const std::clock_t begin = std::clock();
        const invoice_document document = read_xml(text.view());
        const std::string written = write_xml(document.invoice, document.outside);
        const auto time = static_cast<double>(std::clock() - begin);
        EXPECT_EQ(document.invoice.get_produtos().size(), static_cast<std::size_t>(items));
        EXPECT_NE(written.find("<det nItem=\"" + std::to_string(items) + "\">"), written.npos);
        best = std::min(best, time);
    }
    return best;
}

// Catches work that grows with the square of the number of items: nine times for three times as
// many.
TEST(samples, take_time_in_proportion_to_their_items) {
    EXPECT_LT(time_for(990), 5 * time_for(330));
}

} // namespace kivo::tests

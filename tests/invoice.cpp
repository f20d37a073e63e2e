#include <layout/text.hpp>
#include <layout/xml.hpp>

#include <fiscal/endereco.hpp>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace kivo::tests {

using erp::v12::layout::read_file;
using erp::v12::layout::read_xml;

std::string invoice_with(const std::string& content) {
    return "<NFe xmlns='http://www.portalfiscal.inf.br/nfe'><infNFe versao='4.00' Id='NFe" +
           std::string(44, '1') + "'>" + content + "</infNFe></NFe>";
}

// Catches an element that moves, is lost or comes back changed, in either direction.
TEST(invoice, parties_come_back_as_they_were) {
    const std::string parties =
        "<emit><CNPJ>12ABC34501DE35</CNPJ><xNome>Padaria &amp; Café</xNome><xFant>Pão</xFant>"
        "<enderEmit><xLgr>Rua A</xLgr><nro>S/N</nro><xCpl>fundos</xCpl><xBairro>Centro</xBairro>"
        "<cMun>0123456</cMun><xMun>São Tomé</xMun><UF>SP</UF><CEP>01310100</CEP>"
        "<cPais>1058</cPais><xPais>Brasil</xPais><fone>1133334444</fone></enderEmit>"
        "<IE>ISENTO</IE><IEST>0012</IEST><IM>77</IM><CNAE>0111301</CNAE><CRT>3</CRT></emit>"
        "<dest><idEstrangeiro></idEstrangeiro><xNome>John</xNome><enderDest><xLgr>Main "
        "St</xLgr><nro>1</nro>"
        "<xBairro>-</xBairro><cMun>9999999</cMun><xMun>EXTERIOR</xMun><UF>EX</UF><cPais>4</cPais>"
        "</enderDest><indIEDest>9</indIEDest><ISUF>012345678</ISUF><email>a@b.example</email></"
        "dest>"
        "<entrega><CPF>52998224725</CPF><xLgr>Rua B</xLgr><nro>2</nro><xBairro>Sul</xBairro>"
        "<cMun>3550308</cMun><xMun>São Paulo</xMun><UF>SP</UF><CEP>00000000</CEP></entrega>";
    const auto invoice = read_xml(invoice_with(parties));
    const std::string written = erp::v12::layout::write_xml(invoice.invoice, invoice.outside);
    EXPECT_NE(written.find(parties), written.npos) << written;
    EXPECT_EQ(invoice.report.without_field, (std::vector<std::string>()));
    EXPECT_TRUE(invoice.report.refused.empty());
    EXPECT_EQ(invoice.report.texts, invoice.report.texts_in_fields);

    const auto foreigner = invoice.invoice.get_destinatario()->get_indicador_estrangeiro();
    EXPECT_EQ(foreigner, "") << "present, although empty";
    EXPECT_EQ(invoice.invoice.get_local_entrega()->get_endereco().get_cep(), 0U)
        << "present, although 0";
}

// Catches a text that is dropped or bent to fit, and a refusal that stops the reading.
TEST(invoice, a_refused_text_is_reported_and_left_out) {
    struct row {
        std::string element; // below emit
        std::string text;
        std::string expected;
    };
    for (const row& refused : std::vector<row>{
             {"CNPJ", "12", "a CNPJ, 14 characters with their check digits"},
             {"CNPJ", "11222333000182", "a CNPJ, 14 characters with their check digits"},
             {"CNPJ", "", "a CNPJ, 14 characters with their check digits"},
             {"CRT", "0", "1 digit, not 0"},
             {"CRT", "03", "1 digit, not 0"},
             {"CNAE", "111301", "7 digits"},
             {"CNAE", "00111301", "7 digits"},
             {"CNAE", " 111301", "7 digits"},
             {"CNAE", "4294967296", "7 digits"},
             {"xNome", "", "a text that is not empty"},
         }) {
        const std::string xml = "<emit><" + refused.element + ">" + refused.text + "</" +
                                refused.element + "><IE>123</IE></emit>";
        const auto invoice = read_xml(invoice_with(xml));
        ASSERT_EQ(invoice.report.refused.size(), 1U) << xml;
        EXPECT_EQ(invoice.report.refused[0].path, "emit/" + refused.element);
        EXPECT_EQ(invoice.report.refused[0].text, refused.text);
        EXPECT_EQ(invoice.report.refused[0].instead, refused.expected);
        EXPECT_EQ(invoice.invoice.get_emitente().get_ie(), "123") << "the rest is read";
        EXPECT_FALSE(invoice.invoice.get_emitente().get_cnpj());
        EXPECT_FALSE(invoice.invoice.get_emitente().get_cnae());
    }
}

// Catches a number that is cut to the width of its field.
TEST(invoice, a_number_that_is_too_large_is_refused) {
    for (const auto& [text, held] :
         {std::pair{"65535", true}, std::pair{"65536", false}, std::pair{"4294967297", false},
          std::pair{"18446744073709551617", false}}) {
        const auto invoice = read_xml(invoice_with(std::string("<emit><enderEmit><cPais>") + text +
                                                   "</cPais></enderEmit></emit>"));
        EXPECT_EQ(invoice.report.refused.empty(), held) << text;
        EXPECT_EQ(invoice.invoice.get_emitente().get_endereco().get_ibge_pais().has_value(), held);
    }
}

// Catches a value from a program's text that is not the text's.
TEST(invoice, a_text_that_is_no_value_is_refused_with_a_reason) {
    using erp::v12::layout::value_from;
    EXPECT_EQ(value_from<erp::v12::fiscal::decimal>("24.90"),
              erp::v12::fiscal::decimal::make(2490, 2));
    try {
        value_from<erp::v12::cnpj>("11222333000182");
        ADD_FAILURE() << "a wrong check digit was read";
    } catch (const std::invalid_argument& failure) {
        EXPECT_STREQ(failure.what(), "\"11222333000182\" is not a CNPJ, 14 characters with their "
                                     "check digits");
    }
}

// Catches an element that nobody asks for and nobody tells of.
TEST(invoice, what_has_no_field_is_reported_by_path) {
    const auto invoice = read_xml(
        "<n:nfeProc xmlns:n='urn:n' versao='4.00'><n:NFe><n:infNFe>"
        "<n:emit><n:CPF>1</n:CPF><n:IE>2</n:IE><n:IE>3</n:IE>loose<n:enderEmit a='b'/></n:emit>"
        "<n:dest><n:IM/></n:dest><n:det nItem='1'><n:x/></n:det><n:det nItem='2'/>"
        "</n:infNFe><n:Signature/></n:NFe><n:protNFe><n:a/><n:b/></n:protNFe></n:nfeProc>");
    EXPECT_EQ(invoice.report.without_field, (std::vector<std::string>{"emit/CPF", "dest/IM"}));
    EXPECT_EQ(invoice.report.unknown,
              (std::vector<std::string>{"emit/enderEmit/@a", "emit/text()", "det[1]/x"}));
    ASSERT_EQ(invoice.report.without_room.size(), 1U);
    EXPECT_EQ(invoice.report.without_room[0].path, "emit/IE[2]");
    EXPECT_EQ(invoice.beside, (std::vector<std::string>{"@versao", "NFe/Signature", "protNFe"}));
    EXPECT_EQ(invoice.invoice.get_emitente().get_ie(), "2");
    EXPECT_TRUE(invoice.invoice.get_destinatario()) << "there, although nothing of it has a field";
    EXPECT_EQ(invoice.report.texts, 9U);
    EXPECT_EQ(invoice.report.texts_in_fields, 3U);
}

// Catches a failure without a message, or an empty invoice in its place.
TEST(invoice, what_is_no_invoice_is_refused_with_a_reason) {
    struct row {
        std::string xml;
        std::string reason;
    };
    std::string deep;
    for (int level = 0; level < 100'000; ++level) {
        deep += "<a>";
    }
    for (const row& refused : std::vector<row>{
             {"", "not an XML document"},
             {"NFe", "not an XML document"},
             {"<NFe><infNFe>", "not an XML document"},
             {"<CTe><infCte/></CTe>", "not an NF-e or NFC-e: the document is CTe"},
             {"<infNFe/>", "not an NF-e or NFC-e: the document is infNFe"},
             {"<NFe/>", "not an NF-e or NFC-e: no infNFe in NFe"},
             {"<nfeProc><infNFe/></nfeProc>", "not an NF-e or NFC-e: no NFe in nfeProc"},
             {"<NFe>" + deep, "not an XML document"},
         }) {
        try {
            read_xml(refused.xml);
            ADD_FAILURE() << refused.xml.substr(0, 80) << " was read";
        } catch (const std::runtime_error& failure) {
            EXPECT_TRUE(std::string(failure.what()).starts_with(refused.reason)) << failure.what();
        }
    }
    std::string closed = deep;
    for (int level = 0; level < 100'000; ++level) {
        closed += "</a>";
    }
    EXPECT_THROW(read_xml("<NFe>" + closed + "</NFe>"), std::runtime_error) << "nested too deeply";
    EXPECT_THROW(read_file("no such file.xml"), std::runtime_error);
    EXPECT_THROW(read_file("."), std::runtime_error) << "a folder";
}

} // namespace kivo::tests

#include <layout/text.hpp>
#include <layout/xml.hpp>

#include <fiscal/endereco.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace kivo::tests {

using erp::v12::layout::read_file;
using erp::v12::layout::read_xml;
using erp::v12::layout::write_xml;

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

// Catches a name that is taken for one in a code of the system's own.
TEST(xml, is_read_from_a_file_that_is_named_in_utf_8) {
    std::filesystem::path file = std::filesystem::temp_directory_path() / u8"emissão 東 ";
    file += std::to_string(std::random_device()());
    const std::u8string bytes = file.u8string();
    const std::string name(bytes.begin(), bytes.end());
    std::filesystem::copy_file(KIVO_SOURCE_DIR "/examples/data/nfe.xml", file);
    EXPECT_EQ(read_file(name).invoice.get_numero(), 18642U);
    std::filesystem::remove(file);
    try {
        read_file(name);
        ADD_FAILURE() << "was read";
    } catch (const std::runtime_error& failure) {
        EXPECT_EQ(failure.what(), name + ": cannot be read");
    }
}

/// A text in UTF-16, of characters below U+0080 alone.
std::string utf_16(const std::string& text, bool big_endian) {
    std::string result = big_endian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char character : text) {
        result += big_endian ? std::string{'\0', character} : std::string{character, '\0'};
    }
    return result;
}

// Catches bytes that are read as another character, or as none, and texts that lose a piece.
TEST(xml, is_read_as_what_it_says) {
    const auto with = [](const std::string& encoding, const std::string& name) {
        return "<?xml version='1.0'" + (encoding.empty() ? "" : " encoding='" + encoding + "'") +
               "?><NFe><infNFe><emit><xNome>" + name + "</xNome></emit></infNFe></NFe>";
    };
    const struct {
        std::string xml;
        std::string text; ///< empty: it is refused
    } rows[] = {
        {with("", "Pão"), "Pão"},
        {with("UTF-8", "Pão"), "Pão"},
        {"\xEF\xBB\xBF" + with("utf-8", "Pão"), "Pão"},
        {with("ISO-8859-1", "P\xE3o"), "Pão"},
        {with("iso-8859-1", "\x80"), "\u0080"},
        {with("Windows-1252", "P\xE3o \x80 \x93\x94"), "Pão € “”"},
        {with("CP1252", "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E\x91\x92\x93\x94\x95"
                        "\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"),
         "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ"},
        {with("windows-1252", "\x81"), ""},
        {with("", "P\xE3o"), ""},
        {with("UTF-8", "P\xE3o"), ""},
        {with("UTF-8", "\xC0\x80"), ""},
        {with("UTF-8", "\xED\xA0\x80"), ""},
        {with("EBCDIC", "Pao"), ""},
        {utf_16(with("UTF-16", "Pao"), false), "Pao"},
        {utf_16(with("UTF-16", "Pao"), true), "Pao"},
        {utf_16(with("UTF-16", "Pao"), true) + "x", ""},
        {with("", "a &amp; &lt;b&gt; &#233;&#xE9;"), "a & <b> éé"},
        {with("", "&#1;"), ""},
        {with("", "&#x10FFFF;"), "\U0010FFFF"},
        {with("", "&#x110000;"), ""},
        {with("", "&#xD800;"), ""},
        {with("", "&nada;"), ""},
        {with("", "a & b"), ""},
        {with("", "a\x01"
                  "b"),
         ""},
        {with("", "<![CDATA[a < b & c]]>"), "a < b & c"},
        {with("", "a<![CDATA[<]]>b"), "a<b"},
        {with("", "a<!-- & -->b"), "ab"},
        {with("", "a<?p?>b"), "ab"},
        {with("", "   "), "   "},
        {with("", "a\r\nb"), "a\nb"},
        {with("", "a") + "<NFe/>", ""},
        {with("", "a") + "x", ""},
        {with("", "a") + "<!-- -->\n", "a"},
        {"<NFe><infNFe a='1' a='2'/></NFe>", ""},
        {"<NFe><infNFe><emit></infNFe></emit></NFe>", ""},
        {"<NFe><infNFe>", ""},
    };
    for (const auto& row : rows) {
        try {
            EXPECT_EQ(read_xml(row.xml).invoice.get_emitente().get_razao_social(), row.text)
                << row.xml;
            EXPECT_NE(row.text, "") << row.xml << " was read";
        } catch (const std::runtime_error& failure) {
            EXPECT_EQ(row.text, "") << failure.what();
            EXPECT_TRUE(std::string(failure.what()).starts_with("not an XML document: "))
                << failure.what();
        }
    }
}

// Catches a document that the authorities would not take for an invoice, and texts that break it.
TEST(xml, is_written_as_the_layout_has_it) {
    auto document = read_file(KIVO_SOURCE_DIR "/examples/data/nfe.xml");
    const std::string begin = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
                              "<NFe xmlns=\"http://www.portalfiscal.inf.br/nfe\"><infNFe ";
    EXPECT_EQ(write_xml(document).substr(0, begin.size()), begin);
    auto issuer = document.invoice.get_emitente();
    for (const std::string text :
         {"a < b & c > \"d\" 'e'", "]]>", " a ", "a\r\nb\tc", "\U0001F600"}) {
        issuer.set_razao_social(text);
        document.invoice.set_emitente(issuer);
        EXPECT_EQ(read_xml(write_xml(document)).invoice.get_emitente().get_razao_social(), text);
    }
    for (const std::string& text : {std::string("a\0b", 3), std::string("\x1F"),
                                    std::string("\xE3"), std::string("\uFFFE")}) {
        issuer.set_razao_social(text);
        document.invoice.set_emitente(issuer);
        EXPECT_THROW(write_xml(document), std::runtime_error);
    }
}

// Catches an element that is put anywhere, or beside the field that it has.
TEST(kept, goes_to_its_place_or_is_refused_with_a_reason) {
    using erp::v12::layout::placed_text;
    const auto document = read_file(KIVO_SOURCE_DIR "/examples/data/nfe.xml");
    const struct {
        std::vector<placed_text> added;
        std::string expected; ///< what is written, or the reason
    } rows[] = {
        {{{"infAdic/obsCont/@xCampo", "a"}, {"infAdic/obsCont/xTexto", "b"}},
         "</infCpl><obsCont xCampo=\"a\"><xTexto>b</xTexto></obsCont></infAdic>"},
        {{{"infAdic/obsCont[1]/xTexto", "b"}, {"infAdic/obsCont[2]/xTexto", "d"}},
         "</infCpl><obsCont><xTexto>b</xTexto></obsCont><obsCont><xTexto>d</xTexto></obsCont>"},
        {{{"infAdic/obsCont[2]/xTexto", "d"}, {"infAdic/obsCont[1]/xTexto", "b"}},
         "</infCpl><obsCont><xTexto>b</xTexto></obsCont><obsCont><xTexto>d</xTexto></obsCont>"},
        {{{"dest/IM", "7"}}, "</IE><IM>7</IM><email>"},
        {{{"compra/xPed", "7"}}, "</infAdic><compra><xPed>7</xPed></compra><infRespTec>"},
        {{{"det[2]/prod/nFCI", "7"}}, "</nItemPed><nFCI>7</nFCI></prod>"},
        {{{"ide/NFref[2]/refCTe", "7"}}, "</NFref><NFref><refCTe>7</refCTe></NFref></ide>"},
        {{{"det[2]/infAdProd", "7"}}, "det[2]/infAdProd: the element has a field"},
        {{{"emit/xNome", "7"}}, "emit/xNome: the element has a field"},
        {{{"emit/cor", "7"}}, "emit/cor: the layout has no cor there"},
        {{{"cor/azul", "7"}}, "cor/azul: the layout has no cor there"},
        {{{"compra/xPed/cor", "7"}}, "compra/xPed/cor: the element is a text"},
        {{{"compra", "7"}}, "compra: the element is a group"},
        {{{"compra[2]/xPed", "7"}}, "compra[2]/xPed: the layout takes no more than 1"},
        {{{"det[9]/infProdNFF", "7"}}, "det[9]/infProdNFF: the invoice has no such det"},
        {{{"exporta/cor", "7"}}, "exporta/cor: the invoice has no such exporta"},
        {{{"infAdic/obsCont[2]/xTexto", "7"}},
         "infAdic/obsCont[2]/xTexto: number 2 without those before it"},
        {{{"infAdic/obsCont[11]/xTexto", "7"}},
         "infAdic/obsCont[11]/xTexto: the layout takes no more than 10"},
        {{{"compra/xPed", "7"}, {"compra/xPed", "8"}}, "compra/xPed: named twice"},
        {{{"compra//xPed", "7"}}, "compra//xPed: an element without a name"},
        {{{"", "7"}}, ": an element without a name"},
        {{{"compra[0]/xPed", "7"}}, "compra[0]/xPed: no number in brackets"},
        {{{"compra[x]/xPed", "7"}}, "compra[x]/xPed: no number in brackets"},
        {{{"compra[1/xPed", "7"}}, "compra[1/xPed: no number in brackets"},
    };
    for (const auto& row : rows) {
        auto kept = document.kept;
        kept.insert(kept.end(), row.added.begin(), row.added.end());
        try {
            const std::string written = write_xml(document.invoice, document.outside, kept);
            EXPECT_NE(written.find(row.expected), written.npos) << row.expected << '\n' << written;
            const std::vector<placed_text> again = read_xml(written).kept;
            for (const placed_text& added : row.added) {
                EXPECT_EQ(std::count(again.begin(), again.end(), added), 1) << added.path;
            }
        } catch (const std::invalid_argument& failure) {
            EXPECT_EQ(failure.what(), row.expected);
        }
    }

    // changed and dropped
    auto kept = document.kept;
    const auto place = std::find_if(kept.begin(), kept.end(), [](const placed_text& each) {
        return each.path == "entrega/xNome";
    });
    ASSERT_NE(place, kept.end());
    place->text = "Doca 15";
    const std::string changed = write_xml(document.invoice, document.outside, kept);
    EXPECT_NE(changed.find("<xNome>Doca 15</xNome>"), changed.npos);
    const std::string dropped = write_xml(document.invoice, document.outside);
    EXPECT_EQ(dropped.find("Curva da Maré"), dropped.npos);
    EXPECT_EQ(read_xml(dropped).kept, std::vector<placed_text>());
}

// Catches a value that is left out because its text is longer than the first buffer for it.
TEST(value_chars, have_room_for_long_texts) {
    using erp::v12::layout::value_chars;
    for (const std::size_t size : {63U, 64U, 65U, 1000U, 65536U}) {
        value_chars chars;
        EXPECT_TRUE(chars.put([&](char* buffer, std::size_t& length) {
            if (length < size) {
                return static_cast<int>(core::v7::conversion_buffer_too_small);
            }
            std::fill_n(buffer, size, 'x');
            length = size;
            return static_cast<int>(core::v7::conversion_success);
        }));
        EXPECT_EQ(chars.text(), std::string(size, 'x'));
    }
    value_chars chars;
    const auto never = [](char*, std::size_t&) {
        return static_cast<int>(core::v7::conversion_buffer_too_small);
    };
    EXPECT_THROW(chars.put(never), std::length_error);
}

} // namespace kivo::tests

#include <layout/access_key.hpp>
#include <layout/envelope.hpp>
#include <layout/protocol.hpp>
#include <layout/xml.hpp>
#include <layout/xml_text.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

/// What stands around an invoice: its key, the answer to it, events, batches.
namespace kivo::tests {

using namespace erp::v12::layout;

const std::string data = KIVO_SOURCE_DIR "/examples/data/";
const std::string sample_key = "41260899317482000175550010000186421409173560";

/// The elements of an invoice that its key repeats.
std::vector<placed_text> key_texts(const std::string& key, const std::string& issuer = "emit/CNPJ",
                                   const std::string& number = "99317482000175") {
    return {{"@Id", "NFe" + key},
            {"ide/cUF", "41"},
            {"ide/cNF", "40917356"},
            {"ide/mod", "55"},
            {"ide/serie", "1"},
            {"ide/nNF", "18642"},
            {"ide/dhEmi", "2026-08-12T13:45:10-03:00"},
            {"ide/tpEmis", "1"},
            {issuer, number}};
}

/// The faults of a key as texts: `ide/nNF 000018643 000018642`.
std::vector<std::string> told(const tree& infnfe) {
    std::vector<std::string> result;
    for (const key_fault& fault : key_faults(infnfe.root())) {
        result.push_back(fault.element + ' ' + fault.in_key + ' ' + fault.elsewhere);
    }
    return result;
}

// Catches weights that run the wrong way, and letters of a CNPJ that count as digits do not.
TEST(access_key, has_the_check_digit_of_all_samples) {
    std::size_t letters = 0;
    for (const auto& entry : std::filesystem::directory_iterator(data)) {
        const tree document = parse_file(entry.path().string());
        const node& infnfe = invoice_in(document);
        EXPECT_EQ(told(tree_of("infNFe", texts_of(infnfe))), std::vector<std::string>())
            << entry.path();
        letters += key_of(infnfe).find_first_not_of("0123456789") == std::string_view::npos ? 0 : 1;
    }
    EXPECT_GE(letters, 1U) << "no sample has a CNPJ with letters";
}

// Catches a part that is compared with its neighbour, or not at all.
TEST(access_key, is_compared_part_by_part) {
    using lines = std::vector<std::string>;
    EXPECT_EQ(told(tree_of("infNFe", key_texts(sample_key))), lines());
    const std::vector<std::pair<std::size_t, std::string>> parts = {
        {0, "ide/cUF 51 41"},
        {3, "ide/dhEmi 2708 2608"},
        {6, "emit/CNPJ 09317482000175 99317482000175"},
        {21, "ide/mod 56 55"},
        {24, "ide/serie 002 001"},
        {33, "ide/nNF 000018643 000018642"},
        {34, "ide/tpEmis 2 1"},
        {42, "ide/cNF 40917357 40917356"}};
    for (const auto& [place, message] : parts) {
        std::string key = sample_key;
        key[place] = key[place] == '9' ? '0' : static_cast<char>(key[place] + 1);
        key.back() = key_check_digit(key.substr(0, 43)).value();
        EXPECT_EQ(told(tree_of("infNFe", key_texts(key))), lines{message});
    }
    std::string key = sample_key;
    key.back() = '1';
    EXPECT_EQ(told(tree_of("infNFe", key_texts(key))), lines{"ide/cDV 1 0"});
    // a person has zeros in front
    key = "41260800012345678909550010000186421409173560";
    key.back() = key_check_digit(key.substr(0, 43)).value();
    EXPECT_EQ(told(tree_of("infNFe", key_texts(key, "emit/CPF", "12345678909"))), lines());
    EXPECT_EQ(told(tree_of("infNFe", key_texts(key, "emit/CPF", "12345678900"))),
              lines{"emit/CPF 00012345678909 00012345678900"});
}

// Catches a read past the end of what is no key.
TEST(access_key, may_be_anything) {
    for (const std::string key : {"", "4", "41260899317482000175550010000186421409173560000",
                                  "4126089931748200017555001000018642140917356A",
                                  "412608993174820001A5550010000186421409173560",
                                  "A1260899317482000175550010000186421409173560", "ção"}) {
        const std::vector<key_fault> faults = key_faults(tree_of("infNFe", key_texts(key)).root());
        ASSERT_EQ(faults.size(), 1U) << key;
        EXPECT_EQ(faults.front().is,
                  key.empty() ? key_fault::kind::missing : key_fault::kind::form);
    }
    EXPECT_EQ(key_check_digit(sample_key), std::nullopt) << "44 characters";
    EXPECT_EQ(told(tree_of("infNFe", {{"@Id", "NFe" + sample_key}, {"ide/dhEmi", "2026"}})),
              std::vector<std::string>{"ide/dhEmi 2608 0000"});
}

// Catches a status that is taken for another.
TEST(protocol, has_a_standing) {
    EXPECT_EQ(standing_of("100"), standing::authorised);
    EXPECT_EQ(standing_of("150"), standing::authorised);
    for (const char* const status : {"101", "151", "155"}) {
        EXPECT_EQ(standing_of(status), standing::cancelled) << status;
    }
    for (const char* const status : {"110", "205", "301", "302", "303"}) {
        EXPECT_EQ(standing_of(status), standing::denied) << status;
    }
    for (const char* const status : {"", "204", "539", "100 ", "1000"}) {
        EXPECT_EQ(standing_of(status), standing::rejected) << status;
    }
}

TEST(protocol, is_read_from_beside_the_invoice) {
    const tree document = parse_file(data + "nfe.xml");
    const envelope found = open_envelope(document);
    ASSERT_EQ(found.invoices.size(), 1U);
    ASSERT_NE(found.invoices.front().protnfe, nullptr);
    EXPECT_EQ(read_protocol(*found.invoices.front().protnfe),
              (protocol{sample_key, "141260073518264", "100", "Autorizado o uso da NF-e",
                        "2026-08-12T13:45:14-03:00", "1"}));
    EXPECT_EQ(read_protocol(tree_of("protNFe", {{"infProt", "none"}}).root()), protocol());
}

/// An event with the answer to it.
std::string event_xml(const std::string& type, const std::string& detail,
                      const std::string& status) {
    return "<procEventoNFe versao=\"1.00\"><evento><infEvento Id=\"ID1\"><cOrgao>41</cOrgao>"
           "<tpAmb>1</tpAmb><CNPJ>99317482000175</CNPJ><chNFe>" +
           sample_key + "</chNFe><dhEvento>2026-08-13T08:00:00-03:00</dhEvento><tpEvento>" + type +
           "</tpEvento><nSeqEvento>2</nSeqEvento><verEvento>1.00</verEvento><detEvento>" + detail +
           "</detEvento></infEvento></evento><retEvento><infEvento><tpAmb>1</tpAmb><cStat>" +
           status +
           "</cStat><xMotivo>Evento</xMotivo><nProt>141260073518999</nProt>"
           "<dhRegEvento>2026-08-13T08:00:02-03:00</dhRegEvento></infEvento></retEvento>"
           "</procEventoNFe>";
}

// Catches an event that was refused and counts all the same.
TEST(event, counts_once_it_is_registered) {
    const std::string detail = "<descEvento>Cancelamento</descEvento><nProt>141260073518264</nProt>"
                               "<xJust>Pedido desfeito pelo cliente</xJust>";
    const event cancelled = read_event(parse_xml(event_xml("110111", detail, "135")).root());
    EXPECT_EQ(cancelled,
              (event{sample_key, "110111", "2", "Cancelamento", "2026-08-13T08:00:00-03:00", "1",
                     "Pedido desfeito pelo cliente", "", "135", "Evento", "141260073518999",
                     "2026-08-13T08:00:02-03:00"}));
    EXPECT_TRUE(cancelled.is_cancellation() && cancelled.is_registered());
    const auto registered = [&](const char* type, const char* status) {
        return read_event(parse_xml(event_xml(type, detail, status)).root()).is_registered();
    };
    EXPECT_TRUE(registered("110112", "155")) << "out of time";
    EXPECT_FALSE(registered("110110", "155")) << "only a cancellation can be out of time";
    EXPECT_TRUE(registered("110110", "136"));
    EXPECT_FALSE(registered("110111", "573"));
    EXPECT_FALSE(
        read_event(tree_of("evento", {{"infEvento/tpEvento", "110111"}}).root()).is_registered());
}

/// An invoice with little more than its key.
std::string nfe_xml(const std::string& key) {
    return "<NFe><infNFe Id=\"NFe" + key + "\"><ide><nNF>" + key.substr(25, 9) +
           "</nNF></ide></infNFe></NFe>";
}
std::string answer_xml(const std::string& key) {
    return "<protNFe versao=\"4.00\"><infProt><chNFe>" + key + "</chNFe></infProt></protNFe>";
}

// Catches invoices that are passed over, or that get the answer to another.
TEST(envelope, holds_each_invoice_with_its_answer) {
    const std::string other = sample_key.substr(0, 43) + "1";
    const std::string third = sample_key.substr(0, 43) + "2";
    const auto found = [&](const std::string& xml) {
        std::string result;
        const tree document = parse_xml(xml);
        const envelope opened = open_envelope(document);
        for (const enveloped_invoice& invoice : opened.invoices) {
            const tree alone = document_of(invoice);
            EXPECT_EQ(read_document(alone).invoice.get_chave_44_digitos(),
                      key_of(invoice_in(alone)));
            result += key_of(invoice_in(alone)).back();
            result += alone.root().name == "nfeProc" ? "+" : "-";
            result += invoice.protnfe == nullptr ? ' ' : read_protocol(*invoice.protnfe).key.back();
        }
        return result + std::to_string(opened.answers.size()) +
               std::to_string(opened.events.size());
    };
    const std::string first = nfe_xml(sample_key);
    const std::string both = first + nfe_xml(other);
    const std::string proc = "<nfeProc>" + first + answer_xml(sample_key) + "</nfeProc>";
    EXPECT_EQ(found(first), "0- 00");
    EXPECT_EQ(found(proc), "0+000");
    EXPECT_EQ(found("<enviNFe><idLote>1</idLote>" + both + "</enviNFe>"), "0- 1- 00");
    EXPECT_EQ(found("<list>" + proc + "<nfeProc>" + nfe_xml(other) + "</nfeProc></list>"),
              "0+01+ 00");
    EXPECT_EQ(found("<s:Envelope xmlns:s=\"urn:s\"><s:Body><nfeDadosMsg>" + proc +
                    "</nfeDadosMsg></s:Body></s:Envelope>"),
              "0+000");
    // answers in another order than the invoices, and one for none of them
    EXPECT_EQ(found("<list>" + both + answer_xml(third) + answer_xml(other) + "</list>"),
              "0- 1+110");
    EXPECT_EQ(found("<nfeProc>" + both + answer_xml(other) + "</nfeProc>"), "0- 1+100");
    EXPECT_EQ(found("<list>" + event_xml("110111", "", "135") + "<evento/>" + first + "</list>"),
              "0- 02");
    EXPECT_TRUE(open_envelope(parse_xml("<CTe/>")).empty());
}

} // namespace kivo::tests

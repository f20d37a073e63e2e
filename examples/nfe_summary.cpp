// Reads an NF-e or NFC-e into value objects and shows a person what they hold.

#include <layout/text.hpp>
#include <layout/xml.hpp>

#include <exception>
#include <iostream>
#include <string>
#include <string_view>

namespace {

using namespace kivo::erp::v12;
using kivo::core::v7::optional;

/// Puts a text into a pattern whose # stand for its characters; a text of another length stays.
std::string punctuated(const std::string& text, std::string_view pattern) {
    std::string result;
    std::size_t used = 0;
    for (const char character : pattern) {
        if (character != '#') {
            result += character;
        } else if (used < text.size()) {
            result += text[used++];
        } else {
            return text;
        }
    }
    return used == text.size() ? result : text;
}

void show(std::string_view label, const std::string& value) {
    if (!value.empty()) {
        std::cout << "  " << label << std::string(15 - label.size(), ' ') << value << '\n';
    }
}

void show(std::string_view label, const optional<std::string>& value) {
    show(label, value.value_or(""));
}

void show_company(const optional<fiscal::cnpj>& number) {
    const auto text = number ? layout::text_of(*number) : optional<std::string>();
    show("CNPJ", punctuated(text.value_or(""), "##.###.###/####-##"));
}

void show_person(const optional<std::string>& number) {
    show("CPF", punctuated(number.value_or(""), "###.###.###-##"));
}

void show_address(const fiscal::endereco& address) {
    std::string street = address.get_logradouro();
    if (!address.get_numero_endereco().empty()) {
        street += ", " + address.get_numero_endereco();
    }
    if (const auto complement = address.get_complemento()) {
        street += ", " + *complement;
    }
    show("Street", street);
    show("District", address.get_bairro());
    std::string city = address.get_nome_municipio();
    if (!address.get_uf().empty()) {
        city += " - " + address.get_uf();
    }
    show("City", city);
    if (const auto postal_code = address.get_cep()) {
        show("Postal code",
             punctuated(layout::number_text(*postal_code, layout::digits(8)), "#####-###"));
    }
    show("Country", address.get_pais());
}

std::string_view name_of(fiscal::emitente::regime_fiscal regime) {
    using enum fiscal::emitente::regime_fiscal;
    switch (regime) {
    case simples_nacional:
        return "Simples Nacional";
    case simples_nacional_excesso_sublimite:
        return "Simples Nacional, above the sublimit";
    case regime_normal:
        return "normal";
    case mei:
        return "MEI";
    case nao_informado:
        break;
    }
    return "";
}

void show_issuer(const fiscal::emitente& issuer) {
    std::cout << "Issuer\n";
    show("Name", issuer.get_razao_social());
    show("Trade name", issuer.get_nome_fantasia());
    show_company(issuer.get_cnpj());
    show("State reg.", issuer.get_ie());
    show("Tax regime", std::string(name_of(issuer.get_regime_fiscal())));
    show_address(issuer.get_endereco());
    show("Telephone", issuer.get_telefone());
}

void show_recipient(const optional<fiscal::destinatario>& recipient) {
    std::cout << "\nRecipient\n";
    if (!recipient) {
        std::cout << "  not named\n";
        return;
    }
    show("Name", recipient->get_razao_social());
    show_company(recipient->get_cnpj());
    show_person(recipient->get_cpf());
    show("Foreign id", recipient->get_indicador_estrangeiro());
    show("State reg.", recipient->get_ie());
    if (const auto address = recipient->get_endereco()) {
        show_address(*address);
    }
    show("Telephone", recipient->get_telefone());
    show("E-mail", recipient->get_email());
}

void show_delivery(const optional<fiscal::local_entrega>& place) {
    if (!place) {
        return;
    }
    std::cout << "\nDelivery place\n";
    show_company(place->get_cnpj());
    show_person(place->get_cpf());
    show_address(place->get_endereco());
}

void show_reading(const layout::reading& result) {
    std::cout << '\n'
              << result.texts_read << " of the file's " << result.texts
              << " elements have found their place.\n";
    if (!result.unread.empty()) {
        std::cout << "Without a field:";
        for (const std::string& path : result.unread) {
            std::cout << ' ' << path;
        }
        std::cout << '\n';
    }
    if (!result.refused.empty()) {
        std::cout << "Refused:\n";
        for (const auto& refusal : result.refused) {
            std::cout << "  " << refusal.path << ": \"" << refusal.text << "\" is not "
                      << refusal.instead << '\n';
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: nfe_summary FILE\n";
        return 1;
    }
    try {
        const layout::invoice_document document = layout::read_file(argv[1]);
        show_issuer(document.invoice.get_emitente());
        show_recipient(document.invoice.get_destinatario());
        show_delivery(document.invoice.get_local_entrega());
        show_reading(document.result);
        return document.result.refused.empty() ? 0 : 1;
    } catch (const std::exception& failure) {
        std::cerr << "nfe_summary: " << argv[1] << ": " << failure.what() << '\n';
        return 1;
    }
}

#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>
#include <string>

namespace kivo::erp::v12::fiscal {

class endereco;

/// The recipient of the invoice (dest). The layout wants one of CNPJ, CPF and idEstrangeiro; the
/// class holds any of them, together too.
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT destinatario {
public:
    /// Standing of the recipient towards ICMS (indIEDest).
    enum class indicador_de_ie : std::uint32_t {
        nao_informado = 0,       ///< never set; not a code of the layout
        contribuinte = 1,        ///< taxpayer with a state registration
        contribuinte_isento = 2, ///< taxpayer exempt from state registration
        nao_contribuinte = 9,    ///< not a taxpayer, with or without a registration
    };

    destinatario();
    destinatario(const destinatario& other);
    destinatario(destinatario&& other);
    destinatario& operator=(const destinatario& other);
    destinatario& operator=(destinatario&& other);
    ~destinatario();

    /// Standing towards ICMS (indIEDest).
    indicador_de_ie get_indicador_de_ie() const;
    void set_indicador_de_ie(indicador_de_ie value);

    /// Company taxpayer number (CNPJ).
    optional<cnpj> get_cnpj() const;
    void set_cnpj(const optional<cnpj>& value);

    /// Person taxpayer number, 11 digits as text (CPF).
    optional<std::string> get_cpf() const;
    void set_cpf(const optional<std::string>& value);

    /// Legal or personal name, 2 to 60 characters (xNome).
    optional<std::string> get_razao_social() const;
    void set_razao_social(const optional<std::string>& value);

    /// Address (enderDest).
    optional<endereco> get_endereco() const;
    void set_endereco(const optional<endereco>& value);

    /// Telephone, 6 to 14 digits with the area or country code, as text (enderDest/fone).
    optional<std::string> get_telefone() const;
    void set_telefone(const optional<std::string>& value);

    /// E-mail address that may receive the invoice, 1 to 60 characters (email).
    optional<std::string> get_email() const;
    void set_email(const optional<std::string>& value);

    /// State registration, 2 to 14 digits (IE).
    optional<std::string> get_ie() const;
    void set_ie(const optional<std::string>& value);

    /// Passport or other document of a foreigner, 5 to 20 characters, or present and empty
    /// (idEstrangeiro).
    optional<std::string> get_indicador_estrangeiro() const;
    void set_indicador_estrangeiro(const optional<std::string>& value);

    /// Registration with the authority SUFRAMA, 8 or 9 digits (ISUF).
    optional<std::string> get_inscricao_suframa() const;
    void set_inscricao_suframa(const optional<std::string>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <string>

namespace kivo::erp::v12::fiscal {

class informacoes_codigo_seguranca;

/// The company that answers for the issuing software (infRespTec).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT informacoes_responsavel_tecnico {
public:
    informacoes_responsavel_tecnico();
    informacoes_responsavel_tecnico(const informacoes_responsavel_tecnico& other);
    informacoes_responsavel_tecnico(informacoes_responsavel_tecnico&& other);
    informacoes_responsavel_tecnico& operator=(const informacoes_responsavel_tecnico& other);
    informacoes_responsavel_tecnico& operator=(informacoes_responsavel_tecnico&& other);
    ~informacoes_responsavel_tecnico();

    /// Company taxpayer number (CNPJ).
    cnpj get_cnpj() const;
    void set_cnpj(const cnpj& value);

    /// Contact person, 2 to 60 characters (xContato).
    std::string get_nome_pessoa_contatada() const;
    void set_nome_pessoa_contatada(const std::string& value);

    /// E-mail address of the contact person, 6 to 60 characters (email).
    std::string get_email() const;
    void set_email(const std::string& value);

    /// Telephone of the contact person, 6 to 14 digits with the area code, as text (fone).
    std::string get_telefone() const;
    void set_telefone(std::string value);

    /// Proof of the security code (idCSRT, hashCSRT).
    optional<informacoes_codigo_seguranca> get_informacoes_codigo_seguranca() const;
    void set_informacoes_codigo_seguranca(const optional<informacoes_codigo_seguranca>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

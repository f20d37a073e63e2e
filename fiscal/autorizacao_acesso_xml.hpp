#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <string>

namespace kivo::erp::v12::fiscal {

/// A company or person that may obtain the XML of the invoice (autXML). The layout wants one of
/// CNPJ and CPF; the class holds either, or both.
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT autorizacao_acesso_xml {
public:
    autorizacao_acesso_xml();
    autorizacao_acesso_xml(const autorizacao_acesso_xml& other);
    autorizacao_acesso_xml(autorizacao_acesso_xml&& other);
    autorizacao_acesso_xml& operator=(const autorizacao_acesso_xml& other);
    autorizacao_acesso_xml& operator=(autorizacao_acesso_xml&& other);
    ~autorizacao_acesso_xml();

    /// Company taxpayer number (CNPJ).
    optional<cnpj> get_cnpj() const;
    void set_cnpj(const optional<cnpj>& value);

    /// Person taxpayer number, 11 digits as text (CPF).
    optional<std::string> get_cpf() const;
    void set_cpf(const optional<std::string>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

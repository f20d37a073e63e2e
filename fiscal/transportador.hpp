#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <string>

namespace kivo::erp::v12::fiscal {

/// The carrier of the goods (transporta).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT transportador {
public:
    transportador();
    transportador(const transportador& other);
    transportador(transportador&& other);
    transportador& operator=(const transportador& other);
    transportador& operator=(transportador&& other);
    ~transportador();

    /// Taxpayer number: CPF (index 0) or CNPJ (index 1).
    optional<variant<cpf, cnpj>> get_documento() const;
    void set_documento(const optional<variant<cpf, cnpj>>& value);

    /// Legal or personal name, 2 to 60 characters (xNome).
    optional<std::string> get_razao_social() const;
    void set_razao_social(const optional<std::string>& value);

    /// State registration, 2 to 14 digits or ISENTO (IE).
    optional<std::string> get_ie() const;
    void set_ie(const optional<std::string>& value);

    /// Whole address in one line, 1 to 60 characters (xEnder).
    optional<std::string> get_endereco() const;
    void set_endereco(const optional<std::string>& value);

    /// Name of the municipality, 1 to 60 characters (xMun).
    optional<std::string> get_municipio() const;
    void set_municipio(const optional<std::string>& value);

    /// State, 2 letters, EX abroad (UF).
    optional<std::string> get_uf() const;
    void set_uf(const optional<std::string>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

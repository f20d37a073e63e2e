#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>
#include <string>

namespace kivo::erp::v12::fiscal {

class endereco;

/// The issuer of the invoice (emit).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT emitente {
public:
    /// Tax regime (CRT).
    enum class regime_fiscal : std::uint32_t {
        nao_informado = 0,                      ///< never set; not a code of the layout
        simples_nacional = 1,                   ///< Simples Nacional
        simples_nacional_excesso_sublimite = 2, ///< Simples Nacional, revenue above the sublimit
        regime_normal = 3,                      ///< normal regime
        mei = 4,                                ///< individual micro-entrepreneur
    };

    emitente();
    emitente(const emitente& other);
    emitente(emitente&& other);
    emitente& operator=(const emitente& other);
    emitente& operator=(emitente&& other);
    ~emitente();

    /// Company taxpayer number (CNPJ).
    optional<cnpj> get_cnpj() const;
    void set_cnpj(const optional<cnpj>& value);

    /// Legal name, 2 to 60 characters (xNome).
    std::string get_razao_social() const;
    void set_razao_social(const std::string& value);

    /// Trade name, 1 to 60 characters (xFant).
    optional<std::string> get_nome_fantasia() const;
    void set_nome_fantasia(const optional<std::string>& value);

    /// Address (enderEmit).
    endereco get_endereco() const;
    void set_endereco(const endereco& value);

    /// Telephone, 6 to 14 digits with the area code, as text (enderEmit/fone).
    optional<std::string> get_telefone() const;
    void set_telefone(const optional<std::string>& value);

    /// State registration, 2 to 14 digits or ISENTO (IE).
    std::string get_ie() const;
    void set_ie(const std::string& value);

    /// State registration as tax substitute in the state of destination, 2 to 14 digits (IEST).
    optional<std::string> get_iest() const;
    void set_iest(const optional<std::string>& value);

    /// Tax regime (CRT).
    regime_fiscal get_regime_fiscal() const;
    void set_regime_fiscal(regime_fiscal value);

    /// Municipal registration, of an issuer that renders services, 1 to 15 characters (IM).
    optional<std::string> get_inscricao_municipal() const;
    void set_inscricao_municipal(const optional<std::string>& value);

    /// Economic activity, CNAE code of 7 digits as a number (CNAE).
    optional<std::uint32_t> get_cnae() const;
    void set_cnae(const optional<std::uint32_t>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

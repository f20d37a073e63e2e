#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>
#include <string>

namespace kivo::erp::v12::fiscal {

/// A postal address (enderEmit, enderDest; its elements stand directly in entrega).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT endereco {
public:
    endereco();
    endereco(const endereco& other);
    endereco(endereco&& other);
    endereco& operator=(const endereco& other);
    endereco& operator=(endereco&& other);
    ~endereco();

    /// Postal code, 8 digits as a number (CEP).
    optional<std::uint32_t> get_cep() const;
    void set_cep(const optional<std::uint32_t>& value);

    /// Street, 2 to 60 characters (xLgr).
    std::string get_logradouro() const;
    void set_logradouro(const std::string& value);

    /// Number in the street, as text, 1 to 60 characters (nro).
    std::string get_numero_endereco() const;
    void set_numero_endereco(const std::string& value);

    /// Room, block, floor and the like, 1 to 60 characters (xCpl).
    optional<std::string> get_complemento() const;
    void set_complemento(const optional<std::string>& value);

    /// District, 2 to 60 characters (xBairro).
    std::string get_bairro() const;
    void set_bairro(const std::string& value);

    /// Name of the country, 2 to 60 characters (xPais).
    optional<std::string> get_pais() const;
    void set_pais(const optional<std::string>& value);

    /// Municipality, IBGE code of 7 digits, 9999999 abroad (cMun).
    std::uint32_t get_ibge_municipio() const;
    void set_ibge_municipio(std::uint32_t value);

    /// State, 2 letters, EX abroad (UF).
    std::string get_uf() const;
    void set_uf(const std::string& value);

    /// Name of the municipality, 2 to 60 characters, EXTERIOR abroad (xMun).
    std::string get_nome_municipio() const;
    void set_nome_municipio(const std::string& value);

    /// Country, code of the central bank's table, 1058 is Brazil (cPais).
    optional<std::uint16_t> get_ibge_pais() const;
    void set_ibge_pais(const optional<std::uint16_t>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

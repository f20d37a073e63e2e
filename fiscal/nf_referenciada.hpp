#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>
#include <string>

namespace kivo::erp::v12::fiscal {

/// A reference to a paper invoice of model 1, 1A or 2 (refNF).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT nf_referenciada {
public:
    nf_referenciada();
    nf_referenciada(const nf_referenciada& other);
    nf_referenciada(nf_referenciada&& other);
    nf_referenciada& operator=(const nf_referenciada& other);
    nf_referenciada& operator=(nf_referenciada&& other);
    ~nf_referenciada();

    /// State of the issuer, IBGE code of 2 digits (cUF).
    std::uint8_t get_uf_emitente() const;
    void set_uf_emitente(std::uint8_t value);

    /// Year and month of issue, 4 digits as a number: 911 is November 2009 (AAMM).
    std::uint16_t get_ano_mes_emissao() const;
    void set_ano_mes_emissao(std::uint16_t value);

    /// Company taxpayer number of the issuer (CNPJ).
    cnpj get_cnpj() const;
    void set_cnpj(const cnpj& value);

    /// Model, 2 digits as a number: 1 for the models 1 and 1A, 2 for the model 2 (mod).
    std::uint16_t get_modelo() const;
    void set_modelo(std::uint16_t value);

    /// Series, 0 to 999 as text, 0 where there is none (serie).
    std::string get_serie() const;
    void set_serie(const std::string& value);

    /// Number, 1 to 9 digits (nNF).
    std::uint32_t get_numero() const;
    void set_numero(std::uint32_t value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

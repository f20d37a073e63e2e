#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>
#include <string>

namespace kivo::erp::v12::fiscal {

/// A reference to a paper invoice of a rural producer, or to a one-off invoice (refNFP). The layout
/// wants one of CNPJ and CPF; the class holds either, or both.
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT nfp_referenciada {
public:
    /// Model of a paper invoice of a rural producer (mod).
    enum class modelo : std::uint32_t {
        nao_informado = 0,    ///< never set; not a code of the layout
        nota_avulsa = 1,      ///< one-off invoice (nota avulsa)
        nota_de_produtor = 4, ///< invoice of a rural producer
    };

    nfp_referenciada();
    nfp_referenciada(const nfp_referenciada& other);
    nfp_referenciada(nfp_referenciada&& other);
    nfp_referenciada& operator=(const nfp_referenciada& other);
    nfp_referenciada& operator=(nfp_referenciada&& other);
    ~nfp_referenciada();

    /// State of the issuer, IBGE code of 2 digits (cUF).
    std::uint8_t get_uf_emitente() const;
    void set_uf_emitente(std::uint8_t value);

    /// Year and month of issue, 4 digits as a number: 911 is November 2009 (AAMM).
    std::uint16_t get_ano_mes_emissao() const;
    void set_ano_mes_emissao(std::uint16_t value);

    /// Company taxpayer number of the issuer (CNPJ).
    optional<cnpj> get_cnpj() const;
    void set_cnpj(const optional<cnpj>& value);

    /// Person taxpayer number of the issuer, 11 digits as text (CPF).
    optional<std::string> get_cpf() const;
    void set_cpf(const optional<std::string>& value);

    /// State registration of the issuer, 2 to 14 digits or ISENTO (IE).
    std::string get_ie() const;
    void set_ie(const std::string& value);

    /// Model (mod).
    modelo get_modelo() const;
    void set_modelo(modelo value);

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

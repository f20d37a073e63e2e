#pragma once

#include <fiscal/cst_ipi.hpp>
#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>
#include <string>

namespace kivo::erp::v12::fiscal {

class tributacao_ipi_calculo_aliquota;
class tributacao_ipi_calculo_valor;

/// Federal tax on industrialised products of an item (IPI). The two computations are independent of
/// each other and of the situation code.
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT tributacao_ipi {
public:
    tributacao_ipi();
    tributacao_ipi(const tributacao_ipi& other);
    tributacao_ipi(tributacao_ipi&& other);
    tributacao_ipi& operator=(const tributacao_ipi& other);
    tributacao_ipi& operator=(tributacao_ipi&& other);
    ~tributacao_ipi();

    /// Producer of exported goods, where it is not the issuer (CNPJProd).
    optional<cnpj> get_cnpj_produtor() const;
    void set_cnpj_produtor(const optional<cnpj>& value);

    /// Number of control stamps, absent at 0 (qSelo).
    std::uint32_t get_quantidade_selo_controle() const;
    void set_quantidade_selo_controle(std::uint32_t value);

    /// Legal framing, code of 3 digits as a number (cEnq).
    std::uint16_t get_codigo_enquadramento_ipi() const;
    void set_codigo_enquadramento_ipi(const std::uint16_t& value);

    /// Framing class, as text (no element in layout 4.00).
    std::string get_classe_enquadramento_ipi() const;
    void set_classe_enquadramento_ipi(const std::string& value);

    /// Situation code (CST).
    cst_ipi get_cst_ipi() const;
    void set_cst_ipi(cst_ipi value);

    /// Computation by rate (its elements stand in IPITrib: vBC, pIPI).
    optional<tributacao_ipi_calculo_aliquota> get_tributacao_ipi_calculo_aliquota() const;
    void
    set_tributacao_ipi_calculo_aliquota(const optional<tributacao_ipi_calculo_aliquota>& value);

    /// Computation per taxable unit (its element stands in IPITrib: vUnid).
    optional<tributacao_ipi_calculo_valor> get_tributacao_ipi_calculo_valor() const;
    void set_tributacao_ipi_calculo_valor(const optional<tributacao_ipi_calculo_valor>& value);

    /// IPI amount, in R$ (vIPI).
    optional<decimal> get_valor_ipi() const;
    void set_valor_ipi(const optional<decimal>& value);

    /// Control stamp, code of 1 to 60 characters (cSelo).
    optional<std::string> get_codigo_selo_controle_ipi() const;
    void set_codigo_selo_controle_ipi(const optional<std::string>& value);

    /// Framing class of cigarettes and beverages, as text (no element in layout 4.00).
    optional<std::string> get_classe_enquadramento_ipi_cigarros_bebidas() const;
    void set_classe_enquadramento_ipi_cigarros_bebidas(const optional<std::string>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

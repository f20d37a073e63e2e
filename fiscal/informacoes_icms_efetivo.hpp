#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Effective ICMS: what the operation would bear without tax substitution (its elements stand in
/// ICMS60, ICMSST and ICMSSN500).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT informacoes_icms_efetivo {
public:
    informacoes_icms_efetivo();
    informacoes_icms_efetivo(const informacoes_icms_efetivo& other);
    informacoes_icms_efetivo(informacoes_icms_efetivo&& other);
    informacoes_icms_efetivo& operator=(const informacoes_icms_efetivo& other);
    informacoes_icms_efetivo& operator=(informacoes_icms_efetivo&& other);
    ~informacoes_icms_efetivo();

    /// Reduction of the effective tax base, in percent (pRedBCEfet).
    decimal get_percentual_reducao_bc() const;
    void set_percentual_reducao_bc(const decimal& value);

    /// Effective tax base, in R$ (vBCEfet).
    decimal get_valor_bc() const;
    void set_valor_bc(const decimal& value);

    /// Effective rate, in percent (pICMSEfet).
    decimal get_aliquota() const;
    void set_aliquota(const decimal& value);

    /// Effective ICMS amount, in R$ (vICMSEfet).
    decimal get_valor() const;
    void set_valor(const decimal& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Fuel contribution CIDE of the item (CIDE).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT informacoes_cide_combustiveis {
public:
    informacoes_cide_combustiveis();
    informacoes_cide_combustiveis(const informacoes_cide_combustiveis& other);
    informacoes_cide_combustiveis(informacoes_cide_combustiveis&& other);
    informacoes_cide_combustiveis& operator=(const informacoes_cide_combustiveis& other);
    informacoes_cide_combustiveis& operator=(informacoes_cide_combustiveis&& other);
    ~informacoes_cide_combustiveis();

    /// Quantity sold that is the tax base; the layout gives no unit (qBCProd).
    decimal get_base_de_calculo() const;
    void set_base_de_calculo(const decimal& value);

    /// CIDE rate, in R$ per unit of that quantity (vAliqProd).
    decimal get_valor_aliquota() const;
    void set_valor_aliquota(const decimal& value);

    /// CIDE amount, in R$ (vCIDE).
    decimal get_valor_cide() const;
    void set_valor_cide(const decimal& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

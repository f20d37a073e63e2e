#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Composition and starting value of liquefied petroleum gas (its elements stand in comb).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT informacoes_combustivel_glp {
public:
    informacoes_combustivel_glp();
    informacoes_combustivel_glp(const informacoes_combustivel_glp& other);
    informacoes_combustivel_glp(informacoes_combustivel_glp&& other);
    informacoes_combustivel_glp& operator=(const informacoes_combustivel_glp& other);
    informacoes_combustivel_glp& operator=(informacoes_combustivel_glp&& other);
    ~informacoes_combustivel_glp();

    /// Share that comes from petroleum, in percent (pGLP).
    decimal get_percentual_derivado_do_petroleo() const;
    void set_percentual_derivado_do_petroleo(const decimal& value);

    /// Share of national natural gas, in percent (pGNn).
    decimal get_percentual_gas_natural_nacional() const;
    void set_percentual_gas_natural_nacional(const decimal& value);

    /// Share of imported natural gas, in percent (pGNi).
    decimal get_percentual_gas_natural_importado() const;
    void set_percentual_gas_natural_importado(const decimal& value);

    /// Starting value of one kilogram, without ICMS, in R$ (vPart).
    decimal get_valor_partida() const;
    void set_valor_partida(const decimal& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

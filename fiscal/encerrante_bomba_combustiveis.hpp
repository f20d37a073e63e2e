#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// Nozzle and meter readings of a fuelling at the pump (encerrante; pBio stands beside it in comb).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT encerrante_bomba_combustiveis {
public:
    encerrante_bomba_combustiveis();
    encerrante_bomba_combustiveis(const encerrante_bomba_combustiveis& other);
    encerrante_bomba_combustiveis(encerrante_bomba_combustiveis&& other);
    encerrante_bomba_combustiveis& operator=(const encerrante_bomba_combustiveis& other);
    encerrante_bomba_combustiveis& operator=(encerrante_bomba_combustiveis&& other);
    ~encerrante_bomba_combustiveis();

    /// Number of the nozzle, 1 to 3 digits as a number (nBico).
    std::uint16_t get_identificacao_bico() const;
    void set_identificacao_bico(std::uint16_t value);

    /// Number of the pump that the nozzle belongs to, 1 to 3 digits as a number (nBomba).
    optional<std::uint16_t> get_identificacao_bomba() const;
    void set_identificacao_bomba(const optional<std::uint16_t>& value);

    /// Number of the tank that feeds the nozzle, 1 to 3 digits as a number (nTanque).
    std::uint16_t get_identificacao_tanque() const;
    void set_identificacao_tanque(std::uint16_t value);

    /// Meter reading before the fuelling, with 3 decimals (vEncIni).
    decimal get_valor_inicial() const;
    void set_valor_inicial(const decimal& value);

    /// Meter reading after the fuelling, with 3 decimals (vEncFin).
    decimal get_valor_final() const;
    void set_valor_final(const decimal& value);

    /// Share of biodiesel in the diesel oil, in percent (pBio).
    optional<decimal> get_percentual_biodiesel() const;
    void set_percentual_biodiesel(const optional<decimal>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

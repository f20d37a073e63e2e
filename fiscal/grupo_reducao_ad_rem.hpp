#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// Reduction of the ad rem rate of monophasic fuel (its elements stand in ICMS15).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_reducao_ad_rem {
public:
    /// Reason for the reduction (motRedAdRem).
    enum class motivo_reducao : std::uint32_t {
        nao_informado = 0,       ///< never set; not a code of the layout
        transporte_coletivo = 1, ///< public passenger transport
        outros = 9,              ///< another reason
    };

    grupo_reducao_ad_rem() noexcept;
    grupo_reducao_ad_rem(const grupo_reducao_ad_rem& other) noexcept;
    grupo_reducao_ad_rem(grupo_reducao_ad_rem&& other) noexcept;
    grupo_reducao_ad_rem& operator=(const grupo_reducao_ad_rem& other) noexcept;
    grupo_reducao_ad_rem& operator=(grupo_reducao_ad_rem&& other) noexcept;
    ~grupo_reducao_ad_rem();
    void swap(grupo_reducao_ad_rem& other) noexcept;

    /// Reduction of the ad rem rate, in percent, up to 100 (pRedAdRem). The getter does not throw:
    /// a copy that fails ends the process.
    decimal get_percentual_reducao() const noexcept;
    void set_percentual_reducao(const decimal& value);

    /// Reason for the reduction (motRedAdRem).
    motivo_reducao get_motivo() const;
    void set_motivo(motivo_reducao value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal

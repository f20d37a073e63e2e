#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Reduction of the rate of the IBS or of the CBS (gRed).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_informacoes_reducao {
public:
    grupo_informacoes_reducao() noexcept;
    grupo_informacoes_reducao(const grupo_informacoes_reducao& other) noexcept;
    grupo_informacoes_reducao(grupo_informacoes_reducao&& other) noexcept;
    grupo_informacoes_reducao& operator=(const grupo_informacoes_reducao& other) noexcept;
    grupo_informacoes_reducao& operator=(grupo_informacoes_reducao&& other) noexcept;
    ~grupo_informacoes_reducao();
    void swap(grupo_informacoes_reducao& other) noexcept;

    /// Percentage by which the full rate is reduced (pRedAliq).
    decimal get_percentual_reducao_aliquota() const;
    void set_percentual_reducao_aliquota(const decimal& value);

    /// Effective rate, the one left after the reduction, in percent (pAliqEfet).
    decimal get_aliquota_efetiva() const;
    void set_aliquota_efetiva(const decimal& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal

#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class tributavel_imposto_seletivo;

/// Computation of the selective tax of an item (its elements stand in IS).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT valor_imposto_seletivo {
public:
    valor_imposto_seletivo() noexcept;
    valor_imposto_seletivo(const valor_imposto_seletivo& other) noexcept;
    valor_imposto_seletivo(valor_imposto_seletivo&& other) noexcept;
    valor_imposto_seletivo& operator=(const valor_imposto_seletivo& other) noexcept;
    valor_imposto_seletivo& operator=(valor_imposto_seletivo&& other) noexcept;
    ~valor_imposto_seletivo();
    void swap(valor_imposto_seletivo& other) noexcept;

    /// Tax base, in R$ (vBCIS).
    decimal get_valor_base_calculo() const;
    void set_valor_base_calculo(const decimal& value);

    /// Ad valorem rate, in percent (pIS).
    decimal get_aliquota() const;
    void set_aliquota(const decimal& value);

    /// Specific rate, in R$ per taxable unit (pISEspec).
    optional<decimal> get_aliquota_especifica() const;
    void set_aliquota_especifica(const optional<decimal>& value);

    /// Taxable unit and quantity (uTrib, qTrib).
    optional<tributavel_imposto_seletivo> get_tributavel() const;
    void set_tributavel(const optional<tributavel_imposto_seletivo>& value);

    /// Tax amount, in R$ (vIS).
    decimal get_valor() const;
    void set_valor(const decimal& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal

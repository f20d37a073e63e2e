#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <string>

namespace kivo::erp::v12::fiscal {

/// Unit and quantity that the selective tax is reckoned in (its elements stand in IS).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT tributavel_imposto_seletivo {
public:
    tributavel_imposto_seletivo() noexcept;
    tributavel_imposto_seletivo(const tributavel_imposto_seletivo& other) noexcept;
    tributavel_imposto_seletivo(tributavel_imposto_seletivo&& other) noexcept;
    tributavel_imposto_seletivo& operator=(const tributavel_imposto_seletivo& other) noexcept;
    tributavel_imposto_seletivo& operator=(tributavel_imposto_seletivo&& other) noexcept;
    ~tributavel_imposto_seletivo();
    void swap(tributavel_imposto_seletivo& other) noexcept;

    /// Taxable unit of measure, 1 to 6 characters (uTrib). A first setter that cannot copy it
    /// leaves the object empty.
    std::string get_unidade_medida_tributavel() const;
    void set_unidade_medida_tributavel(const std::string& value);

    /// Taxable quantity, in that unit, above zero (qTrib).
    decimal get_quantidade_tributavel() const;
    void set_quantidade_tributavel(const decimal& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal

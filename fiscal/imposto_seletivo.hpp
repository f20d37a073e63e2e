#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>

namespace kivo::erp::v12::fiscal {

class valor_imposto_seletivo;

/// Selective tax of an item (IS).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT imposto_seletivo {
public:
    imposto_seletivo() noexcept;
    imposto_seletivo(const imposto_seletivo& other) noexcept;
    imposto_seletivo(imposto_seletivo&& other) noexcept;
    imposto_seletivo& operator=(const imposto_seletivo& other) noexcept;
    imposto_seletivo& operator=(imposto_seletivo&& other) noexcept;
    ~imposto_seletivo();
    void swap(imposto_seletivo& other) noexcept;

    /// Tax situation, code of 3 digits as a number (CSTIS).
    std::uint32_t get_codigo_situacao_tributaria() const;
    void set_codigo_situacao_tributaria(std::uint32_t value);

    /// Tax classification, code of 6 digits as a number (cClassTribIS).
    std::uint32_t get_codigo_classificacao_tributaria() const;
    void set_codigo_classificacao_tributaria(std::uint32_t value);

    /// Tax base, rates and amount (vBCIS, pIS, pISEspec, uTrib, qTrib, vIS).
    optional<valor_imposto_seletivo> get_valor_imposto() const;
    void set_valor_imposto(const optional<valor_imposto_seletivo>& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal

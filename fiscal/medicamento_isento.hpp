#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>

#include <string>

namespace kivo::erp::v12::fiscal {

/// Exemption of a medicine from registration (cProdANVISA = ISENTO, with xMotivoIsencao).
/// Lazy: failures and moved-from objects follow lazy_handle.
class KIVO_ERP_FISCAL_EXPORT medicamento_isento {
public:
    medicamento_isento() noexcept;
    medicamento_isento(const medicamento_isento& other);
    medicamento_isento(medicamento_isento&& other) noexcept;
    medicamento_isento& operator=(const medicamento_isento& other);
    medicamento_isento& operator=(medicamento_isento&& other) noexcept;
    ~medicamento_isento();
    void swap(medicamento_isento& other) noexcept;

    /// Decision that exempts the medicine, 1 to 255 characters (xMotivoIsencao).
    std::string get_motivo() const;
    void set_motivo(const std::string& value);

private:
    struct record;
    lazy_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

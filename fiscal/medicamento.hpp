#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <string>

namespace kivo::erp::v12::fiscal {

class medicamento_isento;

/// A medicine of an item (med).
/// Lazy: failures and moved-from objects follow lazy_handle.
class KIVO_ERP_FISCAL_EXPORT medicamento {
public:
    medicamento() noexcept;
    medicamento(const medicamento& other);
    medicamento(medicamento&& other) noexcept;
    medicamento& operator=(const medicamento& other);
    medicamento& operator=(medicamento&& other) noexcept;
    ~medicamento();
    void swap(medicamento& other) noexcept;

    /// Registration at the health agency, 11 or 13 digits as text (index 0), or the exemption from
    /// it (index 1) (cProdANVISA). An empty text when never set.
    variant<std::string, medicamento_isento> get_codigo_anvisa() const;
    void set_codigo_anvisa(const variant<std::string, medicamento_isento>& value);

    /// Maximum price to the consumer, in R$ (vPMC).
    decimal get_preco_maximo_consumidor() const;
    void set_preco_maximo_consumidor(const decimal& value);

private:
    struct record;
    lazy_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

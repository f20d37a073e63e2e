#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// A reference to the receipt of a cash register or fiscal printer (refECF).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT cupom_referenciado {
public:
    /// Equipment that printed a receipt (mod). The codes of the layout have a letter: each value is
    /// its code read as a hexadecimal number.
    enum class modelo : std::uint32_t {
        nao_informado = 0,           ///< never set; not a code of the layout
        maquina_registradora = 0x2B, ///< code 2B: cash register that is no fiscal printer
        pdv = 0x2C,                  ///< code 2C: point-of-sale terminal
        ecf = 0x2D,                  ///< code 2D: fiscal printer (ECF)
    };

    cupom_referenciado();
    cupom_referenciado(const cupom_referenciado& other);
    cupom_referenciado(cupom_referenciado&& other);
    cupom_referenciado& operator=(const cupom_referenciado& other);
    cupom_referenciado& operator=(cupom_referenciado&& other);
    ~cupom_referenciado();

    /// Equipment that printed the receipt (mod).
    modelo get_modelo() const;
    void set_modelo(modelo value);

    /// Number of the equipment at its establishment, 1 to 3 digits (nECF).
    std::uint16_t get_ecf() const;
    void set_ecf(std::uint16_t value);

    /// Operation counter of the receipt (COO), 1 to 6 digits (nCOO).
    std::uint32_t get_coo() const;
    void set_coo(std::uint32_t value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>
#include <string>

namespace kivo::erp::v12::fiscal {

/// An addition of an import declaration (adi).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT adicao {
public:
    adicao();
    adicao(const adicao& other);
    adicao(adicao&& other);
    adicao& operator=(const adicao& other);
    adicao& operator=(adicao&& other);
    ~adicao();

    /// Number of the addition, from 1 to 999; 0 stands for none (nAdicao).
    std::uint16_t get_numero_adicao() const;
    void set_numero_adicao(std::uint16_t value);

    /// Number of the item within the addition, from 1 on (nSeqAdic).
    std::uint16_t get_numero_sequencial_da_adicao() const;
    void set_numero_sequencial_da_adicao(std::uint16_t value);

    /// Foreign manufacturer, code of the issuer, 1 to 60 characters (cFabricante).
    std::string get_codigo_fabricante_estrangeiro() const;
    void set_codigo_fabricante_estrangeiro(const std::string& value);

    /// Discount of the item in the declaration, in R$ (vDescDI).
    optional<decimal> get_valor_desconto() const;
    void set_valor_desconto(const optional<decimal>& value);

    /// Act that grants the drawback, 1 to 20 characters (nDraw).
    optional<std::string> get_ato_concessorio_drawback() const;
    void set_ato_concessorio_drawback(const optional<std::string>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <string>
#include <vector>

namespace kivo::erp::v12::fiscal {

class duplicata;

/// The bill and its instalments (cobr).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT cobranca {
public:
    cobranca();
    cobranca(const cobranca& other);
    cobranca(cobranca&& other);
    cobranca& operator=(const cobranca& other);
    cobranca& operator=(cobranca&& other);
    ~cobranca();

    /// Number of the bill, as text, 1 to 60 characters (fat/nFat).
    optional<std::string> get_numero_fatura() const;
    void set_numero_fatura(const optional<std::string>& value);

    /// Amount before the discount, in R$ (fat/vOrig).
    optional<decimal> get_valor_original_fatura() const;
    void set_valor_original_fatura(const optional<decimal>& value);

    /// Discount, in R$ (fat/vDesc).
    optional<decimal> get_valor_desconto() const;
    void set_valor_desconto(const optional<decimal>& value);

    /// Amount after the discount, in R$; never derived from the other two (fat/vLiq).
    optional<decimal> get_valor_liquido() const;
    void set_valor_liquido(const optional<decimal>& value);

    /// Instalments, up to 120 (dup).
    std::vector<duplicata> get_duplicatas() const;
    void set_duplicatas(const std::vector<duplicata>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

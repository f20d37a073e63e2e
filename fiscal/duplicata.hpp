#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <string>

namespace kivo::erp::v12::fiscal {

/// An instalment of the bill (dup).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT duplicata {
public:
    duplicata();
    duplicata(const duplicata& other);
    duplicata(duplicata&& other);
    duplicata& operator=(const duplicata& other);
    duplicata& operator=(duplicata&& other);
    ~duplicata();

    /// Number of the instalment, as text, 1 to 60 characters (nDup).
    optional<std::string> get_numero_duplicata() const;
    void set_numero_duplicata(const optional<std::string>& value);

    /// Due date (dVenc).
    optional<date> get_data_vencimento() const;
    void set_data_vencimento(const optional<date>& value);

    /// Amount, in R$, above zero (vDup).
    decimal get_valor_duplicata() const;
    void set_valor_duplicata(const decimal& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class ipi_devolvido;

/// Taxes of an item given back with returned goods (impostoDevol).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT tributos_devolvidos {
public:
    tributos_devolvidos();
    tributos_devolvidos(const tributos_devolvidos& other);
    tributos_devolvidos(tributos_devolvidos&& other);
    tributos_devolvidos& operator=(const tributos_devolvidos& other);
    tributos_devolvidos& operator=(tributos_devolvidos&& other);
    ~tributos_devolvidos();

    /// Share of the goods that is returned, in percent (pDevol).
    decimal get_percentual() const;
    void set_percentual(const decimal& value);

    /// Returned IPI (IPI).
    ipi_devolvido get_ipi() const;
    void set_ipi(const ipi_devolvido& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

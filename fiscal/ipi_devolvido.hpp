#pragma once

#include <fiscal/export.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// IPI given back with returned goods (IPI in impostoDevol).
/// In place: the field stands in the object, and nothing is allocated.
class KIVO_ERP_FISCAL_EXPORT ipi_devolvido {
public:
    ipi_devolvido();
    ipi_devolvido(const ipi_devolvido& other);
    ipi_devolvido(ipi_devolvido&& other);
    ipi_devolvido& operator=(const ipi_devolvido& other);
    ipi_devolvido& operator=(ipi_devolvido&& other);
    ~ipi_devolvido();

    /// Returned IPI amount, in R$ (vIPIDevol).
    decimal get_valor() const;
    void set_valor(const decimal& value);

private:
    decimal valor_;
};

} // namespace kivo::erp::v12::fiscal

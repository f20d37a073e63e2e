#include <fiscal/ipi_devolvido.hpp>

namespace kivo::erp::v12::fiscal {

ipi_devolvido::ipi_devolvido() = default;
ipi_devolvido::ipi_devolvido(const ipi_devolvido&) = default;
ipi_devolvido::ipi_devolvido(ipi_devolvido&&) = default;
ipi_devolvido& ipi_devolvido::operator=(const ipi_devolvido&) = default;
ipi_devolvido& ipi_devolvido::operator=(ipi_devolvido&&) = default;
ipi_devolvido::~ipi_devolvido() = default;

decimal ipi_devolvido::get_valor() const { return valor_; }
void ipi_devolvido::set_valor(const decimal& value) { valor_ = value; }

} // namespace kivo::erp::v12::fiscal

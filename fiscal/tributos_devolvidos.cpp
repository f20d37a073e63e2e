#include <fiscal/tributos_devolvidos.hpp>

#include <fiscal/ipi_devolvido.hpp>

namespace kivo::erp::v12::fiscal {

struct tributos_devolvidos::record {
    decimal percentual;
    ipi_devolvido ipi;
};

tributos_devolvidos::tributos_devolvidos() = default;
tributos_devolvidos::tributos_devolvidos(const tributos_devolvidos&) = default;
tributos_devolvidos::tributos_devolvidos(tributos_devolvidos&&) = default;
tributos_devolvidos& tributos_devolvidos::operator=(const tributos_devolvidos&) = default;
tributos_devolvidos& tributos_devolvidos::operator=(tributos_devolvidos&&) = default;
tributos_devolvidos::~tributos_devolvidos() = default;

decimal tributos_devolvidos::get_percentual() const { return record_->percentual; }
void tributos_devolvidos::set_percentual(const decimal& value) { record_->percentual = value; }

ipi_devolvido tributos_devolvidos::get_ipi() const { return record_->ipi; }
void tributos_devolvidos::set_ipi(const ipi_devolvido& value) { record_->ipi = value; }

} // namespace kivo::erp::v12::fiscal

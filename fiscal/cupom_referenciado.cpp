#include <fiscal/cupom_referenciado.hpp>

namespace kivo::erp::v12::fiscal {

struct cupom_referenciado::record {
    cupom_referenciado::modelo modelo = {};
    std::uint16_t ecf = 0;
    std::uint32_t coo = 0;
};

cupom_referenciado::cupom_referenciado() = default;
cupom_referenciado::cupom_referenciado(const cupom_referenciado&) = default;
cupom_referenciado::cupom_referenciado(cupom_referenciado&&) = default;
cupom_referenciado& cupom_referenciado::operator=(const cupom_referenciado&) = default;
cupom_referenciado& cupom_referenciado::operator=(cupom_referenciado&&) = default;
cupom_referenciado::~cupom_referenciado() = default;

cupom_referenciado::modelo cupom_referenciado::get_modelo() const { return record_->modelo; }
void cupom_referenciado::set_modelo(modelo value) { record_->modelo = value; }

std::uint16_t cupom_referenciado::get_ecf() const { return record_->ecf; }
void cupom_referenciado::set_ecf(std::uint16_t value) { record_->ecf = value; }

std::uint32_t cupom_referenciado::get_coo() const { return record_->coo; }
void cupom_referenciado::set_coo(std::uint32_t value) { record_->coo = value; }

} // namespace kivo::erp::v12::fiscal

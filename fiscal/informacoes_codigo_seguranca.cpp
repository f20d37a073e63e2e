#include <fiscal/informacoes_codigo_seguranca.hpp>

namespace kivo::erp::v12::fiscal {

struct informacoes_codigo_seguranca::record {
    std::uint16_t identificador_csrt = 0;
    std::string hash_csrt;
};

informacoes_codigo_seguranca::informacoes_codigo_seguranca() = default;
informacoes_codigo_seguranca::informacoes_codigo_seguranca(const informacoes_codigo_seguranca&) =
    default;
informacoes_codigo_seguranca::informacoes_codigo_seguranca(informacoes_codigo_seguranca&&) =
    default;
informacoes_codigo_seguranca&
informacoes_codigo_seguranca::operator=(const informacoes_codigo_seguranca&) = default;
informacoes_codigo_seguranca&
informacoes_codigo_seguranca::operator=(informacoes_codigo_seguranca&&) = default;
informacoes_codigo_seguranca::~informacoes_codigo_seguranca() = default;

std::uint16_t informacoes_codigo_seguranca::get_identificador_csrt() const {
    return record_->identificador_csrt;
}
void informacoes_codigo_seguranca::set_identificador_csrt(std::uint16_t value) {
    record_->identificador_csrt = value;
}

std::string informacoes_codigo_seguranca::get_hash_csrt() const { return record_->hash_csrt; }
void informacoes_codigo_seguranca::set_hash_csrt(const std::string& value) {
    record_->hash_csrt = value;
}

} // namespace kivo::erp::v12::fiscal

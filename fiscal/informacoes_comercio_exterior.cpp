#include <fiscal/informacoes_comercio_exterior.hpp>

namespace kivo::erp::v12::fiscal {

struct informacoes_comercio_exterior::record {
    std::string uf_saida;
    std::string local_embarque;
    optional<std::string> local_despacho;
};

informacoes_comercio_exterior::informacoes_comercio_exterior() = default;
informacoes_comercio_exterior::informacoes_comercio_exterior(const informacoes_comercio_exterior&) =
    default;
informacoes_comercio_exterior::informacoes_comercio_exterior(informacoes_comercio_exterior&&) =
    default;
informacoes_comercio_exterior&
informacoes_comercio_exterior::operator=(const informacoes_comercio_exterior&) = default;
informacoes_comercio_exterior&
informacoes_comercio_exterior::operator=(informacoes_comercio_exterior&&) = default;
informacoes_comercio_exterior::~informacoes_comercio_exterior() = default;

std::string informacoes_comercio_exterior::get_uf_saida() const { return record_->uf_saida; }
void informacoes_comercio_exterior::set_uf_saida(const std::string& value) {
    record_->uf_saida = value;
}

std::string informacoes_comercio_exterior::get_local_embarque() const {
    return record_->local_embarque;
}
void informacoes_comercio_exterior::set_local_embarque(const std::string& value) {
    record_->local_embarque = value;
}

optional<std::string> informacoes_comercio_exterior::get_local_despacho() const {
    return record_->local_despacho;
}
void informacoes_comercio_exterior::set_local_despacho(const optional<std::string>& value) {
    record_->local_despacho = value;
}

} // namespace kivo::erp::v12::fiscal

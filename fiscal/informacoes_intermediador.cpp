#include <fiscal/informacoes_intermediador.hpp>

namespace kivo::erp::v12::fiscal {

struct informacoes_intermediador::record {
    fiscal::cnpj cnpj;
    std::string identificador_cadastrado;
};

informacoes_intermediador::informacoes_intermediador() noexcept = default;
informacoes_intermediador::informacoes_intermediador(const informacoes_intermediador&) = default;
informacoes_intermediador::informacoes_intermediador(informacoes_intermediador&&) noexcept =
    default;
informacoes_intermediador&
informacoes_intermediador::operator=(const informacoes_intermediador&) = default;
informacoes_intermediador&
informacoes_intermediador::operator=(informacoes_intermediador&&) noexcept = default;
informacoes_intermediador::~informacoes_intermediador() = default;
void informacoes_intermediador::swap(informacoes_intermediador& other) noexcept {
    record_.swap(other.record_);
}

cnpj informacoes_intermediador::get_cnpj() const { return record_.get(&record::cnpj); }
void informacoes_intermediador::set_cnpj(const cnpj& value) { record_.set(&record::cnpj, value); }

std::string informacoes_intermediador::get_identificador_cadastrado() const {
    return record_.get(&record::identificador_cadastrado);
}
void informacoes_intermediador::set_identificador_cadastrado(const std::string& value) {
    record_.set(&record::identificador_cadastrado, value);
}

} // namespace kivo::erp::v12::fiscal

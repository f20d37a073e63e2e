#include <fiscal/informacoes_adicionais.hpp>

#include <fiscal/grupo_processo_referenciado.hpp>

namespace kivo::erp::v12::fiscal {

struct informacoes_adicionais::record {
    optional<std::string> informacoes_adicionais_fisco;
    optional<std::string> informacoes_complementares;
    std::vector<fiscal::grupo_processo_referenciado> grupo_processo_referenciado;
};

informacoes_adicionais::informacoes_adicionais() = default;
informacoes_adicionais::informacoes_adicionais(const informacoes_adicionais&) = default;
informacoes_adicionais::informacoes_adicionais(informacoes_adicionais&&) = default;
informacoes_adicionais& informacoes_adicionais::operator=(const informacoes_adicionais&) = default;
informacoes_adicionais& informacoes_adicionais::operator=(informacoes_adicionais&&) = default;
informacoes_adicionais::~informacoes_adicionais() = default;

optional<std::string> informacoes_adicionais::get_informacoes_adicionais_fisco() const {
    return record_->informacoes_adicionais_fisco;
}
void informacoes_adicionais::set_informacoes_adicionais_fisco(const optional<std::string>& value) {
    record_->informacoes_adicionais_fisco = value;
}

optional<std::string> informacoes_adicionais::get_informacoes_complementares() const {
    return record_->informacoes_complementares;
}
void informacoes_adicionais::set_informacoes_complementares(const optional<std::string>& value) {
    record_->informacoes_complementares = value;
}

std::vector<grupo_processo_referenciado>
informacoes_adicionais::get_grupo_processo_referenciado() const {
    return record_->grupo_processo_referenciado;
}
void informacoes_adicionais::set_grupo_processo_referenciado(
    const std::vector<grupo_processo_referenciado>& value) {
    record_->grupo_processo_referenciado = value;
}

} // namespace kivo::erp::v12::fiscal

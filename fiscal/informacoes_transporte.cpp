#include <fiscal/informacoes_transporte.hpp>

#include <fiscal/transportador.hpp>
#include <fiscal/veiculo_transporte.hpp>
#include <fiscal/volume.hpp>

namespace kivo::erp::v12::fiscal {

struct informacoes_transporte::record {
    informacoes_transporte::modalidade_frete modalidade_frete = {};
    optional<fiscal::transportador> transportador;
    optional<veiculo_transporte> veiculo;
    std::vector<volume> volumes;
};

informacoes_transporte::informacoes_transporte() = default;
informacoes_transporte::informacoes_transporte(const informacoes_transporte&) = default;
informacoes_transporte::informacoes_transporte(informacoes_transporte&&) = default;
informacoes_transporte& informacoes_transporte::operator=(const informacoes_transporte&) = default;
informacoes_transporte& informacoes_transporte::operator=(informacoes_transporte&&) = default;
informacoes_transporte::~informacoes_transporte() = default;

informacoes_transporte::modalidade_frete informacoes_transporte::get_modalidade_frete() const {
    return record_->modalidade_frete;
}
void informacoes_transporte::set_modalidade_frete(modalidade_frete value) {
    record_->modalidade_frete = value;
}

optional<transportador> informacoes_transporte::get_transportador() const {
    return record_->transportador;
}
void informacoes_transporte::set_transportador(const optional<transportador>& value) {
    record_->transportador = value;
}

optional<veiculo_transporte> informacoes_transporte::get_veiculo() const {
    return record_->veiculo;
}
void informacoes_transporte::set_veiculo(const optional<veiculo_transporte>& value) {
    record_->veiculo = value;
}

std::vector<volume> informacoes_transporte::get_volumes() const { return record_->volumes; }
void informacoes_transporte::set_volumes(const std::vector<volume>& value) {
    record_->volumes = value;
}

} // namespace kivo::erp::v12::fiscal

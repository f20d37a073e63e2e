#include <fiscal/veiculo_transporte.hpp>

namespace kivo::erp::v12::fiscal {

struct veiculo_transporte::record {
    std::string placa;
    std::string uf;
    optional<std::string> rntc;
};

veiculo_transporte::veiculo_transporte() = default;
veiculo_transporte::veiculo_transporte(const veiculo_transporte&) = default;
veiculo_transporte::veiculo_transporte(veiculo_transporte&&) = default;
veiculo_transporte& veiculo_transporte::operator=(const veiculo_transporte&) = default;
veiculo_transporte& veiculo_transporte::operator=(veiculo_transporte&&) = default;
veiculo_transporte::~veiculo_transporte() = default;

std::string veiculo_transporte::get_placa() const { return record_->placa; }
void veiculo_transporte::set_placa(const std::string& value) { record_->placa = value; }

std::string veiculo_transporte::get_uf() const { return record_->uf; }
void veiculo_transporte::set_uf(const std::string& value) { record_->uf = value; }

optional<std::string> veiculo_transporte::get_rntc() const { return record_->rntc; }
void veiculo_transporte::set_rntc(const optional<std::string>& value) { record_->rntc = value; }

} // namespace kivo::erp::v12::fiscal

#include <fiscal/endereco.hpp>

namespace kivo::erp::v12::fiscal {

struct endereco::record {
    optional<std::uint32_t> cep;
    std::string logradouro;
    std::string numero_endereco;
    optional<std::string> complemento;
    std::string bairro;
    optional<std::string> pais;
    std::uint32_t ibge_municipio = 0;
    std::string uf;
    std::string nome_municipio;
    optional<std::uint16_t> ibge_pais;
};

endereco::endereco() = default;
endereco::endereco(const endereco&) = default;
endereco::endereco(endereco&&) = default;
endereco& endereco::operator=(const endereco&) = default;
endereco& endereco::operator=(endereco&&) = default;
endereco::~endereco() = default;

optional<std::uint32_t> endereco::get_cep() const { return record_->cep; }
void endereco::set_cep(const optional<std::uint32_t>& value) { record_->cep = value; }

std::string endereco::get_logradouro() const { return record_->logradouro; }
void endereco::set_logradouro(const std::string& value) { record_->logradouro = value; }

std::string endereco::get_numero_endereco() const { return record_->numero_endereco; }
void endereco::set_numero_endereco(const std::string& value) { record_->numero_endereco = value; }

optional<std::string> endereco::get_complemento() const { return record_->complemento; }
void endereco::set_complemento(const optional<std::string>& value) { record_->complemento = value; }

std::string endereco::get_bairro() const { return record_->bairro; }
void endereco::set_bairro(const std::string& value) { record_->bairro = value; }

optional<std::string> endereco::get_pais() const { return record_->pais; }
void endereco::set_pais(const optional<std::string>& value) { record_->pais = value; }

std::uint32_t endereco::get_ibge_municipio() const { return record_->ibge_municipio; }
void endereco::set_ibge_municipio(std::uint32_t value) { record_->ibge_municipio = value; }

std::string endereco::get_uf() const { return record_->uf; }
void endereco::set_uf(const std::string& value) { record_->uf = value; }

std::string endereco::get_nome_municipio() const { return record_->nome_municipio; }
void endereco::set_nome_municipio(const std::string& value) { record_->nome_municipio = value; }

optional<std::uint16_t> endereco::get_ibge_pais() const { return record_->ibge_pais; }
void endereco::set_ibge_pais(const optional<std::uint16_t>& value) { record_->ibge_pais = value; }

} // namespace kivo::erp::v12::fiscal

#include <fiscal/nf_referenciada.hpp>

namespace kivo::erp::v12::fiscal {

struct nf_referenciada::record {
    std::uint8_t uf_emitente = 0;
    std::uint16_t ano_mes_emissao = 0;
    fiscal::cnpj cnpj;
    std::uint16_t modelo = 0;
    std::string serie;
    std::uint32_t numero = 0;
};

nf_referenciada::nf_referenciada() = default;
nf_referenciada::nf_referenciada(const nf_referenciada&) = default;
nf_referenciada::nf_referenciada(nf_referenciada&&) = default;
nf_referenciada& nf_referenciada::operator=(const nf_referenciada&) = default;
nf_referenciada& nf_referenciada::operator=(nf_referenciada&&) = default;
nf_referenciada::~nf_referenciada() = default;

std::uint8_t nf_referenciada::get_uf_emitente() const { return record_->uf_emitente; }
void nf_referenciada::set_uf_emitente(std::uint8_t value) { record_->uf_emitente = value; }

std::uint16_t nf_referenciada::get_ano_mes_emissao() const { return record_->ano_mes_emissao; }
void nf_referenciada::set_ano_mes_emissao(std::uint16_t value) { record_->ano_mes_emissao = value; }

cnpj nf_referenciada::get_cnpj() const { return record_->cnpj; }
void nf_referenciada::set_cnpj(const cnpj& value) { record_->cnpj = value; }

std::uint16_t nf_referenciada::get_modelo() const { return record_->modelo; }
void nf_referenciada::set_modelo(std::uint16_t value) { record_->modelo = value; }

std::string nf_referenciada::get_serie() const { return record_->serie; }
void nf_referenciada::set_serie(const std::string& value) { record_->serie = value; }

std::uint32_t nf_referenciada::get_numero() const { return record_->numero; }
void nf_referenciada::set_numero(std::uint32_t value) { record_->numero = value; }

} // namespace kivo::erp::v12::fiscal

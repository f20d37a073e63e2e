#include <fiscal/nfp_referenciada.hpp>

namespace kivo::erp::v12::fiscal {

struct nfp_referenciada::record {
    std::uint8_t uf_emitente = 0;
    std::uint16_t ano_mes_emissao = 0;
    optional<fiscal::cnpj> cnpj;
    optional<std::string> cpf;
    std::string ie;
    nfp_referenciada::modelo modelo = {};
    std::string serie;
    std::uint32_t numero = 0;
};

nfp_referenciada::nfp_referenciada() = default;
nfp_referenciada::nfp_referenciada(const nfp_referenciada&) = default;
nfp_referenciada::nfp_referenciada(nfp_referenciada&&) = default;
nfp_referenciada& nfp_referenciada::operator=(const nfp_referenciada&) = default;
nfp_referenciada& nfp_referenciada::operator=(nfp_referenciada&&) = default;
nfp_referenciada::~nfp_referenciada() = default;

std::uint8_t nfp_referenciada::get_uf_emitente() const { return record_->uf_emitente; }
void nfp_referenciada::set_uf_emitente(std::uint8_t value) { record_->uf_emitente = value; }

std::uint16_t nfp_referenciada::get_ano_mes_emissao() const { return record_->ano_mes_emissao; }
void nfp_referenciada::set_ano_mes_emissao(std::uint16_t value) {
    record_->ano_mes_emissao = value;
}

optional<cnpj> nfp_referenciada::get_cnpj() const { return record_->cnpj; }
void nfp_referenciada::set_cnpj(const optional<cnpj>& value) { record_->cnpj = value; }

optional<std::string> nfp_referenciada::get_cpf() const { return record_->cpf; }
void nfp_referenciada::set_cpf(const optional<std::string>& value) { record_->cpf = value; }

std::string nfp_referenciada::get_ie() const { return record_->ie; }
void nfp_referenciada::set_ie(const std::string& value) { record_->ie = value; }

nfp_referenciada::modelo nfp_referenciada::get_modelo() const { return record_->modelo; }
void nfp_referenciada::set_modelo(modelo value) { record_->modelo = value; }

std::string nfp_referenciada::get_serie() const { return record_->serie; }
void nfp_referenciada::set_serie(const std::string& value) { record_->serie = value; }

std::uint32_t nfp_referenciada::get_numero() const { return record_->numero; }
void nfp_referenciada::set_numero(std::uint32_t value) { record_->numero = value; }

} // namespace kivo::erp::v12::fiscal

#include <fiscal/emitente.hpp>

#include <fiscal/endereco.hpp>

namespace kivo::erp::v12::fiscal {

struct emitente::record {
    optional<fiscal::cnpj> cnpj;
    std::string razao_social;
    optional<std::string> nome_fantasia;
    fiscal::endereco endereco;
    optional<std::string> telefone;
    std::string ie;
    optional<std::string> iest;
    emitente::regime_fiscal regime_fiscal = {};
    optional<std::string> inscricao_municipal;
    optional<std::uint32_t> cnae;
};

emitente::emitente() = default;
emitente::emitente(const emitente&) = default;
emitente::emitente(emitente&&) = default;
emitente& emitente::operator=(const emitente&) = default;
emitente& emitente::operator=(emitente&&) = default;
emitente::~emitente() = default;

optional<cnpj> emitente::get_cnpj() const { return record_->cnpj; }
void emitente::set_cnpj(const optional<cnpj>& value) { record_->cnpj = value; }

std::string emitente::get_razao_social() const { return record_->razao_social; }
void emitente::set_razao_social(const std::string& value) { record_->razao_social = value; }

optional<std::string> emitente::get_nome_fantasia() const { return record_->nome_fantasia; }
void emitente::set_nome_fantasia(const optional<std::string>& value) {
    record_->nome_fantasia = value;
}

endereco emitente::get_endereco() const { return record_->endereco; }
void emitente::set_endereco(const endereco& value) { record_->endereco = value; }

optional<std::string> emitente::get_telefone() const { return record_->telefone; }
void emitente::set_telefone(const optional<std::string>& value) { record_->telefone = value; }

std::string emitente::get_ie() const { return record_->ie; }
void emitente::set_ie(const std::string& value) { record_->ie = value; }

optional<std::string> emitente::get_iest() const { return record_->iest; }
void emitente::set_iest(const optional<std::string>& value) { record_->iest = value; }

emitente::regime_fiscal emitente::get_regime_fiscal() const { return record_->regime_fiscal; }
void emitente::set_regime_fiscal(regime_fiscal value) { record_->regime_fiscal = value; }

optional<std::string> emitente::get_inscricao_municipal() const {
    return record_->inscricao_municipal;
}
void emitente::set_inscricao_municipal(const optional<std::string>& value) {
    record_->inscricao_municipal = value;
}

optional<std::uint32_t> emitente::get_cnae() const { return record_->cnae; }
void emitente::set_cnae(const optional<std::uint32_t>& value) { record_->cnae = value; }

} // namespace kivo::erp::v12::fiscal

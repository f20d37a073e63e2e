#include <fiscal/transacao_tef.hpp>

namespace kivo::erp::v12::fiscal {

struct transacao_tef::record {
    optional<transacao_tef::tipo_integracao> tipo_integracao;
    optional<fiscal::cnpj> cnpj;
    optional<transacao_tef::bandeira> bandeira;
    optional<std::string> numero_autorizacao;
    optional<fiscal::cnpj> cnpj_beneficiario;
    optional<std::string> id_terminal_pagamento;
};

transacao_tef::transacao_tef() = default;
transacao_tef::transacao_tef(const transacao_tef&) = default;
transacao_tef::transacao_tef(transacao_tef&&) = default;
transacao_tef& transacao_tef::operator=(const transacao_tef&) = default;
transacao_tef& transacao_tef::operator=(transacao_tef&&) = default;
transacao_tef::~transacao_tef() = default;

optional<transacao_tef::tipo_integracao> transacao_tef::get_tipo_integracao() const {
    return record_->tipo_integracao;
}
void transacao_tef::set_tipo_integracao(const optional<tipo_integracao>& value) {
    record_->tipo_integracao = value;
}

optional<cnpj> transacao_tef::get_cnpj() const { return record_->cnpj; }
void transacao_tef::set_cnpj(const optional<cnpj>& value) { record_->cnpj = value; }

optional<transacao_tef::bandeira> transacao_tef::get_bandeira() const { return record_->bandeira; }
void transacao_tef::set_bandeira(const optional<bandeira>& value) { record_->bandeira = value; }

optional<std::string> transacao_tef::get_numero_autorizacao() const {
    return record_->numero_autorizacao;
}
void transacao_tef::set_numero_autorizacao(const optional<std::string>& value) {
    record_->numero_autorizacao = value;
}

optional<cnpj> transacao_tef::get_cnpj_beneficiario() const { return record_->cnpj_beneficiario; }
void transacao_tef::set_cnpj_beneficiario(const optional<cnpj>& value) {
    record_->cnpj_beneficiario = value;
}

optional<std::string> transacao_tef::get_id_terminal_pagamento() const {
    return record_->id_terminal_pagamento;
}
void transacao_tef::set_id_terminal_pagamento(const optional<std::string>& value) {
    record_->id_terminal_pagamento = value;
}

} // namespace kivo::erp::v12::fiscal

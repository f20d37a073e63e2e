#include <fiscal/detalhes_pagamento.hpp>

#include <fiscal/transacao_pagamento.hpp>
#include <fiscal/transacao_tef.hpp>

namespace kivo::erp::v12::fiscal {

struct detalhes_pagamento::record {
    optional<detalhes_pagamento::indicador_forma_pagamento> indicador_forma_pagamento;
    detalhes_pagamento::meio_pagamento meio_pagamento = {};
    optional<std::string> descricao_meio_pagamento;
    decimal valor_pagamento;
    optional<date> data_pagamento;
    optional<fiscal::transacao_pagamento> transacao_pagamento;
    optional<fiscal::transacao_tef> transacao_tef;
};

detalhes_pagamento::detalhes_pagamento() = default;
detalhes_pagamento::detalhes_pagamento(const detalhes_pagamento&) = default;
detalhes_pagamento::detalhes_pagamento(detalhes_pagamento&&) = default;
detalhes_pagamento& detalhes_pagamento::operator=(const detalhes_pagamento&) = default;
detalhes_pagamento& detalhes_pagamento::operator=(detalhes_pagamento&&) = default;
detalhes_pagamento::~detalhes_pagamento() = default;

optional<detalhes_pagamento::indicador_forma_pagamento>
detalhes_pagamento::get_indicador_forma_pagamento() const {
    return record_->indicador_forma_pagamento;
}
void detalhes_pagamento::set_indicador_forma_pagamento(
    const optional<indicador_forma_pagamento>& value) {
    record_->indicador_forma_pagamento = value;
}

detalhes_pagamento::meio_pagamento detalhes_pagamento::get_meio_pagamento() const {
    return record_->meio_pagamento;
}
void detalhes_pagamento::set_meio_pagamento(meio_pagamento value) {
    record_->meio_pagamento = value;
}

optional<std::string> detalhes_pagamento::get_descricao_meio_pagamento() const {
    return record_->descricao_meio_pagamento;
}
void detalhes_pagamento::set_descricao_meio_pagamento(const optional<std::string>& value) {
    record_->descricao_meio_pagamento = value;
}

decimal detalhes_pagamento::get_valor_pagamento() const { return record_->valor_pagamento; }
void detalhes_pagamento::set_valor_pagamento(const decimal& value) {
    record_->valor_pagamento = value;
}

optional<date> detalhes_pagamento::get_data_pagamento() const { return record_->data_pagamento; }
void detalhes_pagamento::set_data_pagamento(const optional<date>& value) {
    record_->data_pagamento = value;
}

optional<transacao_pagamento> detalhes_pagamento::get_transacao_pagamento() const {
    return record_->transacao_pagamento;
}
void detalhes_pagamento::set_transacao_pagamento(const optional<transacao_pagamento>& value) {
    record_->transacao_pagamento = value;
}

optional<transacao_tef> detalhes_pagamento::get_transacao_tef() const {
    return record_->transacao_tef;
}
void detalhes_pagamento::set_transacao_tef(const optional<transacao_tef>& value) {
    record_->transacao_tef = value;
}

} // namespace kivo::erp::v12::fiscal

#include <fiscal/informacoes_pagamento.hpp>

#include <fiscal/detalhes_pagamento.hpp>

namespace kivo::erp::v12::fiscal {

struct informacoes_pagamento::record {
    optional<decimal> valor_total_troco;
    std::vector<fiscal::detalhes_pagamento> detalhes_pagamento;
};

informacoes_pagamento::informacoes_pagamento() = default;
informacoes_pagamento::informacoes_pagamento(const informacoes_pagamento&) = default;
informacoes_pagamento::informacoes_pagamento(informacoes_pagamento&&) = default;
informacoes_pagamento& informacoes_pagamento::operator=(const informacoes_pagamento&) = default;
informacoes_pagamento& informacoes_pagamento::operator=(informacoes_pagamento&&) = default;
informacoes_pagamento::~informacoes_pagamento() = default;

optional<decimal> informacoes_pagamento::get_valor_total_troco() const {
    return record_->valor_total_troco;
}
void informacoes_pagamento::set_valor_total_troco(const optional<decimal>& value) {
    record_->valor_total_troco = value;
}

std::vector<detalhes_pagamento> informacoes_pagamento::get_detalhes_pagamento() const {
    return record_->detalhes_pagamento;
}
void informacoes_pagamento::set_detalhes_pagamento(const std::vector<detalhes_pagamento>& value) {
    record_->detalhes_pagamento = value;
}

} // namespace kivo::erp::v12::fiscal

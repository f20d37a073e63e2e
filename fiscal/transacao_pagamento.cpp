#include <fiscal/transacao_pagamento.hpp>

namespace kivo::erp::v12::fiscal {

struct transacao_pagamento::record {
    fiscal::cnpj cnpj;
    std::string uf;
};

transacao_pagamento::transacao_pagamento() noexcept = default;
transacao_pagamento::transacao_pagamento(const transacao_pagamento&) = default;
transacao_pagamento::transacao_pagamento(transacao_pagamento&&) noexcept = default;
transacao_pagamento& transacao_pagamento::operator=(const transacao_pagamento&) = default;
transacao_pagamento& transacao_pagamento::operator=(transacao_pagamento&&) noexcept = default;
transacao_pagamento::~transacao_pagamento() = default;
void transacao_pagamento::swap(transacao_pagamento& other) noexcept { record_.swap(other.record_); }

cnpj transacao_pagamento::get_cnpj() const { return record_.get(&record::cnpj); }
void transacao_pagamento::set_cnpj(const cnpj& value) { record_.set(&record::cnpj, value); }

std::string transacao_pagamento::get_uf() const { return record_.get(&record::uf); }
void transacao_pagamento::set_uf(const std::string& value) { record_.set(&record::uf, value); }

} // namespace kivo::erp::v12::fiscal

#include <fiscal/grupo_monofasico_padrao.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_monofasico_padrao::record {
    decimal quantidade_tributada;
    decimal aliquota_ibs;
    decimal aliquota_cbs;
    decimal valor_ibs_monofasico;
    decimal valor_cbs_monofasico;
};

grupo_monofasico_padrao::grupo_monofasico_padrao() noexcept = default;
grupo_monofasico_padrao::grupo_monofasico_padrao(const grupo_monofasico_padrao&) noexcept = default;
grupo_monofasico_padrao::grupo_monofasico_padrao(grupo_monofasico_padrao&&) noexcept = default;
grupo_monofasico_padrao&
grupo_monofasico_padrao::operator=(const grupo_monofasico_padrao&) noexcept = default;
grupo_monofasico_padrao&
grupo_monofasico_padrao::operator=(grupo_monofasico_padrao&&) noexcept = default;
grupo_monofasico_padrao::~grupo_monofasico_padrao() = default;
void grupo_monofasico_padrao::swap(grupo_monofasico_padrao& other) noexcept {
    record_.swap(other.record_);
}

decimal grupo_monofasico_padrao::get_quantidade_tributada() const {
    return record_.get(&record::quantidade_tributada);
}
void grupo_monofasico_padrao::set_quantidade_tributada(const decimal& value) {
    record_.set(&record::quantidade_tributada, value);
}

decimal grupo_monofasico_padrao::get_aliquota_ibs() const {
    return record_.get(&record::aliquota_ibs);
}
void grupo_monofasico_padrao::set_aliquota_ibs(const decimal& value) {
    record_.set(&record::aliquota_ibs, value);
}

decimal grupo_monofasico_padrao::get_aliquota_cbs() const {
    return record_.get(&record::aliquota_cbs);
}
void grupo_monofasico_padrao::set_aliquota_cbs(const decimal& value) {
    record_.set(&record::aliquota_cbs, value);
}

decimal grupo_monofasico_padrao::get_valor_ibs_monofasico() const {
    return record_.get(&record::valor_ibs_monofasico);
}
void grupo_monofasico_padrao::set_valor_ibs_monofasico(const decimal& value) {
    record_.set(&record::valor_ibs_monofasico, value);
}

decimal grupo_monofasico_padrao::get_valor_cbs_monofasico() const {
    return record_.get(&record::valor_cbs_monofasico);
}
void grupo_monofasico_padrao::set_valor_cbs_monofasico(const decimal& value) {
    record_.set(&record::valor_cbs_monofasico, value);
}

} // namespace kivo::erp::v12::fiscal

#include <fiscal/valor_imposto_seletivo.hpp>

#include <fiscal/tributavel_imposto_seletivo.hpp>

namespace kivo::erp::v12::fiscal {

struct valor_imposto_seletivo::record {
    decimal valor_base_calculo;
    decimal aliquota;
    optional<decimal> aliquota_especifica;
    optional<tributavel_imposto_seletivo> tributavel;
    decimal valor;
};

valor_imposto_seletivo::valor_imposto_seletivo() noexcept = default;
valor_imposto_seletivo::valor_imposto_seletivo(const valor_imposto_seletivo&) noexcept = default;
valor_imposto_seletivo::valor_imposto_seletivo(valor_imposto_seletivo&&) noexcept = default;
valor_imposto_seletivo&
valor_imposto_seletivo::operator=(const valor_imposto_seletivo&) noexcept = default;
valor_imposto_seletivo&
valor_imposto_seletivo::operator=(valor_imposto_seletivo&&) noexcept = default;
valor_imposto_seletivo::~valor_imposto_seletivo() = default;
void valor_imposto_seletivo::swap(valor_imposto_seletivo& other) noexcept {
    record_.swap(other.record_);
}

decimal valor_imposto_seletivo::get_valor_base_calculo() const {
    return record_.get(&record::valor_base_calculo);
}
void valor_imposto_seletivo::set_valor_base_calculo(const decimal& value) {
    record_.set(&record::valor_base_calculo, value);
}

decimal valor_imposto_seletivo::get_aliquota() const { return record_.get(&record::aliquota); }
void valor_imposto_seletivo::set_aliquota(const decimal& value) {
    record_.set(&record::aliquota, value);
}

optional<decimal> valor_imposto_seletivo::get_aliquota_especifica() const {
    return record_.get(&record::aliquota_especifica);
}
void valor_imposto_seletivo::set_aliquota_especifica(const optional<decimal>& value) {
    record_.set(&record::aliquota_especifica, value);
}

optional<tributavel_imposto_seletivo> valor_imposto_seletivo::get_tributavel() const {
    return record_.get(&record::tributavel);
}
void valor_imposto_seletivo::set_tributavel(const optional<tributavel_imposto_seletivo>& value) {
    record_.set(&record::tributavel, value);
}

decimal valor_imposto_seletivo::get_valor() const { return record_.get(&record::valor); }
void valor_imposto_seletivo::set_valor(const decimal& value) { record_.set(&record::valor, value); }

} // namespace kivo::erp::v12::fiscal

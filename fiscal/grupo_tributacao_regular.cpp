#include <fiscal/grupo_tributacao_regular.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_tributacao_regular::record {
    std::uint32_t codigo_situacao_tributaria = 0;
    std::uint32_t codigo_classificacao_tributaria = 0;
    decimal valor_aliquota_ibs_uf;
    decimal valor_tributo_ibs_uf;
    decimal valor_aliquota_ibs_municipio;
    decimal valor_tributo_ibs_municipio;
    decimal valor_aliquota_cbs;
    decimal valor_tributo_cbs;
};

grupo_tributacao_regular::grupo_tributacao_regular() noexcept = default;
grupo_tributacao_regular::grupo_tributacao_regular(const grupo_tributacao_regular&) noexcept =
    default;
grupo_tributacao_regular::grupo_tributacao_regular(grupo_tributacao_regular&&) noexcept = default;
grupo_tributacao_regular&
grupo_tributacao_regular::operator=(const grupo_tributacao_regular&) noexcept = default;
grupo_tributacao_regular&
grupo_tributacao_regular::operator=(grupo_tributacao_regular&&) noexcept = default;
grupo_tributacao_regular::~grupo_tributacao_regular() = default;
void grupo_tributacao_regular::swap(grupo_tributacao_regular& other) noexcept {
    record_.swap(other.record_);
}

std::uint32_t grupo_tributacao_regular::get_codigo_situacao_tributaria() const {
    return record_.get(&record::codigo_situacao_tributaria);
}
void grupo_tributacao_regular::set_codigo_situacao_tributaria(std::uint32_t value) {
    record_.set(&record::codigo_situacao_tributaria, value);
}

std::uint32_t grupo_tributacao_regular::get_codigo_classificacao_tributaria() const {
    return record_.get(&record::codigo_classificacao_tributaria);
}
void grupo_tributacao_regular::set_codigo_classificacao_tributaria(std::uint32_t value) {
    record_.set(&record::codigo_classificacao_tributaria, value);
}

decimal grupo_tributacao_regular::get_valor_aliquota_ibs_uf() const {
    return record_.get(&record::valor_aliquota_ibs_uf);
}
void grupo_tributacao_regular::set_valor_aliquota_ibs_uf(const decimal& value) {
    record_.set(&record::valor_aliquota_ibs_uf, value);
}

decimal grupo_tributacao_regular::get_valor_tributo_ibs_uf() const {
    return record_.get(&record::valor_tributo_ibs_uf);
}
void grupo_tributacao_regular::set_valor_tributo_ibs_uf(const decimal& value) {
    record_.set(&record::valor_tributo_ibs_uf, value);
}

decimal grupo_tributacao_regular::get_valor_aliquota_ibs_municipio() const {
    return record_.get(&record::valor_aliquota_ibs_municipio);
}
void grupo_tributacao_regular::set_valor_aliquota_ibs_municipio(const decimal& value) {
    record_.set(&record::valor_aliquota_ibs_municipio, value);
}

decimal grupo_tributacao_regular::get_valor_tributo_ibs_municipio() const {
    return record_.get(&record::valor_tributo_ibs_municipio);
}
void grupo_tributacao_regular::set_valor_tributo_ibs_municipio(const decimal& value) {
    record_.set(&record::valor_tributo_ibs_municipio, value);
}

decimal grupo_tributacao_regular::get_valor_aliquota_cbs() const {
    return record_.get(&record::valor_aliquota_cbs);
}
void grupo_tributacao_regular::set_valor_aliquota_cbs(const decimal& value) {
    record_.set(&record::valor_aliquota_cbs, value);
}

decimal grupo_tributacao_regular::get_valor_tributo_cbs() const {
    return record_.get(&record::valor_tributo_cbs);
}
void grupo_tributacao_regular::set_valor_tributo_cbs(const decimal& value) {
    record_.set(&record::valor_tributo_cbs, value);
}

} // namespace kivo::erp::v12::fiscal

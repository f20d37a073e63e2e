#include <fiscal/grupo_ibs_cbs.hpp>

#include <fiscal/grupo_ibs_municipio.hpp>
#include <fiscal/grupo_ibs_uf.hpp>
#include <fiscal/grupo_informacoes_cbs.hpp>
#include <fiscal/grupo_tributacao_regular.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_ibs_cbs::record {
    decimal valor_base_calculo;
    grupo_ibs_uf ibs_uf;
    grupo_ibs_municipio ibs_municipio;
    decimal valor_ibs;
    grupo_informacoes_cbs informacoes_cbs;
    optional<grupo_tributacao_regular> tributacao_regular;
};

grupo_ibs_cbs::grupo_ibs_cbs() noexcept = default;
grupo_ibs_cbs::grupo_ibs_cbs(const grupo_ibs_cbs&) noexcept = default;
grupo_ibs_cbs::grupo_ibs_cbs(grupo_ibs_cbs&&) noexcept = default;
grupo_ibs_cbs& grupo_ibs_cbs::operator=(const grupo_ibs_cbs&) noexcept = default;
grupo_ibs_cbs& grupo_ibs_cbs::operator=(grupo_ibs_cbs&&) noexcept = default;
grupo_ibs_cbs::~grupo_ibs_cbs() = default;
void grupo_ibs_cbs::swap(grupo_ibs_cbs& other) noexcept { record_.swap(other.record_); }

decimal grupo_ibs_cbs::get_valor_base_calculo() const {
    return record_.get(&record::valor_base_calculo);
}
void grupo_ibs_cbs::set_valor_base_calculo(const decimal& value) {
    record_.set(&record::valor_base_calculo, value);
}

grupo_ibs_uf grupo_ibs_cbs::get_ibs_uf() const { return record_.get(&record::ibs_uf); }
void grupo_ibs_cbs::set_ibs_uf(const grupo_ibs_uf& value) { record_.set(&record::ibs_uf, value); }

grupo_ibs_municipio grupo_ibs_cbs::get_ibs_municipio() const {
    return record_.get(&record::ibs_municipio);
}
void grupo_ibs_cbs::set_ibs_municipio(const grupo_ibs_municipio& value) {
    record_.set(&record::ibs_municipio, value);
}

decimal grupo_ibs_cbs::get_valor_ibs() const { return record_.get(&record::valor_ibs); }
void grupo_ibs_cbs::set_valor_ibs(const decimal& value) { record_.set(&record::valor_ibs, value); }

grupo_informacoes_cbs grupo_ibs_cbs::get_informacoes_cbs() const {
    return record_.get(&record::informacoes_cbs);
}
void grupo_ibs_cbs::set_informacoes_cbs(const grupo_informacoes_cbs& value) {
    record_.set(&record::informacoes_cbs, value);
}

optional<grupo_tributacao_regular> grupo_ibs_cbs::get_tributacao_regular() const {
    return record_.get(&record::tributacao_regular);
}
void grupo_ibs_cbs::set_tributacao_regular(const optional<grupo_tributacao_regular>& value) {
    record_.set(&record::tributacao_regular, value);
}

} // namespace kivo::erp::v12::fiscal

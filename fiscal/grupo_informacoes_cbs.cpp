#include <fiscal/grupo_informacoes_cbs.hpp>

#include <fiscal/grupo_informacoes_devolucao.hpp>
#include <fiscal/grupo_informacoes_diferimento.hpp>
#include <fiscal/grupo_informacoes_reducao.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_informacoes_cbs::record {
    decimal aliquota_cbs;
    optional<grupo_informacoes_diferimento> informacoes_diferimento;
    optional<grupo_informacoes_devolucao> informacoes_devolucao;
    optional<grupo_informacoes_reducao> informacoes_reducao;
    decimal valor_cbs;
};

grupo_informacoes_cbs::grupo_informacoes_cbs() noexcept = default;
grupo_informacoes_cbs::grupo_informacoes_cbs(const grupo_informacoes_cbs&) noexcept = default;
grupo_informacoes_cbs::grupo_informacoes_cbs(grupo_informacoes_cbs&&) noexcept = default;
grupo_informacoes_cbs&
grupo_informacoes_cbs::operator=(const grupo_informacoes_cbs&) noexcept = default;
grupo_informacoes_cbs& grupo_informacoes_cbs::operator=(grupo_informacoes_cbs&&) noexcept = default;
grupo_informacoes_cbs::~grupo_informacoes_cbs() = default;
void grupo_informacoes_cbs::swap(grupo_informacoes_cbs& other) noexcept {
    record_.swap(other.record_);
}

decimal grupo_informacoes_cbs::get_aliquota_cbs() const {
    return record_.get(&record::aliquota_cbs);
}
void grupo_informacoes_cbs::set_aliquota_cbs(const decimal& value) {
    record_.set(&record::aliquota_cbs, value);
}

optional<grupo_informacoes_diferimento> grupo_informacoes_cbs::get_informacoes_diferimento() const {
    return record_.get(&record::informacoes_diferimento);
}
void grupo_informacoes_cbs::set_informacoes_diferimento(
    const optional<grupo_informacoes_diferimento>& value) {
    record_.set(&record::informacoes_diferimento, value);
}

optional<grupo_informacoes_devolucao> grupo_informacoes_cbs::get_informacoes_devolucao() const {
    return record_.get(&record::informacoes_devolucao);
}
void grupo_informacoes_cbs::set_informacoes_devolucao(
    const optional<grupo_informacoes_devolucao>& value) {
    record_.set(&record::informacoes_devolucao, value);
}

optional<grupo_informacoes_reducao> grupo_informacoes_cbs::get_informacoes_reducao() const {
    return record_.get(&record::informacoes_reducao);
}
void grupo_informacoes_cbs::set_informacoes_reducao(
    const optional<grupo_informacoes_reducao>& value) {
    record_.set(&record::informacoes_reducao, value);
}

decimal grupo_informacoes_cbs::get_valor_cbs() const { return record_.get(&record::valor_cbs); }
void grupo_informacoes_cbs::set_valor_cbs(const decimal& value) {
    record_.set(&record::valor_cbs, value);
}

} // namespace kivo::erp::v12::fiscal

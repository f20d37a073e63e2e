#include <fiscal/grupo_ibs_uf.hpp>

#include <fiscal/grupo_informacoes_devolucao.hpp>
#include <fiscal/grupo_informacoes_diferimento.hpp>
#include <fiscal/grupo_informacoes_reducao.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_ibs_uf::record {
    decimal aliquota_ibs;
    optional<grupo_informacoes_diferimento> informacoes_diferimento;
    optional<grupo_informacoes_devolucao> informacoes_devolucao;
    optional<grupo_informacoes_reducao> informacoes_reducao;
    decimal valor_ibs;
};

grupo_ibs_uf::grupo_ibs_uf() noexcept = default;
grupo_ibs_uf::grupo_ibs_uf(const grupo_ibs_uf&) noexcept = default;
grupo_ibs_uf::grupo_ibs_uf(grupo_ibs_uf&&) noexcept = default;
grupo_ibs_uf& grupo_ibs_uf::operator=(const grupo_ibs_uf&) noexcept = default;
grupo_ibs_uf& grupo_ibs_uf::operator=(grupo_ibs_uf&&) noexcept = default;
grupo_ibs_uf::~grupo_ibs_uf() = default;
void grupo_ibs_uf::swap(grupo_ibs_uf& other) noexcept { record_.swap(other.record_); }

decimal grupo_ibs_uf::get_aliquota_ibs() const { return record_.get(&record::aliquota_ibs); }
void grupo_ibs_uf::set_aliquota_ibs(const decimal& value) {
    record_.set(&record::aliquota_ibs, value);
}

optional<grupo_informacoes_diferimento> grupo_ibs_uf::get_informacoes_diferimento() const {
    return record_.get(&record::informacoes_diferimento);
}
void grupo_ibs_uf::set_informacoes_diferimento(
    const optional<grupo_informacoes_diferimento>& value) {
    record_.set(&record::informacoes_diferimento, value);
}

optional<grupo_informacoes_devolucao> grupo_ibs_uf::get_informacoes_devolucao() const {
    return record_.get(&record::informacoes_devolucao);
}
void grupo_ibs_uf::set_informacoes_devolucao(const optional<grupo_informacoes_devolucao>& value) {
    record_.set(&record::informacoes_devolucao, value);
}

optional<grupo_informacoes_reducao> grupo_ibs_uf::get_informacoes_reducao() const {
    return record_.get(&record::informacoes_reducao);
}
void grupo_ibs_uf::set_informacoes_reducao(const optional<grupo_informacoes_reducao>& value) {
    record_.set(&record::informacoes_reducao, value);
}

decimal grupo_ibs_uf::get_valor_ibs() const { return record_.get(&record::valor_ibs); }
void grupo_ibs_uf::set_valor_ibs(const decimal& value) { record_.set(&record::valor_ibs, value); }

} // namespace kivo::erp::v12::fiscal

#include <fiscal/grupo_ibs_cbs_monofasico.hpp>

#include <fiscal/grupo_diferimento_monofasica.hpp>
#include <fiscal/grupo_monofasica_retencao.hpp>
#include <fiscal/grupo_monofasica_retida.hpp>
#include <fiscal/grupo_monofasico_padrao.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_ibs_cbs_monofasico::record {
    optional<fiscal::grupo_monofasico_padrao> grupo_monofasico_padrao;
    optional<fiscal::grupo_monofasica_retencao> grupo_monofasica_retencao;
    optional<fiscal::grupo_monofasica_retida> grupo_monofasica_retida;
    optional<fiscal::grupo_diferimento_monofasica> grupo_diferimento_monofasica;
    decimal valor_total_ibs_monofasico;
    decimal valor_total_cbs_monofasico;
};

grupo_ibs_cbs_monofasico::grupo_ibs_cbs_monofasico() noexcept = default;
grupo_ibs_cbs_monofasico::grupo_ibs_cbs_monofasico(const grupo_ibs_cbs_monofasico&) noexcept =
    default;
grupo_ibs_cbs_monofasico::grupo_ibs_cbs_monofasico(grupo_ibs_cbs_monofasico&&) noexcept = default;
grupo_ibs_cbs_monofasico&
grupo_ibs_cbs_monofasico::operator=(const grupo_ibs_cbs_monofasico&) noexcept = default;
grupo_ibs_cbs_monofasico&
grupo_ibs_cbs_monofasico::operator=(grupo_ibs_cbs_monofasico&&) noexcept = default;
grupo_ibs_cbs_monofasico::~grupo_ibs_cbs_monofasico() = default;
void grupo_ibs_cbs_monofasico::swap(grupo_ibs_cbs_monofasico& other) noexcept {
    record_.swap(other.record_);
}

optional<grupo_monofasico_padrao> grupo_ibs_cbs_monofasico::get_grupo_monofasico_padrao() const {
    return record_.get(&record::grupo_monofasico_padrao);
}
void grupo_ibs_cbs_monofasico::set_grupo_monofasico_padrao(
    const optional<grupo_monofasico_padrao>& value) {
    record_.set(&record::grupo_monofasico_padrao, value);
}

optional<grupo_monofasica_retencao> grupo_ibs_cbs_monofasico::get_monofasica_retencao() const {
    return record_.get(&record::grupo_monofasica_retencao);
}
void grupo_ibs_cbs_monofasico::set_grupo_monofasica_retencao(
    const optional<grupo_monofasica_retencao>& value) {
    record_.set(&record::grupo_monofasica_retencao, value);
}

optional<grupo_monofasica_retida> grupo_ibs_cbs_monofasico::get_monofasica_retida() const {
    return record_.get(&record::grupo_monofasica_retida);
}
void grupo_ibs_cbs_monofasico::set_grupo_monofasica_retida(
    const optional<grupo_monofasica_retida>& value) {
    record_.set(&record::grupo_monofasica_retida, value);
}

optional<grupo_diferimento_monofasica>
grupo_ibs_cbs_monofasico::get_grupo_diferimento_monofasica() const {
    return record_.get(&record::grupo_diferimento_monofasica);
}
void grupo_ibs_cbs_monofasico::set_grupo_diferimento_monofasica(
    const optional<grupo_diferimento_monofasica>& value) {
    record_.set(&record::grupo_diferimento_monofasica, value);
}

decimal grupo_ibs_cbs_monofasico::get_valor_total_ibs_monofasico() const {
    return record_.get(&record::valor_total_ibs_monofasico);
}
void grupo_ibs_cbs_monofasico::set_valor_total_ibs_monofasico(const decimal& value) {
    record_.set(&record::valor_total_ibs_monofasico, value);
}

decimal grupo_ibs_cbs_monofasico::get_valor_total_cbs_monofasico() const {
    return record_.get(&record::valor_total_cbs_monofasico);
}
void grupo_ibs_cbs_monofasico::set_valor_total_cbs_monofasico(const decimal& value) {
    record_.set(&record::valor_total_cbs_monofasico, value);
}

} // namespace kivo::erp::v12::fiscal

#include <fiscal/grupo_informacoes_devolucao.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_informacoes_devolucao::record {
    decimal valor_tributo_devolvido;
};

grupo_informacoes_devolucao::grupo_informacoes_devolucao() noexcept = default;
grupo_informacoes_devolucao::grupo_informacoes_devolucao(
    const grupo_informacoes_devolucao&) noexcept = default;
grupo_informacoes_devolucao::grupo_informacoes_devolucao(grupo_informacoes_devolucao&&) noexcept =
    default;
grupo_informacoes_devolucao&
grupo_informacoes_devolucao::operator=(const grupo_informacoes_devolucao&) noexcept = default;
grupo_informacoes_devolucao&
grupo_informacoes_devolucao::operator=(grupo_informacoes_devolucao&&) noexcept = default;
grupo_informacoes_devolucao::~grupo_informacoes_devolucao() = default;
void grupo_informacoes_devolucao::swap(grupo_informacoes_devolucao& other) noexcept {
    record_.swap(other.record_);
}

decimal grupo_informacoes_devolucao::get_valor_tributo_devolvido() const {
    return record_.get(&record::valor_tributo_devolvido);
}
void grupo_informacoes_devolucao::set_valor_tributo_devolvido(const decimal& value) {
    record_.set(&record::valor_tributo_devolvido, value);
}

} // namespace kivo::erp::v12::fiscal

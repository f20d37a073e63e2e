#include <fiscal/grupo_informacoes_diferimento.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_informacoes_diferimento::record {
    decimal percentual_diferimento;
    decimal valor_diferimento;
};

grupo_informacoes_diferimento::grupo_informacoes_diferimento() noexcept = default;
grupo_informacoes_diferimento::grupo_informacoes_diferimento(
    const grupo_informacoes_diferimento&) noexcept = default;
grupo_informacoes_diferimento::grupo_informacoes_diferimento(
    grupo_informacoes_diferimento&&) noexcept = default;
grupo_informacoes_diferimento&
grupo_informacoes_diferimento::operator=(const grupo_informacoes_diferimento&) noexcept = default;
grupo_informacoes_diferimento&
grupo_informacoes_diferimento::operator=(grupo_informacoes_diferimento&&) noexcept = default;
grupo_informacoes_diferimento::~grupo_informacoes_diferimento() = default;
void grupo_informacoes_diferimento::swap(grupo_informacoes_diferimento& other) noexcept {
    record_.swap(other.record_);
}

decimal grupo_informacoes_diferimento::get_percentual_diferimento() const {
    return record_.get(&record::percentual_diferimento);
}
void grupo_informacoes_diferimento::set_percentual_diferimento(const decimal& value) {
    record_.set(&record::percentual_diferimento, value);
}

decimal grupo_informacoes_diferimento::get_valor_diferimento() const {
    return record_.get(&record::valor_diferimento);
}
void grupo_informacoes_diferimento::set_valor_diferimento(const decimal& value) {
    record_.set(&record::valor_diferimento, value);
}

} // namespace kivo::erp::v12::fiscal

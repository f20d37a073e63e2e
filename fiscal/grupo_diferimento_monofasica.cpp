#include <fiscal/grupo_diferimento_monofasica.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_diferimento_monofasica::record {
    decimal percentual_ibs_diferido;
    decimal valor_ibs_diferido;
    decimal percentual_cbs_diferido;
    decimal valor_cbs_diferido;
};

grupo_diferimento_monofasica::grupo_diferimento_monofasica() noexcept = default;
grupo_diferimento_monofasica::grupo_diferimento_monofasica(
    const grupo_diferimento_monofasica&) noexcept = default;
grupo_diferimento_monofasica::grupo_diferimento_monofasica(
    grupo_diferimento_monofasica&&) noexcept = default;
grupo_diferimento_monofasica&
grupo_diferimento_monofasica::operator=(const grupo_diferimento_monofasica&) noexcept = default;
grupo_diferimento_monofasica&
grupo_diferimento_monofasica::operator=(grupo_diferimento_monofasica&&) noexcept = default;
grupo_diferimento_monofasica::~grupo_diferimento_monofasica() = default;
void grupo_diferimento_monofasica::swap(grupo_diferimento_monofasica& other) noexcept {
    record_.swap(other.record_);
}

decimal grupo_diferimento_monofasica::get_percentual_ibs_diferido() const {
    return record_.get(&record::percentual_ibs_diferido);
}
void grupo_diferimento_monofasica::set_percentual_ibs_diferido(const decimal& value) {
    record_.set(&record::percentual_ibs_diferido, value);
}

decimal grupo_diferimento_monofasica::get_valor_ibs_diferido() const {
    return record_.get(&record::valor_ibs_diferido);
}
void grupo_diferimento_monofasica::set_valor_ibs_diferido(const decimal& value) {
    record_.set(&record::valor_ibs_diferido, value);
}

decimal grupo_diferimento_monofasica::get_percentual_cbs_diferido() const {
    return record_.get(&record::percentual_cbs_diferido);
}
void grupo_diferimento_monofasica::set_percentual_cbs_diferido(const decimal& value) {
    record_.set(&record::percentual_cbs_diferido, value);
}

decimal grupo_diferimento_monofasica::get_valor_cbs_diferido() const {
    return record_.get(&record::valor_cbs_diferido);
}
void grupo_diferimento_monofasica::set_valor_cbs_diferido(const decimal& value) {
    record_.set(&record::valor_cbs_diferido, value);
}

} // namespace kivo::erp::v12::fiscal

#include <fiscal/indicador_origem_combustivel.hpp>

namespace kivo::erp::v12::fiscal {

struct indicador_origem_combustivel::record {
    indicador_origem_combustivel::indicador_importacao indicador_importacao = {};
    std::uint16_t codigo_uf = 0;
    decimal percentual_originario;
};

indicador_origem_combustivel::indicador_origem_combustivel() noexcept = default;
indicador_origem_combustivel::indicador_origem_combustivel(
    const indicador_origem_combustivel&) noexcept = default;
indicador_origem_combustivel::indicador_origem_combustivel(
    indicador_origem_combustivel&&) noexcept = default;
indicador_origem_combustivel&
indicador_origem_combustivel::operator=(const indicador_origem_combustivel&) noexcept = default;
indicador_origem_combustivel&
indicador_origem_combustivel::operator=(indicador_origem_combustivel&&) noexcept = default;
indicador_origem_combustivel::~indicador_origem_combustivel() = default;
void indicador_origem_combustivel::swap(indicador_origem_combustivel& other) noexcept {
    record_.swap(other.record_);
}

indicador_origem_combustivel::indicador_importacao
indicador_origem_combustivel::get_indicador_importacao() const {
    return record_.get(&record::indicador_importacao);
}
void indicador_origem_combustivel::set_indicador_importacao(indicador_importacao value) noexcept {
    record_.set(&record::indicador_importacao, value);
}

std::uint16_t indicador_origem_combustivel::get_codigo_uf() const {
    return record_.get(&record::codigo_uf);
}
void indicador_origem_combustivel::set_codigo_uf(std::uint16_t value) noexcept {
    record_.set(&record::codigo_uf, value);
}

decimal indicador_origem_combustivel::get_percentual_originario() const {
    return record_.get(&record::percentual_originario);
}
void indicador_origem_combustivel::set_percentual_originario(const decimal& value) noexcept {
    record_.set(&record::percentual_originario, value);
}

} // namespace kivo::erp::v12::fiscal

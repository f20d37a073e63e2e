#include <fiscal/medicamento.hpp>

#include <fiscal/medicamento_isento.hpp>

namespace kivo::erp::v12::fiscal {

struct medicamento::record {
    variant<std::string, medicamento_isento> codigo_anvisa;
    decimal preco_maximo_consumidor;
};

medicamento::medicamento() noexcept = default;
medicamento::medicamento(const medicamento&) = default;
medicamento::medicamento(medicamento&&) noexcept = default;
medicamento& medicamento::operator=(const medicamento&) = default;
medicamento& medicamento::operator=(medicamento&&) noexcept = default;
medicamento::~medicamento() = default;
void medicamento::swap(medicamento& other) noexcept { record_.swap(other.record_); }

variant<std::string, medicamento_isento> medicamento::get_codigo_anvisa() const {
    return record_.get(&record::codigo_anvisa);
}
void medicamento::set_codigo_anvisa(const variant<std::string, medicamento_isento>& value) {
    record_.set(&record::codigo_anvisa, value);
}

decimal medicamento::get_preco_maximo_consumidor() const {
    return record_.get(&record::preco_maximo_consumidor);
}
void medicamento::set_preco_maximo_consumidor(const decimal& value) {
    record_.set(&record::preco_maximo_consumidor, value);
}

} // namespace kivo::erp::v12::fiscal

#include <fiscal/adicao.hpp>

namespace kivo::erp::v12::fiscal {

struct adicao::record {
    std::uint16_t numero_adicao = 0;
    std::uint16_t numero_sequencial_da_adicao = 0;
    std::string codigo_fabricante_estrangeiro;
    optional<decimal> valor_desconto;
    optional<std::string> ato_concessorio_drawback;
};

adicao::adicao() = default;
adicao::adicao(const adicao&) = default;
adicao::adicao(adicao&&) = default;
adicao& adicao::operator=(const adicao&) = default;
adicao& adicao::operator=(adicao&&) = default;
adicao::~adicao() = default;

std::uint16_t adicao::get_numero_adicao() const { return record_->numero_adicao; }
void adicao::set_numero_adicao(std::uint16_t value) { record_->numero_adicao = value; }

std::uint16_t adicao::get_numero_sequencial_da_adicao() const {
    return record_->numero_sequencial_da_adicao;
}
void adicao::set_numero_sequencial_da_adicao(std::uint16_t value) {
    record_->numero_sequencial_da_adicao = value;
}

std::string adicao::get_codigo_fabricante_estrangeiro() const {
    return record_->codigo_fabricante_estrangeiro;
}
void adicao::set_codigo_fabricante_estrangeiro(const std::string& value) {
    record_->codigo_fabricante_estrangeiro = value;
}

optional<decimal> adicao::get_valor_desconto() const { return record_->valor_desconto; }
void adicao::set_valor_desconto(const optional<decimal>& value) { record_->valor_desconto = value; }

optional<std::string> adicao::get_ato_concessorio_drawback() const {
    return record_->ato_concessorio_drawback;
}
void adicao::set_ato_concessorio_drawback(const optional<std::string>& value) {
    record_->ato_concessorio_drawback = value;
}

} // namespace kivo::erp::v12::fiscal

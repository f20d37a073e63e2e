#include <fiscal/tributacao_ipi.hpp>

#include <fiscal/tributacao_ipi_calculo_aliquota.hpp>
#include <fiscal/tributacao_ipi_calculo_valor.hpp>

namespace kivo::erp::v12::fiscal {

struct tributacao_ipi::record {
    optional<std::string> classe_enquadramento_ipi_cigarros_bebidas;
    optional<cnpj> cnpj_produtor;
    optional<std::string> codigo_selo_controle_ipi;
    std::uint32_t quantidade_selo_controle = 0;
    std::uint16_t codigo_enquadramento_ipi = 0;
    std::string classe_enquadramento_ipi;
    fiscal::cst_ipi cst_ipi = {};
    optional<fiscal::tributacao_ipi_calculo_aliquota> tributacao_ipi_calculo_aliquota;
    optional<fiscal::tributacao_ipi_calculo_valor> tributacao_ipi_calculo_valor;
    optional<decimal> valor_ipi;
};

tributacao_ipi::tributacao_ipi() = default;
tributacao_ipi::tributacao_ipi(const tributacao_ipi&) = default;
tributacao_ipi::tributacao_ipi(tributacao_ipi&&) = default;
tributacao_ipi& tributacao_ipi::operator=(const tributacao_ipi&) = default;
tributacao_ipi& tributacao_ipi::operator=(tributacao_ipi&&) = default;
tributacao_ipi::~tributacao_ipi() = default;

optional<cnpj> tributacao_ipi::get_cnpj_produtor() const { return record_->cnpj_produtor; }
void tributacao_ipi::set_cnpj_produtor(const optional<cnpj>& value) {
    record_->cnpj_produtor = value;
}

std::uint32_t tributacao_ipi::get_quantidade_selo_controle() const {
    return record_->quantidade_selo_controle;
}
void tributacao_ipi::set_quantidade_selo_controle(std::uint32_t value) {
    record_->quantidade_selo_controle = value;
}

std::uint16_t tributacao_ipi::get_codigo_enquadramento_ipi() const {
    return record_->codigo_enquadramento_ipi;
}
void tributacao_ipi::set_codigo_enquadramento_ipi(const std::uint16_t& value) {
    record_->codigo_enquadramento_ipi = value;
}

std::string tributacao_ipi::get_classe_enquadramento_ipi() const {
    return record_->classe_enquadramento_ipi;
}
void tributacao_ipi::set_classe_enquadramento_ipi(const std::string& value) {
    record_->classe_enquadramento_ipi = value;
}

cst_ipi tributacao_ipi::get_cst_ipi() const { return record_->cst_ipi; }
void tributacao_ipi::set_cst_ipi(cst_ipi value) { record_->cst_ipi = value; }

optional<tributacao_ipi_calculo_aliquota>
tributacao_ipi::get_tributacao_ipi_calculo_aliquota() const {
    return record_->tributacao_ipi_calculo_aliquota;
}
void tributacao_ipi::set_tributacao_ipi_calculo_aliquota(
    const optional<tributacao_ipi_calculo_aliquota>& value) {
    record_->tributacao_ipi_calculo_aliquota = value;
}

optional<tributacao_ipi_calculo_valor> tributacao_ipi::get_tributacao_ipi_calculo_valor() const {
    return record_->tributacao_ipi_calculo_valor;
}
void tributacao_ipi::set_tributacao_ipi_calculo_valor(
    const optional<tributacao_ipi_calculo_valor>& value) {
    record_->tributacao_ipi_calculo_valor = value;
}

optional<decimal> tributacao_ipi::get_valor_ipi() const { return record_->valor_ipi; }
void tributacao_ipi::set_valor_ipi(const optional<decimal>& value) { record_->valor_ipi = value; }

optional<std::string> tributacao_ipi::get_codigo_selo_controle_ipi() const {
    return record_->codigo_selo_controle_ipi;
}
void tributacao_ipi::set_codigo_selo_controle_ipi(const optional<std::string>& value) {
    record_->codigo_selo_controle_ipi = value;
}

optional<std::string> tributacao_ipi::get_classe_enquadramento_ipi_cigarros_bebidas() const {
    return record_->classe_enquadramento_ipi_cigarros_bebidas;
}
void tributacao_ipi::set_classe_enquadramento_ipi_cigarros_bebidas(
    const optional<std::string>& value) {
    record_->classe_enquadramento_ipi_cigarros_bebidas = value;
}

} // namespace kivo::erp::v12::fiscal

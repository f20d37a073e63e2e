#include <fiscal/medicamento_isento.hpp>

namespace kivo::erp::v12::fiscal {

struct medicamento_isento::record {
    std::string motivo;
};

medicamento_isento::medicamento_isento() noexcept = default;
medicamento_isento::medicamento_isento(const medicamento_isento&) = default;
medicamento_isento::medicamento_isento(medicamento_isento&&) noexcept = default;
medicamento_isento& medicamento_isento::operator=(const medicamento_isento&) = default;
medicamento_isento& medicamento_isento::operator=(medicamento_isento&&) noexcept = default;
medicamento_isento::~medicamento_isento() = default;
void medicamento_isento::swap(medicamento_isento& other) noexcept { record_.swap(other.record_); }

std::string medicamento_isento::get_motivo() const { return record_.get(&record::motivo); }
void medicamento_isento::set_motivo(const std::string& value) {
    record_.set(&record::motivo, value);
}

} // namespace kivo::erp::v12::fiscal

#include <fiscal/defensivos_agricolas.hpp>

namespace kivo::erp::v12::fiscal {

struct defensivos_agricolas::record {
    std::string receituario;
    std::uint64_t cpf_responsavel_tecnico = 0;
};

defensivos_agricolas::defensivos_agricolas() = default;
defensivos_agricolas::defensivos_agricolas(const defensivos_agricolas&) = default;
defensivos_agricolas::defensivos_agricolas(defensivos_agricolas&&) = default;
defensivos_agricolas& defensivos_agricolas::operator=(const defensivos_agricolas&) = default;
defensivos_agricolas& defensivos_agricolas::operator=(defensivos_agricolas&&) = default;
defensivos_agricolas::~defensivos_agricolas() = default;

std::string defensivos_agricolas::get_receituario() const { return record_->receituario; }
void defensivos_agricolas::set_receituario(const std::string& value) {
    record_->receituario = value;
}

std::uint64_t defensivos_agricolas::get_cpf_responsavel_tecnico() const {
    return record_->cpf_responsavel_tecnico;
}
void defensivos_agricolas::set_cpf_responsavel_tecnico(const std::uint64_t& value) {
    record_->cpf_responsavel_tecnico = value;
}

} // namespace kivo::erp::v12::fiscal

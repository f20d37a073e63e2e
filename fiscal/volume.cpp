#include <fiscal/volume.hpp>

namespace kivo::erp::v12::fiscal {

struct volume::record {
    std::uint32_t quantidade = 0;
    optional<std::string> especie;
    optional<std::string> marca;
    optional<std::string> numeracao;
    optional<decimal> peso_liquido;
    optional<decimal> peso_bruto;
};

volume::volume() = default;
volume::volume(const volume&) = default;
volume::volume(volume&&) = default;
volume& volume::operator=(const volume&) = default;
volume& volume::operator=(volume&&) = default;
volume::~volume() = default;

std::uint32_t volume::get_quantidade() const { return record_->quantidade; }
void volume::set_quantidade(std::uint32_t value) { record_->quantidade = value; }

optional<std::string> volume::get_especie() const { return record_->especie; }
void volume::set_especie(const optional<std::string>& value) { record_->especie = value; }

optional<std::string> volume::get_marca() const { return record_->marca; }
void volume::set_marca(const optional<std::string>& value) { record_->marca = value; }

optional<std::string> volume::get_numeracao() const { return record_->numeracao; }
void volume::set_numeracao(const optional<std::string>& value) { record_->numeracao = value; }

optional<decimal> volume::get_peso_liquido() const { return record_->peso_liquido; }
void volume::set_peso_liquido(const optional<decimal>& value) { record_->peso_liquido = value; }

optional<decimal> volume::get_peso_bruto() const { return record_->peso_bruto; }
void volume::set_peso_bruto(const optional<decimal>& value) { record_->peso_bruto = value; }

} // namespace kivo::erp::v12::fiscal

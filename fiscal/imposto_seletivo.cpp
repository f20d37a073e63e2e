#include <fiscal/imposto_seletivo.hpp>

#include <fiscal/valor_imposto_seletivo.hpp>

namespace kivo::erp::v12::fiscal {

struct imposto_seletivo::record {
    std::uint32_t codigo_situacao_tributaria = 0;
    std::uint32_t codigo_classificacao_tributaria = 0;
    optional<valor_imposto_seletivo> valor_imposto;
};

imposto_seletivo::imposto_seletivo() noexcept = default;
imposto_seletivo::imposto_seletivo(const imposto_seletivo&) noexcept = default;
imposto_seletivo::imposto_seletivo(imposto_seletivo&&) noexcept = default;
imposto_seletivo& imposto_seletivo::operator=(const imposto_seletivo&) noexcept = default;
imposto_seletivo& imposto_seletivo::operator=(imposto_seletivo&&) noexcept = default;
imposto_seletivo::~imposto_seletivo() = default;
void imposto_seletivo::swap(imposto_seletivo& other) noexcept { record_.swap(other.record_); }

std::uint32_t imposto_seletivo::get_codigo_situacao_tributaria() const {
    return record_.get(&record::codigo_situacao_tributaria);
}
void imposto_seletivo::set_codigo_situacao_tributaria(std::uint32_t value) {
    record_.set(&record::codigo_situacao_tributaria, value);
}

std::uint32_t imposto_seletivo::get_codigo_classificacao_tributaria() const {
    return record_.get(&record::codigo_classificacao_tributaria);
}
void imposto_seletivo::set_codigo_classificacao_tributaria(std::uint32_t value) {
    record_.set(&record::codigo_classificacao_tributaria, value);
}

optional<valor_imposto_seletivo> imposto_seletivo::get_valor_imposto() const {
    return record_.get(&record::valor_imposto);
}
void imposto_seletivo::set_valor_imposto(const optional<valor_imposto_seletivo>& value) {
    record_.set(&record::valor_imposto, value);
}

} // namespace kivo::erp::v12::fiscal

#include <fiscal/tributavel_imposto_seletivo.hpp>

#include <utility>

namespace kivo::erp::v12::fiscal {

struct tributavel_imposto_seletivo::record {
    std::string unidade_medida_tributavel;
    decimal quantidade_tributavel;
};

tributavel_imposto_seletivo::tributavel_imposto_seletivo() noexcept = default;
tributavel_imposto_seletivo::tributavel_imposto_seletivo(
    const tributavel_imposto_seletivo&) noexcept = default;
tributavel_imposto_seletivo::tributavel_imposto_seletivo(tributavel_imposto_seletivo&&) noexcept =
    default;
tributavel_imposto_seletivo&
tributavel_imposto_seletivo::operator=(const tributavel_imposto_seletivo&) noexcept = default;
tributavel_imposto_seletivo&
tributavel_imposto_seletivo::operator=(tributavel_imposto_seletivo&&) noexcept = default;
tributavel_imposto_seletivo::~tributavel_imposto_seletivo() = default;
void tributavel_imposto_seletivo::swap(tributavel_imposto_seletivo& other) noexcept {
    record_.swap(other.record_);
}

std::string tributavel_imposto_seletivo::get_unidade_medida_tributavel() const {
    return record_.get(&record::unidade_medida_tributavel);
}
void tributavel_imposto_seletivo::set_unidade_medida_tributavel(const std::string& value) {
    if (record_) {
        record_.filled().unidade_medida_tributavel = value;
    } else {
        std::string text = value; // a text that cannot be copied leaves no record behind
        record_.filled().unidade_medida_tributavel = std::move(text);
    }
}

decimal tributavel_imposto_seletivo::get_quantidade_tributavel() const {
    return record_.get(&record::quantidade_tributavel);
}
void tributavel_imposto_seletivo::set_quantidade_tributavel(const decimal& value) {
    record_.set(&record::quantidade_tributavel, value);
}

} // namespace kivo::erp::v12::fiscal

#include <fiscal/grupo_informacoes_reducao.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_informacoes_reducao::record {
    decimal percentual_reducao_aliquota;
    decimal aliquota_efetiva;
};

grupo_informacoes_reducao::grupo_informacoes_reducao() noexcept = default;
grupo_informacoes_reducao::grupo_informacoes_reducao(const grupo_informacoes_reducao&) noexcept =
    default;
grupo_informacoes_reducao::grupo_informacoes_reducao(grupo_informacoes_reducao&&) noexcept =
    default;
grupo_informacoes_reducao&
grupo_informacoes_reducao::operator=(const grupo_informacoes_reducao&) noexcept = default;
grupo_informacoes_reducao&
grupo_informacoes_reducao::operator=(grupo_informacoes_reducao&&) noexcept = default;
grupo_informacoes_reducao::~grupo_informacoes_reducao() = default;
void grupo_informacoes_reducao::swap(grupo_informacoes_reducao& other) noexcept {
    record_.swap(other.record_);
}

decimal grupo_informacoes_reducao::get_percentual_reducao_aliquota() const {
    return record_.get(&record::percentual_reducao_aliquota);
}
void grupo_informacoes_reducao::set_percentual_reducao_aliquota(const decimal& value) {
    record_.set(&record::percentual_reducao_aliquota, value);
}

decimal grupo_informacoes_reducao::get_aliquota_efetiva() const {
    return record_.get(&record::aliquota_efetiva);
}
void grupo_informacoes_reducao::set_aliquota_efetiva(const decimal& value) {
    record_.set(&record::aliquota_efetiva, value);
}

} // namespace kivo::erp::v12::fiscal

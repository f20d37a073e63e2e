#include <fiscal/grupo_agropecuario.hpp>

#include <fiscal/defensivos_agricolas.hpp>
#include <fiscal/guia_de_transito.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_agropecuario::record {
    variant<std::vector<defensivos_agricolas>, guia_de_transito> informacoes;
};

grupo_agropecuario::grupo_agropecuario() = default;
grupo_agropecuario::grupo_agropecuario(const grupo_agropecuario&) = default;
grupo_agropecuario::grupo_agropecuario(grupo_agropecuario&&) = default;
grupo_agropecuario& grupo_agropecuario::operator=(const grupo_agropecuario&) = default;
grupo_agropecuario& grupo_agropecuario::operator=(grupo_agropecuario&&) = default;
grupo_agropecuario::~grupo_agropecuario() = default;

variant<std::vector<defensivos_agricolas>, guia_de_transito>
grupo_agropecuario::get_informacoes() const {
    return record_->informacoes;
}
void grupo_agropecuario::set_informacoes(
    const variant<std::vector<defensivos_agricolas>, guia_de_transito>& value) {
    record_->informacoes = value;
}

} // namespace kivo::erp::v12::fiscal

#include <fiscal/grupo_reducao_ad_rem.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_reducao_ad_rem::record {
    decimal percentual_reducao;
    grupo_reducao_ad_rem::motivo_reducao motivo = {};
};

grupo_reducao_ad_rem::grupo_reducao_ad_rem() noexcept = default;
grupo_reducao_ad_rem::grupo_reducao_ad_rem(const grupo_reducao_ad_rem&) noexcept = default;
grupo_reducao_ad_rem::grupo_reducao_ad_rem(grupo_reducao_ad_rem&&) noexcept = default;
grupo_reducao_ad_rem&
grupo_reducao_ad_rem::operator=(const grupo_reducao_ad_rem&) noexcept = default;
grupo_reducao_ad_rem& grupo_reducao_ad_rem::operator=(grupo_reducao_ad_rem&&) noexcept = default;
grupo_reducao_ad_rem::~grupo_reducao_ad_rem() = default;
void grupo_reducao_ad_rem::swap(grupo_reducao_ad_rem& other) noexcept {
    record_.swap(other.record_);
}

decimal grupo_reducao_ad_rem::get_percentual_reducao() const noexcept {
    return record_.get(&record::percentual_reducao);
}
void grupo_reducao_ad_rem::set_percentual_reducao(const decimal& value) {
    record_.set(&record::percentual_reducao, value);
}

grupo_reducao_ad_rem::motivo_reducao grupo_reducao_ad_rem::get_motivo() const {
    return record_.get(&record::motivo);
}
void grupo_reducao_ad_rem::set_motivo(motivo_reducao value) { record_.set(&record::motivo, value); }

} // namespace kivo::erp::v12::fiscal

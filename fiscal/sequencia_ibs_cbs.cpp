#include <fiscal/sequencia_ibs_cbs.hpp>

#include <fiscal/grupo_ibs_cbs.hpp>
#include <fiscal/grupo_ibs_cbs_monofasico.hpp>

namespace kivo::erp::v12::fiscal {

struct sequencia_ibs_cbs::record {
    variant<fiscal::grupo_ibs_cbs, grupo_ibs_cbs_monofasico> grupo_ibs_cbs;
};

sequencia_ibs_cbs::sequencia_ibs_cbs() noexcept = default;
sequencia_ibs_cbs::sequencia_ibs_cbs(const sequencia_ibs_cbs&) noexcept = default;
sequencia_ibs_cbs::sequencia_ibs_cbs(sequencia_ibs_cbs&&) noexcept = default;
sequencia_ibs_cbs& sequencia_ibs_cbs::operator=(const sequencia_ibs_cbs&) noexcept = default;
sequencia_ibs_cbs& sequencia_ibs_cbs::operator=(sequencia_ibs_cbs&&) noexcept = default;
sequencia_ibs_cbs::~sequencia_ibs_cbs() = default;
void sequencia_ibs_cbs::swap(sequencia_ibs_cbs& other) noexcept { record_.swap(other.record_); }

variant<grupo_ibs_cbs, grupo_ibs_cbs_monofasico>
sequencia_ibs_cbs::get_grupo_ibs_cbs() const noexcept {
    return record_.get(&record::grupo_ibs_cbs);
}
void sequencia_ibs_cbs::set_grupo_ibs_cbs(
    const variant<grupo_ibs_cbs, grupo_ibs_cbs_monofasico>& value) {
    record_.set(&record::grupo_ibs_cbs, value);
}

} // namespace kivo::erp::v12::fiscal

#include <fiscal/nfe_referenciada.hpp>

namespace kivo::erp::v12::fiscal {

struct nfe_referenciada::record {
    std::string chave_nfe;
};

nfe_referenciada::nfe_referenciada() = default;
nfe_referenciada::nfe_referenciada(const nfe_referenciada&) = default;
nfe_referenciada::nfe_referenciada(nfe_referenciada&&) = default;
nfe_referenciada& nfe_referenciada::operator=(const nfe_referenciada&) = default;
nfe_referenciada& nfe_referenciada::operator=(nfe_referenciada&&) = default;
nfe_referenciada::~nfe_referenciada() = default;

std::string nfe_referenciada::get_chave_nfe() const { return record_->chave_nfe; }
void nfe_referenciada::set_chave_nfe(const std::string& value) { record_->chave_nfe = value; }

} // namespace kivo::erp::v12::fiscal

#include <fiscal/grupo_fcp.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_fcp::record {
    decimal valor_bc;
    decimal percentual;
    decimal valor;
};

grupo_fcp::grupo_fcp() = default;
grupo_fcp::grupo_fcp(const grupo_fcp&) = default;
grupo_fcp::grupo_fcp(grupo_fcp&&) = default;
grupo_fcp& grupo_fcp::operator=(const grupo_fcp&) = default;
grupo_fcp& grupo_fcp::operator=(grupo_fcp&&) = default;
grupo_fcp::~grupo_fcp() = default;

decimal grupo_fcp::get_valor_bc() const { return record_->valor_bc; }
void grupo_fcp::set_valor_bc(const decimal& value) { record_->valor_bc = value; }

decimal grupo_fcp::get_percentual() const { return record_->percentual; }
void grupo_fcp::set_percentual(const decimal& value) { record_->percentual = value; }

decimal grupo_fcp::get_valor() const { return record_->valor; }
void grupo_fcp::set_valor(const decimal& value) { record_->valor = value; }

} // namespace kivo::erp::v12::fiscal

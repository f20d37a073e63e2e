#include <fiscal/grupo_fcp_st_retido.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_fcp_st_retido::record {
    decimal valor_bc;
    decimal percentual;
    decimal valor;
};

grupo_fcp_st_retido::grupo_fcp_st_retido() = default;
grupo_fcp_st_retido::grupo_fcp_st_retido(const grupo_fcp_st_retido&) = default;
grupo_fcp_st_retido::grupo_fcp_st_retido(grupo_fcp_st_retido&&) = default;
grupo_fcp_st_retido& grupo_fcp_st_retido::operator=(const grupo_fcp_st_retido&) = default;
grupo_fcp_st_retido& grupo_fcp_st_retido::operator=(grupo_fcp_st_retido&&) = default;
grupo_fcp_st_retido::~grupo_fcp_st_retido() = default;

decimal grupo_fcp_st_retido::get_valor_bc() const { return record_->valor_bc; }
void grupo_fcp_st_retido::set_valor_bc(const decimal& value) { record_->valor_bc = value; }

decimal grupo_fcp_st_retido::get_percentual() const { return record_->percentual; }
void grupo_fcp_st_retido::set_percentual(const decimal& value) { record_->percentual = value; }

decimal grupo_fcp_st_retido::get_valor() const { return record_->valor; }
void grupo_fcp_st_retido::set_valor(const decimal& value) { record_->valor = value; }

} // namespace kivo::erp::v12::fiscal

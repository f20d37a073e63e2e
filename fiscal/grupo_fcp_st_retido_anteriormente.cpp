#include <fiscal/grupo_fcp_st_retido_anteriormente.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_fcp_st_retido_anteriormente::record {
    decimal valor_bc;
    decimal percentual;
    decimal valor;
};

grupo_fcp_st_retido_anteriormente::grupo_fcp_st_retido_anteriormente() = default;
grupo_fcp_st_retido_anteriormente::grupo_fcp_st_retido_anteriormente(
    const grupo_fcp_st_retido_anteriormente&) = default;
grupo_fcp_st_retido_anteriormente::grupo_fcp_st_retido_anteriormente(
    grupo_fcp_st_retido_anteriormente&&) = default;
grupo_fcp_st_retido_anteriormente&
grupo_fcp_st_retido_anteriormente::operator=(const grupo_fcp_st_retido_anteriormente&) = default;
grupo_fcp_st_retido_anteriormente&
grupo_fcp_st_retido_anteriormente::operator=(grupo_fcp_st_retido_anteriormente&&) = default;
grupo_fcp_st_retido_anteriormente::~grupo_fcp_st_retido_anteriormente() = default;

decimal grupo_fcp_st_retido_anteriormente::get_valor_bc() const { return record_->valor_bc; }
void grupo_fcp_st_retido_anteriormente::set_valor_bc(const decimal& value) {
    record_->valor_bc = value;
}

decimal grupo_fcp_st_retido_anteriormente::get_percentual() const { return record_->percentual; }
void grupo_fcp_st_retido_anteriormente::set_percentual(const decimal& value) {
    record_->percentual = value;
}

decimal grupo_fcp_st_retido_anteriormente::get_valor() const { return record_->valor; }
void grupo_fcp_st_retido_anteriormente::set_valor(const decimal& value) { record_->valor = value; }

} // namespace kivo::erp::v12::fiscal

#include <fiscal/local_entrega.hpp>

#include <fiscal/endereco.hpp>

namespace kivo::erp::v12::fiscal {

struct local_entrega::record {
    optional<fiscal::cnpj> cnpj;
    optional<std::string> cpf;
    fiscal::endereco endereco;
};

local_entrega::local_entrega() = default;
local_entrega::local_entrega(const local_entrega&) = default;
local_entrega::local_entrega(local_entrega&&) = default;
local_entrega& local_entrega::operator=(const local_entrega&) = default;
local_entrega& local_entrega::operator=(local_entrega&&) = default;
local_entrega::~local_entrega() = default;

optional<cnpj> local_entrega::get_cnpj() const { return record_->cnpj; }
void local_entrega::set_cnpj(const optional<cnpj>& value) { record_->cnpj = value; }

optional<std::string> local_entrega::get_cpf() const { return record_->cpf; }
void local_entrega::set_cpf(const optional<std::string>& value) { record_->cpf = value; }

endereco local_entrega::get_endereco() const { return record_->endereco; }
void local_entrega::set_endereco(const endereco& value) { record_->endereco = value; }

} // namespace kivo::erp::v12::fiscal

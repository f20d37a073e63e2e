#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <string>

namespace kivo::erp::v12::fiscal {

class endereco;

/// The place of delivery, where it is not the recipient's address (entrega).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT local_entrega {
public:
    local_entrega();
    local_entrega(const local_entrega& other);
    local_entrega(local_entrega&& other);
    local_entrega& operator=(const local_entrega& other);
    local_entrega& operator=(local_entrega&& other);
    ~local_entrega();

    /// Company taxpayer number of the receiver (CNPJ).
    optional<cnpj> get_cnpj() const;
    void set_cnpj(const optional<cnpj>& value);

    /// Person taxpayer number of the receiver, 11 digits as text (CPF).
    optional<std::string> get_cpf() const;
    void set_cpf(const optional<std::string>& value);

    /// Address (its elements stand directly in entrega).
    endereco get_endereco() const;
    void set_endereco(const endereco& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal

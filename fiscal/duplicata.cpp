#include <fiscal/duplicata.hpp>

namespace kivo::erp::v12::fiscal {

struct duplicata::record {
    optional<std::string> numero_duplicata;
    optional<date> data_vencimento;
    decimal valor_duplicata;
};

duplicata::duplicata() = default;
duplicata::duplicata(const duplicata&) = default;
duplicata::duplicata(duplicata&&) = default;
duplicata& duplicata::operator=(const duplicata&) = default;
duplicata& duplicata::operator=(duplicata&&) = default;
duplicata::~duplicata() = default;

optional<std::string> duplicata::get_numero_duplicata() const { return record_->numero_duplicata; }
void duplicata::set_numero_duplicata(const optional<std::string>& value) {
    record_->numero_duplicata = value;
}

optional<date> duplicata::get_data_vencimento() const { return record_->data_vencimento; }
void duplicata::set_data_vencimento(const optional<date>& value) {
    record_->data_vencimento = value;
}

decimal duplicata::get_valor_duplicata() const { return record_->valor_duplicata; }
void duplicata::set_valor_duplicata(const decimal& value) { record_->valor_duplicata = value; }

} // namespace kivo::erp::v12::fiscal

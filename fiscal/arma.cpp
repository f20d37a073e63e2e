#include <fiscal/arma.hpp>

namespace kivo::erp::v12::fiscal {

struct arma::record {
    arma::tipo tipo = {};
    std::string numero_serie_arma;
    std::string numero_serie_cano;
    std::string descricao;
};

arma::arma() noexcept = default;
arma::arma(const arma&) = default;
arma::arma(arma&&) noexcept = default;
arma& arma::operator=(const arma&) = default;
arma& arma::operator=(arma&&) noexcept = default;
arma::~arma() = default;
void arma::swap(arma& other) noexcept { record_.swap(other.record_); }

arma::tipo arma::get_tipo() const { return record_.get(&record::tipo); }
void arma::set_tipo(tipo value) { record_.set(&record::tipo, value); }

std::string arma::get_numero_serie_arma() const { return record_.get(&record::numero_serie_arma); }
void arma::set_numero_serie_arma(const std::string& value) {
    record_.set(&record::numero_serie_arma, value);
}

std::string arma::get_numero_serie_cano() const { return record_.get(&record::numero_serie_cano); }
void arma::set_numero_serie_cano(const std::string& value) {
    record_.set(&record::numero_serie_cano, value);
}

std::string arma::get_descricao() const { return record_.get(&record::descricao); }
void arma::set_descricao(const std::string& value) { record_.set(&record::descricao, value); }

} // namespace kivo::erp::v12::fiscal

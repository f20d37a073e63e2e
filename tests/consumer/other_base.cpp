#include <fiscal/produto.hpp>

int main() {
    kivo::erp::v12::fiscal::produto produto;
    produto.set_valor_total_bruto(kivo::core::v7::decimal(7));
    // number() is a function of tests/counting_base alone
    return produto.get_valor_total_bruto().number() == 7 ? 0 : 1;
}

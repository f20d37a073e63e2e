#include <fiscal/nota_fiscal.hpp>

int main() {
    kivo::erp::v12::fiscal::produto produto;
    produto.set_descricao("Café");
    kivo::erp::v12::fiscal::nota_fiscal nota;
    nota.set_produtos({produto, produto});
    const auto produtos = nota.get_produtos();
    return produtos.size() == 2 && produtos[1].get_descricao() == "Café" ? 0 : 1;
}

#include <layout/engine.hpp>
#include <layout/transport.hpp>

#include <gtest/gtest.h>

#include <string>

namespace kivo::tests {

using namespace erp::v12;

std::string shown(const layout::node& node) {
    std::string result = node.name + '=' + node.text;
    for (const layout::node& child : node.children) {
        result += ' ' + shown(child);
    }
    return result;
}

// Catches an example that forgets its entry in the layout map: nothing else would test its field.
TEST(worked_examples, are_written_and_read_as_elements_of_the_layout) {
    fiscal::lacre seal;
    seal.set_numero("A1");
    fiscal::volume packages;
    packages.set_lacres({seal});
    fiscal::informacoes_transporte transport;
    transport.set_modalidade_frete(
        fiscal::informacoes_transporte::modalidade_frete::por_conta_da_plataforma);
    transport.set_vagao("V2");
    transport.set_volumes({packages});

    layout::node written("transp");
    layout::write_fields(written, transport);
    EXPECT_EQ(shown(written), "transp= modFrete=5 vagao=V2 vol= lacres= nLacre=A1");

    fiscal::informacoes_transporte read;
    layout::read_fields(written, read);
    EXPECT_EQ(read.get_vagao(), "V2");
    EXPECT_EQ(read.get_volumes().at(0).get_lacres().at(0).get_numero(), "A1");
}

} // namespace kivo::tests

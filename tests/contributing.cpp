#include <layout/engine.hpp>
#include <layout/transport.hpp>

#include <gtest/gtest.h>

#include <vector>

namespace kivo::tests {

using namespace erp::v12;

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

    const layout::tree written = layout::write_fields("transp", transport);
    EXPECT_EQ(layout::texts_of(written.root()),
              (std::vector<layout::placed_text>{
                  {"modFrete", "5"}, {"vagao", "V2"}, {"vol/lacres/nLacre", "A1"}}));

    fiscal::informacoes_transporte read;
    layout::read_fields(written.root(), read);
    EXPECT_EQ(read.get_vagao(), "V2");
    EXPECT_EQ(read.get_volumes().at(0).get_lacres().at(0).get_numero(), "A1");
}

} // namespace kivo::tests

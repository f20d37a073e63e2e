#include "support/allocations.hpp"

#include <fiscal/nota_fiscal.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

/// What the library promises where standard libraries may differ.
namespace kivo::tests {

using erp::v12::fiscal::grupo_exportacao;
using erp::v12::fiscal::produto;

produto item_of(const std::string& text, std::size_t exports) {
    produto result;
    result.set_descricao(text);
    result.set_pedido_ordem_de_compra(text);
    result.set_grupo_exportacao(std::vector<grupo_exportacao>(exports));
    return result;
}

// Catches a text that a move leaves as it was, because it stands in the record, or because the
// target's block is taken over in exchange.
TEST(standard_library, leaves_moved_texts_and_lists_empty) {
    const std::string in_place = "4711";
    const std::string in_a_block(100, '7');
    const auto expect_emptied = [](const produto& source) {
        EXPECT_EQ(source.get_descricao(), "");
        EXPECT_EQ(source.get_pedido_ordem_de_compra(), "") << "present, and empty";
        EXPECT_TRUE(source.get_grupo_exportacao().empty());
    };
    for (const std::string& text : {in_place, in_a_block}) {
        produto source = item_of(text, 3);
        const produto made = std::move(source);
        expect_emptied(source); // NOLINT(bugprone-use-after-move)
        for (const std::string& old : {std::string(), in_place, in_a_block}) {
            source = item_of(text, 3);
            produto target = item_of(old, old.size());
            target = std::move(source);
            expect_emptied(source); // NOLINT(bugprone-use-after-move)
            EXPECT_EQ(target.get_descricao(), text);
        }
    }
}

std::size_t taken_bytes = 0;

template <class Action> std::size_t bytes_taken_by(Action action) {
    taken_bytes = 0;
    on_allocation = [](std::size_t size) { taken_bytes += size; };
    action();
    on_allocation = nullptr;
    return taken_bytes;
}

// Catches a list or a text that keeps the room in which its caller let it grow.
TEST(standard_library, keeps_no_room_that_its_callers_reserved) {
    std::vector<grupo_exportacao> exact(3);
    std::vector<grupo_exportacao> grown = exact;
    grown.reserve(100);
    std::string text(100, '7');
    std::string grown_text = text;
    grown_text.reserve(10'000);
    produto item;
    produto other;
    EXPECT_EQ(bytes_taken_by([&] {
                  item.set_grupo_exportacao(grown);
                  item.set_descricao(grown_text);
              }),
              bytes_taken_by([&] {
                  other.set_grupo_exportacao(exact);
                  other.set_descricao(text);
              }));
    EXPECT_EQ(bytes_taken_by([&] { [[maybe_unused]] const produto copy = item; }),
              bytes_taken_by([&] { [[maybe_unused]] const produto copy = other; }));
}

} // namespace kivo::tests

#include <base/counted.hpp>

#include <fiscal/emitente.hpp>
#include <fiscal/grupo_ibs_cred_pres.hpp>
#include <fiscal/transportador.hpp>
#include <fiscal/valor_cred_pres.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>
#include <utility>
#include <vector>

namespace kivo::tests {

static_assert(!std::is_default_constructible_v<erp::v12::cpf>, "never asked for");

// Catches a copy that touches a value which is not there.
TEST(absent_values, ask_nothing_of_their_type) {
    const erp::v12::fiscal::emitente empty;
    erp::v12::fiscal::emitente target;
    std::vector<counting::event> log;
    counting::log = &log;
    {
        auto copy = empty;
        auto moved = std::move(copy);
        target = moved;
        target = std::move(moved);
        target.set_cnpj(empty.get_cnpj());
    }
    counting::log = nullptr;
    EXPECT_TRUE(log.empty());
}

// Catches a choice that keeps the old kind when a value of the new one cannot be copied.
TEST(choices, of_base_values_lose_the_old_one) {
    using erp::v12::fiscal::transportador;
    const auto fail_to = [](auto set) {
        counting::allowed = 0;
        EXPECT_THROW(set(), counting::failure);
        counting::allowed = std::numeric_limits<std::size_t>::max();
    };

    transportador carrier;
    using documento = decltype(carrier.get_documento());
    carrier.set_documento(documento(erp::v12::cpf(1)));
    const documento company(erp::v12::cnpj(2));
    fail_to([&] { carrier.set_documento(company); });
    const transportador copy = carrier;
    ASSERT_TRUE(copy.get_documento());
    EXPECT_TRUE(copy.get_documento()->valueless_by_exception());

    using erp::v12::fiscal::valor_cred_pres_sus;
    erp::v12::fiscal::grupo_ibs_cred_pres credit;
    credit.set_codigo_classificacao(1);
    const decltype(credit.get_valor_credito_presumido()) suspended(
        valor_cred_pres_sus{core::v7::decimal(2)});
    fail_to([&] { credit.set_valor_credito_presumido(suspended); });
    EXPECT_TRUE(credit.get_valor_credito_presumido().valueless_by_exception());
    credit.set_valor_credito_presumido(suspended);
    EXPECT_EQ(credit.get_valor_credito_presumido().index(), 1U);
}

} // namespace kivo::tests

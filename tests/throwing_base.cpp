#include <base/counted.hpp>

#include <fiscal/declaracao_importacao.hpp>
#include <fiscal/emitente.hpp>
#include <fiscal/grupo_cbs_cred_pres.hpp>
#include <fiscal/grupo_ibs_cred_pres.hpp>
#include <fiscal/transportador.hpp>
#include <fiscal/valor_cred_pres.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

/// What the library asks of base values, and what it leaves when one of them cannot be copied; over
/// base values whose moves throw, and again over those whose moves do not.
namespace kivo::tests {

using namespace erp::v12::fiscal;

static_assert(!std::is_default_constructible_v<erp::v12::cpf>, "never asked for");

// Catches a copy that touches a value which is not there.
TEST(absent_values, ask_nothing_of_their_type) {
    const emitente empty;
    emitente target;
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

/// Whether setting fails when the first operation of a base value does.
template <class Set> void expect_failure(Set set) {
    counting::allowed = 0;
    EXPECT_THROW(set(), counting::failure);
    counting::allowed = std::numeric_limits<std::size_t>::max();
}

// Catches a choice that keeps the old kind when a value of the new one cannot be copied.
TEST(choices, of_identifiers_lose_the_old_one) {
    transportador carrier;
    using documento = decltype(carrier.get_documento());
    carrier.set_documento(documento(erp::v12::cpf(1)));
    const documento company(erp::v12::cnpj(2));
    expect_failure([&] { carrier.set_documento(company); });
    const transportador copy = carrier;
    ASSERT_TRUE(copy.get_documento());
    EXPECT_TRUE(copy.get_documento()->valueless_by_exception());
    carrier.set_documento(company);
    EXPECT_EQ(carrier.get_documento()->index(), 1U);

    declaracao_importacao declaration;
    using importador = decltype(declaration.get_documento_importador());
    declaration.set_documento_importador(importador(erp::v12::cnpj(1)));
    const importador person(erp::v12::cpf(2));
    expect_failure([&] { declaration.set_documento_importador(person); });
    ASSERT_TRUE(declaration.get_documento_importador());
    EXPECT_TRUE(declaration.get_documento_importador()->valueless_by_exception());
}

template <class Group> class presumed_credit : public ::testing::Test {};
using presumed_credits = ::testing::Types<grupo_ibs_cred_pres, grupo_cbs_cred_pres>;
TYPED_TEST_SUITE(presumed_credit, presumed_credits);

// Catches the same, an amount that is lost although its kind stays, and a choice without a value
// that cannot be set again.
TYPED_TEST(presumed_credit, of_another_kind_loses_the_old_one) {
    using choice = decltype(TypeParam().get_valor_credito_presumido());
    const choice suspended(valor_cred_pres_sus{core::v7::decimal(2)});
    TypeParam credit;
    credit.set_codigo_classificacao(1);
    expect_failure([&] { credit.set_valor_credito_presumido(suspended); });
    const choice nothing = credit.get_valor_credito_presumido();
    EXPECT_TRUE(nothing.valueless_by_exception());
    EXPECT_EQ(credit.get_codigo_classificacao(), 1U);

    credit.set_valor_credito_presumido(suspended);
    EXPECT_EQ(std::get<1>(credit.get_valor_credito_presumido()).valor.number(), 2U);
    const choice other(valor_cred_pres_sus{core::v7::decimal(3)});
    expect_failure([&] { credit.set_valor_credito_presumido(other); });
    EXPECT_EQ(std::get<1>(credit.get_valor_credito_presumido()).valor.number(), 2U);
    credit.set_valor_credito_presumido(nothing);
    EXPECT_TRUE(credit.get_valor_credito_presumido().valueless_by_exception());
}

} // namespace kivo::tests

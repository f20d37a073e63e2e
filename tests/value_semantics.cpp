#include "value_semantics.hpp"

#include <fiscal/types.hpp>

#include <thread>

namespace kivo::tests {

INSTANTIATE_TYPED_TEST_SUITE_P(parties, every_class, parties);

// A record holds many of these; their size and their copies are what a copy of it costs.
template <class Value>
concept one_word = sizeof(Value) == 8 && std::is_trivially_copyable_v<Value>;
static_assert(one_word<erp::v12::fiscal::decimal> && one_word<erp::v12::fiscal::date> &&
              one_word<erp::v12::fiscal::datetime> && one_word<erp::v12::fiscal::cnpj> &&
              one_word<erp::v12::fiscal::cpf>);

// Catches, under the thread sanitizer, whatever two objects would share behind the scenes.
TEST(threads, work_on_their_own_copies) {
    const auto original = sample<erp::v12::fiscal::emitente>(1);
    const auto work = [](erp::v12::fiscal::emitente mine, std::size_t number) {
        for (std::size_t round = 0; round < 100; ++round) {
            auto copy = mine;
            copy.set_razao_social(sample<std::string>(number + round));
            mine = std::move(copy);
        }
        EXPECT_EQ(mine.get_razao_social(), sample<std::string>(number + 99));
    };
    std::thread first(work, original, 1000);
    std::thread second(work, original, 2000);
    first.join();
    second.join();
    EXPECT_EQ(texts(original), texts(sample<erp::v12::fiscal::emitente>(1)));
}

} // namespace kivo::tests

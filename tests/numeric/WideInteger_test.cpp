#include "core/numeric/WideInteger.h"

#include <gtest/gtest.h>

#include <random>

namespace
{
/// Words at the edges, where the estimate of a quotient digit is too great and has to be taken back.
WideInteger EdgeNumber(std::mt19937 &engine, std::size_t mostWords)
{
    static constexpr std::array<std::uint32_t, 8> edges
        = {0, 1, 2, 0x7FFFFFFF, 0x80000000, 0x80000001, 0xFFFFFFFE, 0xFFFFFFFF};
    std::array<std::uint32_t, WideInteger::kCapacity> words {};
    const std::size_t size = 1 + engine() % mostWords;
    for (std::size_t i = 0; i < size; ++i)
        words[i] = engine() % 8 == 0 ? static_cast<std::uint32_t>(engine()) : edges[engine() % edges.size()];
    return WideInteger {words};
}
} // namespace

TEST(WideInteger, QuotientTimesDivisorAndRemainderGiveTheNumberBack)
{
    std::mt19937 engine {99};
    for (int round = 0; round < 200000; ++round) {
        const WideInteger number = EdgeNumber(engine, 7);
        const WideInteger divisor = EdgeNumber(engine, 4);
        if (divisor.IsZero())
            continue;
        WideInteger remainder = number;
        const WideInteger quotient = remainder.DivideToRemainder(divisor);
        ASSERT_LT(remainder, divisor);
        WideInteger back = quotient * divisor;
        back += remainder;
        ASSERT_EQ(back, number);
        back -= number;
        ASSERT_TRUE(back.IsZero());
    }
}

TEST(WideInteger, DivisionTakesBackAnEstimateThatWasTooGreat)
{
    const std::array<std::uint32_t, 4> number = {3, 0, 0x80000000, 0x7FFFFFFF};
    const std::array<std::uint32_t, 3> divisor = {1, 0, 0x80000000};
    WideInteger remainder {number};
    EXPECT_EQ(remainder.DivideToRemainder(WideInteger {divisor}), WideInteger {0xFFFFFFFE});
    const std::array<std::uint32_t, 3> left = {5, 0xFFFFFFFF, 0x7FFFFFFF};
    EXPECT_EQ(remainder, WideInteger {left});
}

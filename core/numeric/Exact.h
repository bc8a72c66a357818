#pragma once

#include "core/numeric/Decimal.h"

#include <boost/multiprecision/cpp_int.hpp>

/// An unsigned whole number of up to 320 bits: room for every exact result between two decimals before it is rounded.
using WideInteger = boost::multiprecision::number<
    boost::multiprecision::cpp_int_backend<320, 320, boost::multiprecision::unsigned_magnitude,
                                           boost::multiprecision::unchecked, void>,
    boost::multiprecision::et_off>;

/// digits times 10^-scale, before it is rounded into a decimal.
struct Decimal::Exact {
    WideInteger digits;
    std::int64_t scale = 0;
    bool negative = false;
    bool more = false; ///< there are digits past those given
};

/// 10^exponent, up to 10^57: the widest step between the scales of two decimals, and one place more.
[[nodiscard]] const WideInteger &PowerOfTen(std::int64_t exponent);

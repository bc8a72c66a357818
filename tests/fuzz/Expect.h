#pragma once

#include "core/numeric/RuntimeError.h"

#include <cstdio>
#include <cstdlib>
#include <initializer_list>

/// Ends the run with the place where a property does not hold, so that the input that breaks it is kept.
#define KEELMARK_EXPECT(property)                                                                                      \
    do {                                                                                                               \
        if (!(property)) {                                                                                             \
            std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #property);                         \
            std::abort();                                                                                              \
        }                                                                                                              \
    } while (false)

/// The number of the run-time error that the act raises, 0 for none. Any other number than those allowed ends the run.
template<class Act> std::int32_t RaisedOf(std::initializer_list<std::int32_t> allowed, Act act)
{
    try {
        act();
    } catch (const RuntimeError &error) {
        for (const std::int32_t number : allowed) {
            if (number == error.Number())
                return number;
        }
        std::fprintf(stderr, "raised %d\n", error.Number());
        std::abort();
    }
    return 0;
}

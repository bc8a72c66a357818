#pragma once

#include "core/numeric/RuntimeError.h"

/// Number of the run-time error that an act raises; 0 for none.
template<class Act> std::int32_t RaisedNumber(Act act)
{
    try {
        static_cast<void>(act());
    } catch (const RuntimeError &error) {
        return error.Number();
    }
    return 0;
}

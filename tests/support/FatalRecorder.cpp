#include "tests/support/FatalRecorder.h"

#include "frame/platform/Fatal.h"

#include <gtest/gtest.h>

FatalRecorder::FatalRecorder()
{
    SetFatalPort([this](const RuntimeError &error) { mNumbers.push_back(error.Number()); });
}

FatalRecorder::~FatalRecorder()
{
    FailTests();
}

void FatalRecorder::FailTests()
{
    SetFatalPort([](const RuntimeError &error) {
        ADD_FAILURE() << "A run-time error that no trap took: " << error.Number() << ", " << error.what();
    });
}

#pragma once

#include "core/MsgBox.h"
#include "core/numeric/RuntimeError.h"

#include <string>
#include <string_view>

inline void TellInvalidInput(std::string_view text)
{
    TellExclamation(std::string(text).append(kTwoLineBreaks).append("Please check your input values."));
}

/// A failure of a list routine. Both survey windows report under the loading window's name.
inline void TellSource(const RuntimeError &error, std::string_view source)
{
    MsgBox(error.Description().append(kTwoLineBreaks).append("Source :  frmDraftSurvey::").append(source),
           MsgIcon::Critical);
}

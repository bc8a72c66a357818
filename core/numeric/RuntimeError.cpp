#include "core/numeric/RuntimeError.h"

namespace
{
const char *DescriptionOf(std::int32_t number)
{
    switch (number) {
    case ErrorNumber::InvalidCall:
        return "Invalid procedure call or argument";
    case ErrorNumber::Overflow:
        return "Overflow";
    case ErrorNumber::DivisionByZero:
        return "Division by zero";
    case ErrorNumber::TypeMismatch:
        return "Type mismatch";
    case ErrorNumber::ProgramNotFound:
        return "File not found";
    case ErrorNumber::FileNotWritten:
        return "Path/File access error";
    case ErrorNumber::NoObject:
        return "Object variable not set";
    case ErrorNumber::InvalidUseOfNull:
        return "Invalid use of Null";
    case ErrorNumber::NoSuchOperation:
        return "Object doesn't support this property or method";
    case ErrorNumber::PrinterError:
        return "Printer error";
    default:
        return "Application-defined error";
    }
}
} // namespace

RuntimeError::RuntimeError(std::int32_t number)
    : RuntimeError(number, DescriptionOf(number))
{
}

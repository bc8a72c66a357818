#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

/// Numbers that a RuntimeError can carry. Store failures other than these have numbers of their own (Connection.h).
namespace ErrorNumber
{
inline constexpr std::int32_t InvalidCall = 5;
inline constexpr std::int32_t Overflow = 6;
inline constexpr std::int32_t DivisionByZero = 11;
inline constexpr std::int32_t TypeMismatch = 13;
inline constexpr std::int32_t ProgramNotFound = 53;
inline constexpr std::int32_t FileNotWritten = 75;
inline constexpr std::int32_t NoObject = 91;
inline constexpr std::int32_t InvalidUseOfNull = 94;
inline constexpr std::int32_t NoSuchOperation = 438;
inline constexpr std::int32_t PrinterError = 482;
/// The store cannot be opened, or it refused a duplicate survey or draft: hexadecimal 80004005.
inline constexpr std::int32_t StoreRefusal = static_cast<std::int32_t>(0x80004005U);
} // namespace ErrorNumber

/// A failure that a routine's trap may take. What no trap takes ends the program with the platform's message.
class RuntimeError : public std::runtime_error
{
public:
    RuntimeError(std::int32_t number, const std::string &description)
        : std::runtime_error(description)
        , mNumber(number)
    {
    }

    /// The failure under its number with the description that users know it by.
    explicit RuntimeError(std::int32_t number);

    [[nodiscard]] std::int32_t Number() const noexcept { return mNumber; }
    [[nodiscard]] std::string Description() const { return what(); }

private:
    std::int32_t mNumber;
};

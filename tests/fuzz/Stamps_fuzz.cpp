// Texts of the date and time fields on their way into the store and back.

#include "core/DateTimeStamp.h"
#include "tests/fuzz/Expect.h"

#include <cstddef>
#include <cstdint>

namespace
{
bool IsDigits(std::string_view text)
{
    return text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// True for "dd-MM-yyyy HH:mm" in digits, whatever they say.
bool IsWholeMoment(std::string_view text)
{
    return text.size() == 16 && IsDigits(text.substr(0, 2)) && IsDigits(text.substr(3, 2))
        && IsDigits(text.substr(6, 4)) && IsDigits(text.substr(11, 2)) && IsDigits(text.substr(14, 2));
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    Value stamp;
    const std::int32_t raised
        = RaisedOf({ErrorNumber::TypeMismatch, ErrorNumber::Overflow}, [&] { stamp = DateTimeToStamp(text); });
    KEELMARK_EXPECT(raised == 0 || !IsWholeMoment(text));
    if (raised != 0)
        return 0;
    const std::string date = StampToDate(stamp);
    const std::string time = StampToTime(stamp);
    if (IsWholeMoment(text) && text[6] != '0') {
        KEELMARK_EXPECT(date.size() == 10 && time.size() == 5);
        KEELMARK_EXPECT(date.substr(0, 2) == text.substr(0, 2) && date.substr(3, 2) == text.substr(3, 2)
                        && date.substr(6) == text.substr(6, 4));
        KEELMARK_EXPECT(time.substr(0, 2) == text.substr(11, 2) && time.substr(3) == text.substr(14));
        KEELMARK_EXPECT(DateTimeToStamp(date + " " + time) == stamp);
    }
    return 0;
}

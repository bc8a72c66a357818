// Texts of number fields, under four ways to write numbers; the first byte picks one.

#include "core/numeric/NumericText.h"
#include "core/numeric/Value.h"
#include "tests/fuzz/Expect.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace
{
const std::array<RegionalSettings, 4> kSettings {
    RegionalSettings {}, {",", ".", "€"}, {",", "\u202F", "kr"}, {".", "", ""}};

void CheckField(std::string_view text, const RegionalSettings &regional)
{
    const bool taken = IsNumericText(text, regional);
    Decimal number;
    const std::int32_t raised = RaisedOf({ErrorNumber::TypeMismatch, ErrorNumber::Overflow},
                                         [&] { number = NumericTextToDecimal(text, regional); });
    // A number beyond any double is no number to a field, but its form is one.
    KEELMARK_EXPECT(taken ? raised != ErrorNumber::TypeMismatch : raised != 0);
    KEELMARK_EXPECT(IsNumericText(Trimmed(text), regional) == taken);

    std::string sql;
    if (RaisedOf({ErrorNumber::TypeMismatch, ErrorNumber::Overflow}, [&] { sql = FieldSqlText(text, regional); })
        == 0) {
        // What goes into a statement is this number and nothing else.
        KEELMARK_EXPECT(taken && raised == 0);
        KEELMARK_EXPECT(sql.find_first_not_of("+-.0123456789eE") == std::string::npos);
        KEELMARK_EXPECT(Decimal::Parse(sql) == number);
    }
    if (!taken || raised != 0)
        return;

    const std::string plain = number.Text();
    KEELMARK_EXPECT(Decimal::Parse(plain) == number);
    KEELMARK_EXPECT(IsNumericText(plain, RegionalSettings {}));
    for (const int places : {0, 3, Decimal::kMaxScale}) {
        const Decimal rounded = number.Round(places);
        KEELMARK_EXPECT(rounded.Scale() <= places && rounded.Round(places) == rounded);
    }
    const ScopedPort inForce(RegionalPort(), regional);
    KEELMARK_EXPECT(Value(Value(number).Text()).ToDecimal() == number);
    KEELMARK_EXPECT(Value(number).SqlText() == plain);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size != 0) {
        const std::string_view text(reinterpret_cast<const char *>(data) + 1, size - 1);
        CheckField(text, kSettings[*data % kSettings.size()]);
    }
    return 0;
}

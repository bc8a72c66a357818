// Criteria and sort texts of record sets, over rows of every kind.

#include "frame/store/Recordset.h"
#include "frame/store/StoreMaker.h"
#include "tests/fuzz/Expect.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>

#include <unistd.h>

namespace
{
constexpr const char *kRows
    = "SELECT 1 AS Whole, 7.85 AS Draft, 'Harrow Tide' AS Name, NULL AS Mixed UNION ALL "
      "SELECT -2147483648, -0.0001, 'O''Brien', 3 UNION ALL SELECT 202403141530, 1e17, '', 4.25 UNION ALL "
      "SELECT 0, 8.02, '12', 'text' UNION ALL SELECT 1, 7.85, 'HARROW TIDE', NULL UNION ALL SELECT NULL, NULL, NULL, "
      "NULL";

Recordset &Rows()
{
    static Recordset rows;
    if (!rows.IsOpen()) {
        const auto folder = std::filesystem::temp_directory_path() / ("keelmark_fuzz" + std::to_string(getpid()));
        std::filesystem::create_directories(folder);
        KEELMARK_EXPECT(MakeStore(folder / "DS.dat", StoreContent::Initial));
        gConnection = std::make_unique<Connection>();
        gConnection->Open(folder / "DS.dat");
        std::filesystem::remove_all(folder);
        rows.Open(kRows, CursorType::Static, LockType::ReadOnly);
    }
    return rows;
}

std::int32_t CountFound(Recordset &rows, std::string_view criterion)
{
    std::int32_t count = 0;
    rows.MoveFirst();
    for (rows.Find(criterion); !rows.AtEnd(); rows.Find(criterion, 1))
        ++count;
    return count;
}

void CheckCriterion(Recordset &rows, std::string_view text)
{
    const std::int32_t all = rows.RecordCount();
    const auto filter = [&](std::string_view criterion) {
        return RaisedOf({StoreError::BadArgument, StoreError::NoSuchColumn, ErrorNumber::Overflow},
                        [&] { rows.Filter(criterion); });
    };
    std::int32_t found = 0;
    const std::int32_t raised = RaisedOf({StoreError::BadArgument, StoreError::NoSuchColumn, ErrorNumber::Overflow},
                                         [&] { found = CountFound(rows, text); });
    const std::int32_t refused = filter(text);
    // A filter takes bare text too, and no text for no filter.
    if (raised == 0) {
        KEELMARK_EXPECT(refused == 0);
        KEELMARK_EXPECT(rows.RecordCount() == found);
        KEELMARK_EXPECT(found <= all);
    }
    rows.Filter("");
    KEELMARK_EXPECT(rows.RecordCount() == all);
}

// Any text can be looked for, with its quotes doubled.
void CheckQuoted(Recordset &rows, std::string_view text)
{
    std::string criterion = "Name = '";
    for (const char letter : text) {
        criterion += letter;
        if (letter == '\'')
            criterion += letter;
    }
    criterion += '\'';
    rows.MoveFirst();
    rows.Find(criterion);
    KEELMARK_EXPECT(rows.AtEnd() || rows.Fields("Name").Text() == text);
}

void CheckSort(Recordset &rows, std::string_view text)
{
    const std::int32_t all = rows.RecordCount();
    RaisedOf({StoreError::BadArgument, StoreError::NoSuchColumn}, [&] { rows.Sort(text); });
    std::int32_t passed = 0;
    for (rows.MoveFirst(); !rows.AtEnd(); rows.MoveNext())
        ++passed;
    KEELMARK_EXPECT(passed == all);
    rows.Sort("");
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    Recordset &rows = Rows();
    CheckCriterion(rows, text);
    CheckQuoted(rows, text);
    CheckSort(rows, text);
    return 0;
}

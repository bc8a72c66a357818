#include "frame/store/Recordset.h"

#include "tests/support/TestStore.h"

#include <string>
#include <vector>

namespace
{
using namespace StoreError;

/// A hydrostatic table with equal drafts, told by its KB: 1 to 6 in the order of the drafts.
class Rows : public TestStore
{
protected:
    Rows()
    {
        Run("INSERT INTO Port (PortID, PortName, City) VALUES (3, 'santos', NULL), (1, 'Antwerp', 'x'), (2, 'Vigo', "
            "'')");
        Run("INSERT INTO Ship (ShipID, ShipName, PortOfRegistry) VALUES (1, 'Harrow Tide', 1)");
        Run("INSERT INTO HydrostaticDataTable (ShipID, TMD, KB) VALUES (1, 8.5, 5), (1, 8, 2), (1, 8, 3), "
            "(1, 8.45, 4), (1, 7.9, 1), (1, 9, 6)");
        mRows.Open("SELECT * FROM HydrostaticDataTable WHERE ShipID = 1 ORDER BY TMD", CursorType::Keyset,
                   LockType::BatchOptimistic);
    }

    /// KB of the current row, "end", "start" or "gone".
    static std::string Here(const Recordset &rows, const char *column = "KB")
    {
        if (rows.AtEnd())
            return "end";
        return rows.AtStart() ? "start" : rows.Fields(column).Text();
    }
    [[nodiscard]] std::string Here() const { return Here(mRows); }

    /// All rows in sight.
    static std::string Listed(Recordset &rows, const char *column)
    {
        std::string all;
        for (rows.MoveFirst(); !rows.AtEnd(); rows.MoveNext())
            all += rows.Fields(column).Text() + ' ';
        return all;
    }

    Recordset mRows;
};
} // namespace

TEST_F(Rows, ValuesComeInTheKindOfTheirColumn)
{
    Run("INSERT INTO DraftParticulars (RecordID, ShipID, VoyageID, PortID, IsLoading) VALUES (1, 1, '7', 2, True)");
    Run("INSERT INTO DraftDetails (DraftID, RecordID, SpecificGravity, DraftType, ListCorrected, NetDisplacement, "
        "[DateTime]) VALUES (1, 1, 1.025, 0, True, 22441.68513, 202403151430)");
    Recordset rows;
    rows.Open("SELECT *, NULL AS Blank FROM DraftDetails", CursorType::Dynamic, LockType::BatchOptimistic);
    const std::vector<std::tuple<const char *, Value::Kind, std::string>> columns = {
        {"DRAFTID", Value::Kind::Long, "1"},
        {"specificgravity", Value::Kind::Decimal, "1.025"},
        {"NetDisplacement", Value::Kind::Decimal, "22441.68513"},
        {"ListCorrected", Value::Kind::Long, "1"},
        {"DateTime", Value::Kind::Decimal, "202403151430"},
        {"Comments", Value::Kind::Null, ""},
        {"Blank", Value::Kind::Null, ""},
    };
    for (const auto &[name, kind, text] : columns) {
        const Value value = rows.Fields(name);
        EXPECT_EQ(value.Type(), kind) << name;
        if (kind != Value::Kind::Null) {
            EXPECT_EQ(value.Text(), text) << name;
        }
    }
    EXPECT_EQ(ErrorOf([&] { (void)rows.Fields("Draft"); }), NoSuchColumn);

    // A zero and a number out of a decimal's range come and fail only when they are asked for.
    Run("UPDATE DraftDetails SET SpecificGravity = 0, NetDisplacement = 1e30");
    rows.Requery();
    EXPECT_EQ(rows.Fields("SpecificGravity").Text(), "0");
    EXPECT_EQ(ErrorOf([&] { (void)rows.Fields("NetDisplacement"); }), ErrorNumber::Overflow);

    rows.Reopen("SELECT MAX(DraftID) AS DraftID FROM DraftDetails WHERE 0", CursorType::Dynamic,
                LockType::BatchOptimistic);
    EXPECT_EQ(rows.RecordCount(), 1);
    EXPECT_TRUE(rows.Fields("DraftID").IsNull());
}

TEST_F(Rows, OpensOneSelectAndNothingElse)
{
    Recordset rows;
    const auto open = [&rows](std::string_view sql) {
        return ErrorOf([&] { rows.Open(sql, CursorType::Static, LockType::ReadOnly); });
    };
    for (const char *bad : {"", "DELETE FROM Port", "INSERT INTO Port (PortName) VALUES ('a') RETURNING PortID",
                            "SELECT * FROM Port; DELETE FROM Port", "SELECT * FROM NoTable", "SELECT 'O'Brien'"}) {
        EXPECT_EQ(open(bad), StatementFailed) << bad;
        EXPECT_FALSE(rows.IsOpen());
    }
    EXPECT_EQ(Ask("SELECT count(*) FROM Port").ToLong(), 3);
    EXPECT_EQ(ErrorOf([&] { (void)rows.RecordCount(); }), WrongState);
    EXPECT_EQ(ErrorOf([&] { rows.Close(); }), WrongState);
    EXPECT_EQ(open("SELECT * FROM Port"), 0);
    EXPECT_TRUE(rows.IsOpen());
    EXPECT_EQ(open("SELECT * FROM Port"), WrongState);

    // The rows are in memory: they outlive the connection, but cannot be fetched anew.
    gConnection.reset();
    EXPECT_EQ(rows.RecordCount(), 3);
    EXPECT_EQ(ErrorOf([&] { rows.Requery(); }), WrongState);
    EXPECT_EQ(rows.RecordCount(), 3);
}

TEST_F(Rows, EqualDraftsStandInTheOrderOfTheirInsertion)
{
    EXPECT_EQ(Listed(mRows, "KB"), "1 2 3 4 5 6 ");
}

TEST_F(Rows, FindRules)
{
    struct Case {
        const char *criterion;
        std::int64_t skip;
        const char *start; ///< KB of the bookmarked row; "first"; "" for the current row, which is 3
        const char *found;
    };
    const std::vector<Case> cases = {
        {"TMD <= 8.4", 0, "", "3"},
        {"TMD <= 8.4", 1, "", "end"},
        {"TMD <= 8.4", 1, "1", "2"},
        {"TMD <= 8.4", 2, "1", "3"},
        {"TMD <= 8.4", 0, "first", "1"},
        {"TMD = 8", 0, "first", "2"},
        {"TMD = 8", 1, "2", "3"},
        {"TMD = 8", 1, "3", "end"},
        {"TMD = 8.0000", 0, "", "3"},
        {"tmd=+.8e1", 0, "", "3"},
        {" [TMD]  >=  8.46 ", 0, "", "5"},
        {"TMD >= '8.46'", 0, "", "5"},
        {"TMD >= 9.01", 0, "first", "end"},
        {"TMD >= -1", 5, "first", "6"},
        {"TMD >= -1", 6, "first", "end"},
        {"TMD >= -1", INT64_MAX, "2", "end"},
        {"Displacement >= 0", 0, "first", "end"},
        {"KB = 'five'", 0, "first", "end"},
        // Exactly, as numbers: the last digit of 28 decides.
        {"TMD = 8.4500000000000000000000000", 0, "first", "4"},
        {"TMD = 8.4500000000000000000000001", 0, "first", "end"},
        {"TMD >= 8.450000000000000000000000001", 0, "first", "5"},
        {"TMD >= 8.449999999999999999999999999", 0, "first", "4"},
        {"TMD <= 7.899999999999999999999999999", 0, "first", "end"},
    };
    for (const Case &find : cases) {
        SCOPED_TRACE(std::string(find.criterion) + " from " + find.start);
        std::optional<Bookmark> start;
        if (std::string_view(find.start) == "first") {
            start = Recordset::kBookmarkFirst;
        } else if (*find.start != '\0') {
            mRows.Find(std::string("KB = ") + find.start, 0, Recordset::kSearchForward, Recordset::kBookmarkFirst);
            start = mRows.CurrentBookmark();
        }
        mRows.MoveFirst();
        mRows.Move(2);
        mRows.Find(find.criterion, find.skip, Recordset::kSearchForward, start);
        EXPECT_EQ(Here(), find.found);
    }
}

TEST_F(Rows, AStoredNumberCountsAsItsFifteenDigits)
{
    Run("UPDATE HydrostaticDataTable SET TMD = 0.1 + 0.2 WHERE KB = 1");
    mRows.Requery();
    mRows.Find("TMD = 0.3");
    EXPECT_EQ(Here(), "1");
    mRows.Find("TMD >= 0.30000000000000004", 0, Recordset::kSearchForward, Recordset::kBookmarkFirst);
    EXPECT_EQ(Here(), "2");
}

TEST_F(Rows, FindInTextsAndOutOfPlace)
{
    Recordset ports;
    ports.Open("SELECT * FROM Port ORDER BY PortID", CursorType::Static, LockType::ReadOnly);
    const auto find = [&](std::string_view criterion, std::int64_t skip = 0, int direction = 1) {
        return ErrorOf([&] { ports.Find(criterion, skip, direction, Recordset::kBookmarkFirst); });
    };
    EXPECT_EQ(find("PortName = 'Vigo'"), 0);
    EXPECT_EQ(Here(ports, "PortID"), "2");
    EXPECT_EQ(find("PortName = 'vigo'"), 0);
    EXPECT_TRUE(ports.AtEnd());
    EXPECT_EQ(find("City = ''"), 0);
    EXPECT_EQ(Here(ports, "PortID"), "2");
    for (const char *bad : {"", "PortID", "PortID =", "PortID < 3", "PortID <> 3", "PortID = x", "= 3", "[PortID = 3",
                            "PortID = 1 2", "PortName = 'O'Brien'", "PortName = 'Vigo", "PortID LIKE 3"})
        EXPECT_EQ(find(bad), BadArgument) << bad;
    EXPECT_EQ(find("Nowhere = 3"), NoSuchColumn);
    EXPECT_EQ(find("PortID = 1e40"), ErrorNumber::Overflow);
    // Between quotes it may be a name.
    EXPECT_EQ(find("PortName = '1e40'"), 0);
    EXPECT_TRUE(ports.AtEnd());
    EXPECT_EQ(find("City = ''"), 0);
    EXPECT_EQ(find("PortID = 1", 0, -1), BadArgument);
    EXPECT_EQ(find("PortID = 1", -1), BadArgument);
    EXPECT_EQ(Here(ports, "PortID"), "2");

    // From the end there is nothing to find, and in an empty set neither.
    ports.MoveLast();
    ports.MoveNext();
    ports.Find("PortID >= 0");
    EXPECT_TRUE(ports.AtEnd());
    ports.Reopen("SELECT * FROM Port WHERE PortID = -1", CursorType::Static, LockType::ReadOnly);
    ports.Find("PortID >= 0");
    EXPECT_TRUE(ports.AtEnd() && ports.AtStart());
}

TEST_F(Rows, Moves)
{
    EXPECT_EQ(Here(), "1");
    EXPECT_EQ(ErrorOf([&] { mRows.Move(-1); }), 0);
    EXPECT_EQ(Here(), "start");
    EXPECT_EQ(ErrorOf([&] { mRows.Move(-1); }), NoCurrentRow);
    EXPECT_EQ(ErrorOf([&] { (void)mRows.Fields("KB"); }), NoCurrentRow);
    mRows.MoveNext();
    EXPECT_EQ(Here(), "1");
    mRows.Move(INT64_MAX);
    EXPECT_EQ(Here(), "end");
    EXPECT_EQ(ErrorOf([&] { mRows.MoveNext(); }), NoCurrentRow);
    EXPECT_EQ(ErrorOf([&] { (void)mRows.CurrentBookmark(); }), NoCurrentRow);
    mRows.Move(-2);
    EXPECT_EQ(Here(), "5");
    const Bookmark fifth = mRows.CurrentBookmark();
    mRows.Move(2, Recordset::kBookmarkFirst);
    EXPECT_EQ(Here(), "3");
    mRows.Move(-1, fifth);
    EXPECT_EQ(Here(), "4");
    mRows.GoTo(fifth);
    EXPECT_EQ(Here(), "5");

    EXPECT_EQ(ErrorOf([&] { mRows.GoTo(-1); }), NoCurrentRow);
    mRows.Requery();
    EXPECT_EQ(ErrorOf([&] { mRows.GoTo(fifth); }), NoCurrentRow) << "a bookmark of the rows before";

    mRows.Filter("KB = 77");
    mRows.MoveFirst();
    mRows.MoveLast();
    EXPECT_TRUE(mRows.AtEnd() && mRows.AtStart());
    EXPECT_EQ(ErrorOf([&] { mRows.MoveNext(); }), NoCurrentRow);
}

TEST_F(Rows, FilterAndSort)
{
    mRows.Filter("TMD = 8");
    EXPECT_EQ(mRows.RecordCount(), 2);
    EXPECT_EQ(Listed(mRows, "KB"), "2 3 ");
    mRows.Filter("TMD >= 8");
    mRows.Sort("TMD DESC");
    EXPECT_EQ(Listed(mRows, "KB"), "6 5 4 2 3 ");
    mRows.Find("KB = 4", 0, 1, Recordset::kBookmarkFirst);
    const Bookmark fourth = mRows.CurrentBookmark();
    mRows.Find("KB >= 2", 1, 1, fourth);
    EXPECT_EQ(Here(), "2");
    mRows.Requery();
    EXPECT_EQ(Listed(mRows, "KB"), "6 5 4 2 3 ");
    mRows.Filter("");
    mRows.Sort("");
    EXPECT_EQ(Listed(mRows, "KB"), "1 2 3 4 5 6 ");
    EXPECT_EQ(ErrorOf([&] { mRows.Sort("TMD UPWARD"); }), BadArgument);
    EXPECT_EQ(ErrorOf([&] { mRows.Sort("Draft ASC"); }), NoSuchColumn);
    EXPECT_EQ(ErrorOf([&] { mRows.Filter("TMD < 8"); }), BadArgument);
    EXPECT_EQ(mRows.RecordCount(), 6);

    Recordset ports;
    ports.Open("SELECT PortName, City, substr(202403151430, 1, 4) || '-03' AS Month FROM Port", CursorType::Static,
               LockType::ReadOnly);
    ports.Sort("PortName ASC");
    EXPECT_EQ(Listed(ports, "PortName"), "Antwerp santos Vigo ");
    ports.Sort("City");
    EXPECT_EQ(Listed(ports, "PortName"), "santos Vigo Antwerp ");
    ports.Filter("Month = 2024-03");
    EXPECT_EQ(ports.RecordCount(), 3);
    ports.Filter("Month = 2024-04");
    EXPECT_EQ(ports.RecordCount(), 0);
}

TEST_F(Rows, LargeSetsOfDifferentShapesFollowEachOther)
{
    Run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2500) "
        "INSERT INTO HydrostaticDataTable (ShipID, TMD, KB) SELECT 1, 10 + i * 0.01, i FROM n");
    const auto open = [](Recordset &rows, const std::string &columns, int count) {
        rows.Reopen("SELECT " + columns + " FROM HydrostaticDataTable WHERE KB <= " + std::to_string(count)
                        + " AND TMD > 10 ORDER BY TMD",
                    CursorType::Dynamic, LockType::BatchOptimistic);
        EXPECT_EQ(rows.RecordCount(), count);
        rows.MoveLast();
        EXPECT_EQ(rows.Fields("KB").ToLong(), count);
    };
    Recordset first;
    Recordset second;
    for (int round = 0; round < 3; ++round) {
        open(first, "DISTINCT KB, TMD", 2100);
        open(first, "*", 1500);
        open(second, "*", 2500);
        second.Close();
        open(first, "*", 1100);
        open(second, "*", 2500);
    }
}
